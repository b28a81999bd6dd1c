#pragma once

#include <filesystem>
#include <utility>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// The engine of the file databases: SQLite.
class FileDatabaseEngine : public DatabaseEngine {
 public:
  /// `drivesFolder`: the folder in which drive letters are folders.
  explicit FileDatabaseEngine(std::filesystem::path drivesFolder) : drivesFolder_(std::move(drivesFolder)) {}

  DatabasePtr OpenDatabase(const std::string& path, bool exclusive, bool readOnly, const std::string& connect) override;
  bool FileExists(const std::string& path) override;

 private:
  std::filesystem::path drivesFolder_;
};

}  // namespace orlin
