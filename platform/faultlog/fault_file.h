#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace orlin {

/// The file that all fault objects of a program write to. It never fails: where it cannot be written, one line on the
/// standard error says so, once.
class FaultFile {
 public:
  /// Nothing: each record goes to the file that its fault object names, in the current folder.
  explicit FaultFile(std::optional<std::filesystem::path> file = {});

  /// Appends one line. `fallback`: the file where none was named.
  void Append(const std::filesystem::path& fallback, std::string_view line);

 private:
  std::optional<std::filesystem::path> file_;
  bool warned_ = false;
};

}  // namespace orlin
