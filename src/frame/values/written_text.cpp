#include "OrlinCustomDialogs/written_text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace orlin {
namespace {

// Stray bytes stand as the characters 0xDC80 to 0xDCFF, which no UTF-8 text holds.
constexpr char32_t kStrayByte = 0xDC00;

struct Decoded {
  char32_t Character;
  std::size_t Bytes;
};

unsigned char ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

Decoded DecodeAt(std::string_view text, std::size_t at) {
  const auto first = ByteAt(text, at);
  if (first < 0x80) return {first, 1};
  const Decoded stray{kStrayByte + first, 1};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 0;
  if (length == 0 || first > 0xF4 || at + length > text.size()) return stray;
  auto character = static_cast<char32_t>(first & (0xFFU >> (length + 1)));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = ByteAt(text, at + i);
    if ((next & 0xC0) != 0x80) return stray;
    character = (character << 6) | (next & 0x3FU);
  }
  const char32_t smallest = length == 4 ? 0x10000 : length == 3 ? 0x800 : 0x80;
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < smallest || character > 0x10FFFF || surrogate) return stray;
  return {character, length};
}

void Append(std::string& text, char32_t character) {
  const auto byte = [&text](char32_t bits) { text.push_back(static_cast<char>(bits)); };
  if (IsStrayByte(character)) {
    byte(character - kStrayByte);
  } else if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xC0 | (character >> 6));
    byte(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    byte(0xE0 | (character >> 12));
    byte(0x80 | ((character >> 6) & 0x3F));
    byte(0x80 | (character & 0x3F));
  } else {
    byte(0xF0 | (character >> 18));
    byte(0x80 | ((character >> 12) & 0x3F));
    byte(0x80 | ((character >> 6) & 0x3F));
    byte(0x80 | (character & 0x3F));
  }
}

struct Escape {
  char Letter, Meaning;
};
constexpr std::array<Escape, 5> kEscapes{{{'t', '\t'}, {'n', '\n'}, {'r', '\r'}, {'\\', '\\'}, {'"', '"'}}};

}  // namespace

std::u32string FromUtf8(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const auto decoded = DecodeAt(text, at);
    characters.push_back(decoded.Character);
    at += decoded.Bytes;
  }
  return characters;
}

std::string ToUtf8(std::u32string_view characters) {
  std::string text;
  text.reserve(characters.size());
  for (const auto character : characters) Append(text, character);
  return text;
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const auto decoded = DecodeAt(text, at);
    if (IsStrayByte(decoded.Character)) return false;
    at += decoded.Bytes;
  }
  return true;
}

int CharacterCount(std::string_view text) {
  int count = 0;
  for (std::size_t at = 0; at < text.size(); at += DecodeAt(text, at).Bytes) ++count;
  return count;
}

char32_t SmallLetter(char32_t letter) noexcept {
  const bool capital = (letter >= U'A' && letter <= U'Z') || (letter >= 0xC0 && letter <= 0xDE && letter != 0xD7);
  return capital ? letter + 0x20 : letter;
}

std::optional<char> Unescaped(char letter) noexcept {
  const auto* const found = std::find_if(kEscapes.begin(), kEscapes.end(),
                                         [letter](const Escape& escape) { return escape.Letter == letter; });
  return found != kEscapes.end() ? std::optional(found->Meaning) : std::nullopt;
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    const auto* const found =
        std::find_if(kEscapes.begin(), kEscapes.end(), [c](const Escape& escape) { return escape.Meaning == c; });
    if (found != kEscapes.end()) escaped.push_back('\\');
    escaped.push_back(found != kEscapes.end() ? found->Letter : c);
  }
  return escaped;
}

}  // namespace orlin
