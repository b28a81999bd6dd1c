#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace orlin {

/// The folder in which drive letters are folders, where none is named: `tolmar/drives` in the user's data folder.
[[nodiscard]] std::filesystem::path DefaultDrivesFolder();

/// The file at a path such as `C:\accounts\notes.db`: drive letter X is the folder `x` under the drives folder.
/// Nothing for a path without a drive letter, and for one that would leave its drive.
[[nodiscard]] std::optional<std::filesystem::path> FileAt(std::string_view path,
                                                          const std::filesystem::path& drivesFolder);

}  // namespace orlin
