#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "OrlinCustomDialogs/platform.h"

#include "faultlog/fault_log.h"
#include "files/text_file.h"

namespace orlin {

struct StandardPlatformOptions {
  std::shared_ptr<DialogHost> Host;
  /// The language of the texts, as a locale names it (see `LanguageOf`); nothing: English.
  std::optional<std::string> Language;
  /// Texts in place of those of the language (see `ReadCatalogueFile`).
  std::optional<std::filesystem::path> CatalogueFile;
  /// Settings in place of the built-in ones (see `RegistryFileSettings`).
  std::optional<std::filesystem::path> SettingsFile;
  /// Where the databases are (see `ReadDataList`); nothing: what the settings name, else the built-in list.
  std::optional<std::filesystem::path> DataListFile;
  /// The folder in which drive letters are folders; nothing: `tolmar/drives` in the user's data folder.
  std::optional<std::filesystem::path> DrivesFolder;
  /// Where faults are appended; nothing: the file that the library names, in the current folder.
  std::optional<std::filesystem::path> FaultFile;
  /// Where the clock stands still, "YYYY-MM-DD HH:MM:SS"; nothing: it runs.
  std::optional<std::string> Now;
  /// Called for each fault that is logged.
  std::function<void(const LoggedFault&)> OnFaultLogged;
};

/// The stand-ins of this folder, ready for `UsePlatform`. Reads the files that are named, once.
/// `PlatformError` for a file that is missing, unreadable or malformed, and for a `Now` that is no moment.
[[nodiscard]] Platform StandardPlatform(const StandardPlatformOptions& options);

}  // namespace orlin
