#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "OrlinCustomDialogs/platform.h"
#include "OrlinCustomDialogs/platform/logged_fault.h"
#include "OrlinCustomDialogs/platform/platform_error.h"

namespace orlin {

/// What a program may choose of the stand-ins; docs/embedding.md has the forms of the files.
struct StandardPlatformOptions {
  std::shared_ptr<DialogHost> Host;
  /// The language of the texts, as a locale names it, such as `de` or `de_DE.UTF-8`; English for nothing, and for one
  /// that is not there.
  std::optional<std::string> Language;
  /// Texts in place of those of the language: a catalogue file.
  std::optional<std::filesystem::path> CatalogueFile;
  /// Settings in place of the built-in ones: a registry export.
  std::optional<std::filesystem::path> SettingsFile;
  /// Where the databases are, a data list; nothing: what the settings name, else the built-in list.
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

/// The stand-ins for all that lies outside the library, ready for `UsePlatform`. Reads the files that are named, once.
/// `PlatformError` for a file that is missing, unreadable or malformed, and for a `Now` that is no moment.
[[nodiscard]] Platform StandardPlatform(const StandardPlatformOptions& options);

}  // namespace orlin
