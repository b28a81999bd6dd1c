#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/platform/platform_error.h"

namespace orlin {

/// A text file, line by line. Lines end with LF or CR LF, which are not part of them; a byte order mark of UTF-8 in
/// front of the first is skipped.
///
///     TextFile file("texts.tsv");
///     while (file.Next()) use(file.Line());
class TextFile {
 public:
  /// Reads the whole file. `PlatformError` where it cannot be read, or is in UTF-16.
  explicit TextFile(const std::filesystem::path& path);

  /// Goes to the first or the next line; false behind the last.
  bool Next();
  /// The current line, as long as the file lives.
  [[nodiscard]] std::string_view Line() const noexcept { return line_; }
  /// `PlatformError` with the name of the file and the number of the current line in front: "texts.tsv:12: ...".
  [[noreturn]] void Fail(const std::string& what) const;

 private:
  std::string name_;
  std::string text_;
  std::size_t next_ = 0;
  std::string_view line_;
  int number_ = 0;
};

}  // namespace orlin
