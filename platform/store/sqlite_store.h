#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "store/connection.h"

namespace orlin {

struct SqliteOptions {
  /// A file that is missing opens; `Connection::Make` makes it, with its folders.
  bool MakesMissingFile = false;
  bool ReadOnly = false;
  /// How long another program that writes is waited for.
  std::chrono::seconds Patience{6};
};

/// Opens a SQLite file. It is not encrypted and has no password; a file that is made here is readable by its owner
/// only. Commits reach the disk before they return (`synchronous=EXTRA`, rollback journal).
/// `Failure` 3049 for a file that is missing or is no database, 3260 for one that stays locked.
[[nodiscard]] std::shared_ptr<Connection> OpenSqlite(const std::filesystem::path& file, const SqliteOptions& options);

}  // namespace orlin
