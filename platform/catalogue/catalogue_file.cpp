#include "catalogue/catalogue_file.h"

#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>
#include <system_error>

#include "OrlinCustomDialogs/written_text.h"

#include "files/text_file.h"

namespace orlin {
namespace {

std::optional<std::int16_t> ReadNumber(std::string_view digits) {
  std::int16_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size() || number < 1) return std::nullopt;
  return number;
}

std::optional<std::string> ReadText(std::string_view escaped) {
  std::string text;
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    if (escaped[at] != '\\') {
      text.push_back(escaped[at]);
      continue;
    }
    // Nothing needs a quotation mark to be escaped here.
    if (++at == escaped.size() || escaped[at] == '"') return std::nullopt;
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
