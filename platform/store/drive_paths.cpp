#include "store/drive_paths.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace orlin {
namespace {

std::filesystem::path UserDataFolder() {
  // As desktops define it: a relative path does not count.
  if (const char* folder = std::getenv("XDG_DATA_HOME"); folder != nullptr && *folder == '/') return folder;
  const char* home = std::getenv("HOME");
  return std::filesystem::path(home != nullptr ? home : "/") / ".local" / "share";
}

std::optional<std::string> DriveFolder(char letter) {
  if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  if (letter < 'a' || letter > 'z') return std::nullopt;
  return std::string(1, letter);
}

}  // namespace

std::filesystem::path DefaultDrivesFolder() { return UserDataFolder() / "tolmar" / "drives"; }

std::optional<std::filesystem::path> FileAt(std::string_view path, const std::filesystem::path& drivesFolder) {
  if (path.size() < 2 || path[1] != ':') return std::nullopt;
  const auto drive = DriveFolder(path[0]);
  if (!drive) return std::nullopt;
  auto file = drivesFolder / *drive;
  path.remove_prefix(2);
  while (!path.empty()) {
    const auto end = std::min(path.find_first_of("\\/"), path.size());
    const auto part = path.substr(0, end);
    if (part == "..") return std::nullopt;
    if (!part.empty() && part != ".") file /= part;
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return file;
}

}  // namespace orlin
