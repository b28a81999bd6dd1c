#include "catalogue/catalogue_file.h"

#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>
#include <system_error>

#include "files/text_file.h"

namespace orlin {
namespace {

// The length of the UTF-8 character at the start of a text, or 0 where none stands there.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const auto first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Longer forms than needed, surrogates, and what lies beyond the last character.
  const bool overlong = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
  const bool surrogate = first == 0xED && byte(1) > 0x9F;
  const bool beyond = first == 0xF4 && byte(1) > 0x8F;
  return overlong || surrogate || beyond ? 0 : length;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const auto length = CharacterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::optional<std::int16_t> ReadNumber(std::string_view digits) {
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size() || number < 1) return std::nullopt;
  return number;
}

std::optional<char> Unescaped(char letter) {
  switch (letter) {
    case 't':
      return '\t';
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case '\\':
      return '\\';
    default:
      return std::nullopt;
  }
}

std::optional<std::string> ReadText(std::string_view escaped) {
  std::string text;
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    if (escaped[at] != '\\') {
      text.push_back(escaped[at]);
      continue;
    }
    if (++at == escaped.size()) return std::nullopt;
    const auto character = Unescaped(escaped[at]);
    if (!character) return std::nullopt;
    text.push_back(*character);
  }
  return text;
}

bool IsSkipped(std::string_view line) {
  return line.starts_with('#') || line.find_first_not_of(" \t") == std::string_view::npos;
}

}  // namespace

TextTable ReadCatalogueFile(const std::filesystem::path& path) {
  TextTable texts;
  TextFile file(path);
  while (file.Next()) {
    const auto line = file.Line();
    if (!IsUtf8(line)) file.Fail("these bytes are no UTF-8");
    if (IsSkipped(line)) continue;
    const auto tab = line.find('\t');
    if (tab == std::string_view::npos) file.Fail("a tab has to stand between number and text");
    const auto number = ReadNumber(line.substr(0, tab));
    if (!number) file.Fail("a number from 1 to 32767 has to stand before the tab");
    auto text = ReadText(line.substr(tab + 1));
    if (!text) file.Fail("an unknown escape; a backslash stands before t, n, r or another backslash");
    if (!texts.emplace(*number, std::move(*text)).second) {
      file.Fail("the number " + std::to_string(*number) + " is there already");
    }
  }
  return texts;
}

}  // namespace orlin
