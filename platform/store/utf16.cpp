#include "store/utf16.h"

#include <array>
#include <cstdint>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {
namespace {

constexpr char32_t kFirstBeyond = 0x10000;
constexpr char32_t kReplacement = 0xFFFD;

bool IsHigh(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// Takes one character off the text.
char32_t NextOf(std::string_view& text) {
  // How many bytes follow, by the first byte; the bits that it gives; the least character that needs so many.
  struct Form {
    unsigned Mask, Mark;
    std::size_t Following;
    char32_t Least;
  };
  constexpr std::array<Form, 4> forms{
      {{0x80, 0x00, 0, 0}, {0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, kFirstBeyond}}};
  const auto first = static_cast<unsigned char>(text.front());
  for (const auto& form : forms) {
    if ((first & form.Mask) != form.Mark) continue;
    if (text.size() <= form.Following) break;
    auto character = static_cast<char32_t>(first & ~form.Mask);
    for (std::size_t i = 1; i <= form.Following; ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      if ((byte & 0xC0U) != 0x80U) throw Failure(failures::DatabaseCallFailed);
      character = (character << 6U) | (byte & 0x3FU);
    }
    if (character < form.Least || character > 0x10FFFF || IsHigh(character) || IsLow(character)) break;
    text.remove_prefix(form.Following + 1);
    return character;
  }
  throw Failure(failures::DatabaseCallFailed);
}

void Append(std::string& text, char32_t character) {
  const auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  const auto follow = [&](unsigned shift) { put(0x80U | ((character >> shift) & 0x3FU)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0U | (character >> 6U));
    follow(0);
  } else if (character < kFirstBeyond) {
    put(0xE0U | (character >> 12U));
    follow(6);
    follow(0);
  } else {
    put(0xF0U | (character >> 18U));
    follow(12);
    follow(6);
    follow(0);
  }
}

}  // namespace

std::u16string Utf16From(std::string_view utf8) {
  std::u16string units;
  units.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto character = NextOf(utf8);
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
  std::string text;
  text.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t character = utf16[i];
    if (IsHigh(character) && i + 1 < utf16.size() && IsLow(utf16[i + 1])) {
      character = kFirstBeyond + ((character - 0xD800) << 10U) + (utf16[++i] - 0xDC00U);
    } else if (IsHigh(character) || IsLow(character)) {
      character = kReplacement;
    }
    Append(text, character);
  }
  return text;
}

}  // namespace orlin
