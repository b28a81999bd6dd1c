#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The running notes of a panel, kept in the account store or in the host's memory.
class frmPanelNotes {
 public:
  frmPanelNotes();
  std::int32_t Display(const std::string& PanelGUID, const std::string& NoteHeader, std::int32_t NoteTypeID,
                       std::string& Content, Value& FirstLine, bool IsInMemory);

 private:
  /// The most that a box holds, and that the notes are let grow to, in characters.
  static constexpr int kMostCharacters = 15500;

  void Form_Activate();
  void cmdAddNote_Click();
  void cmdDateTime_Click();

  Dialog Form{"frmPanelNotes",
              1371,
              {.ReleasesServices = true, .Unloads = true, .HandlesFailures = true},
              {.Width = 9000, .Height = 7200}};

  Label Label2{Form, "Label2", 1374};
  TextBox txtPanelNotes{Form, "txtPanelNotes", {.MaxLength = kMostCharacters, .MultiLine = true}};
  Label Label1{Form, "Label1", 1375};
  TextBox txtNote{Form, "txtNote", {.MaxLength = kMostCharacters, .MultiLine = true}};
  Button cmdAddNote{Form, "cmdAddNote", 1372};
  Button cmdDateTime{Form, "cmdDateTime", 1373};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};
};

}  // namespace orlin
