#include "store/file_database_engine.h"

#include <system_error>

#include "store/drive_paths.h"
#include "store/sqlite_store.h"

namespace orlin {

DatabasePtr FileDatabaseEngine::OpenDatabase(const std::string& path, bool /*exclusive*/, bool readOnly,
                                             const std::string& /*connect*/) {
  const auto file = FileAt(path, drivesFolder_);
  if (!file) throw Failure(failures::CannotOpenDatabase);
  return OpenSqlite(*file, {.ReadOnly = readOnly});
}

bool FileDatabaseEngine::FileExists(const std::string& path) {
  const auto file = FileAt(path, drivesFolder_);
  std::error_code unknown;
  return file && std::filesystem::exists(*file, unknown);
}

}  // namespace orlin
