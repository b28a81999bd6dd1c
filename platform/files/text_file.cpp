#include "files/text_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

namespace orlin {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleEndianMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianMark = "\xFE\xFF";

std::string ReadAll(const std::filesystem::path& path) {
  std::string text;
  std::array<char, 4096> buffer{};
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  while (file.read(buffer.data(), buffer.size()) || file.gcount() > 0) {
    text.append(buffer.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (!file.is_open() || file.bad()) {
    throw PlatformError(path.string() + " cannot be read: " + std::generic_category().message(errno));
  }
  return text;
}

}  // namespace

TextFile::TextFile(const std::filesystem::path& path) : name_(path.string()), text_(ReadAll(path)) {
  if (text_.starts_with(kUtf16LittleEndianMark) || text_.starts_with(kUtf16BigEndianMark)) {
    throw PlatformError(name_ + " is in UTF-16; save it as UTF-8");
  }
  if (text_.starts_with(kUtf8Mark)) next_ = kUtf8Mark.size();
}

bool TextFile::Next() {
  if (next_ >= text_.size()) return false;
  const auto end = std::min(text_.find('\n', next_), text_.size());
  line_ = std::string_view(text_).substr(next_, end - next_);
  if (line_.ends_with('\r')) line_.remove_suffix(1);
  next_ = end + 1;
  ++number_;
  return true;
}

void TextFile::Fail(const std::string& what) const {
  throw PlatformError(name_ + ":" + std::to_string(number_) + ": " + what);
}

}  // namespace orlin
