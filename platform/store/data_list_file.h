#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orlin {

/// One database of a data list.
struct DataListEntry {
  std::string Name;
  std::string DBTYPE;  ///< "ACCESS" or "ODBC", in any case of the letters
  std::string DBDRV;
  std::string DBDIR;
  std::string DBNAME;
  std::string CONNECT;  ///< the connection text of an ODBC source, without user name and password
};

using DataListEntries = std::vector<DataListEntry>;

/// The data list where no file is named: "PanelNotes" as the SQLite file `C:\accounts\notes.db`.
[[nodiscard]] DataListEntries BuiltInDataList();

/// Reads a data list:
///
///     ; a comment
///     [PanelNotes]
///     DBTYPE=ACCESS
///     DBDRV=C
///     DBDIR=\accounts\,
///     DBNAME=notes.db
///
/// or DBTYPE=ODBC with CONNECT. Names of entries and of their lines are taken without regard to case; `#` starts a
/// comment too. `PlatformError` with the number of the line for one that is neither.
[[nodiscard]] DataListEntries ReadDataList(const std::filesystem::path& file);

/// The entry of that name, or nothing.
[[nodiscard]] const DataListEntry* FindEntry(const DataListEntries& entries, std::string_view name);

}  // namespace orlin
