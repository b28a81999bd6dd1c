#include "store/utf16.h"

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/written_text.h"

namespace orlin {
namespace {

constexpr char32_t kFirstBeyond = 0x10000;
constexpr char32_t kReplacement = 0xFFFD;

bool IsHigh(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

std::u16string Utf16From(std::string_view utf8) {
  std::u16string units;
  units.reserve(utf8.size());
  for (const auto character : FromUtf8(utf8)) {
    if (IsStrayByte(character)) throw Failure(failures::DatabaseCallFailed);
    if (character < kFirstBeyond) {
      units += static_cast<char16_t>(character);
    } else {
      units += static_cast<char16_t>(0xD800 + ((character - kFirstBeyond) >> 10U));
      units += static_cast<char16_t>(0xDC00 + ((character - kFirstBeyond) & 0x3FFU));
    }
  }
  return units;
}

std::string Utf8From(std::u16string_view utf16) {
  std::u32string characters;
  characters.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t character = utf16[i];
    if (IsHigh(character) && i + 1 < utf16.size() && IsLow(utf16[i + 1])) {
      character = kFirstBeyond + ((character - 0xD800) << 10U) + (utf16[++i] - 0xDC00U);
    } else if (IsHigh(character) || IsLow(character)) {
      character = kReplacement;
    }
    characters += character;
  }
  return ToUtf8(characters);
}

}  // namespace orlin
