#pragma once

#include <cstdint>
#include <string>

#include "OrlinCustomDialogs/value.h"

// The notes of a panel.

namespace [[using gnu: visibility("default")]] orlin {

/// Shows the running notes of a panel and lets the operator add to them. The notes are a row of the table "PanelNotes"
/// in the database that the data list names "PanelNotes", or a text that the host holds in memory.
class clsPanelNotes {
 public:
  /// Returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, which has been shown to the
  /// operator and logged: 3049 for a database that cannot be opened, another number of `failures` or of the store for
  /// one that cannot be read or written, 13 or 6 for an argument that is not of its type.
  ///
  /// `PanelGUID`, `NoteHeader`: texts, any characters; `NoteTypeID`: a 32-bit integer. Together they name the row.
  /// `NoteHeader` is also the title. Only the type 3 is ever written to the store; others are shown and handed back.
  ///
  /// `Content`: the notes, UTF-8, lines ended by CR LF, up to 15,500 characters. Read where `IsInMemory` is true.
  /// Receives what the dialog showed at its end, on OK and on Cancel; a failure, also one of the store after OK, leaves
  /// it as it came.
  ///
  /// `FirstLine`: receives the first line of the notes, a String, on OK alone.
  ///
  /// `IsInMemory`: true, and the notes come from `Content`; else they come from the store, and a file database that
  /// is missing is a failure. OK writes to the store in both cases, an empty text by deleting the row. Of several rows
  /// with the same key the first is read and written. A file database that is missing is made with its first row.
  ///
  ///     std::string notes;
  ///     orlin::Value firstLine;
  ///     orlin::clsPanelNotes().Display("4F2A-11", "Service notes", 3, notes, firstLine, false);
  std::int32_t Display(const Value& PanelGUID, const Value& NoteHeader, const Value& NoteTypeID, std::string& Content,
                       Value& FirstLine, const Value& IsInMemory);
};

}  // namespace orlin
