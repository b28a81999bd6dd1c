#include "script/text_literal.h"

#include <cwchar>
#include <locale>

namespace orlin {
namespace {

char Unescaped(char escape) {
  switch (escape) {
    case '"':
    case '\\':
      return escape;
    case 't':
      return '\t';
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    default:
      throw BadText(std::string("\\") + escape + " is no escape of a text: they are \\\" \\\\ \\t \\n \\r");
  }
}

}  // namespace

std::string ReadQuoted(std::string_view& rest) {
  std::string text;
  for (std::size_t at = 1; at < rest.size(); ++at) {
    if (rest[at] == '"') {
      rest.remove_prefix(at + 1);
      return text;
    }
    const bool escaped = rest[at] == '\\';
    if (escaped && ++at == rest.size()) break;
    text.push_back(escaped ? Unescaped(rest[at]) : rest[at]);
  }
  throw BadText("the text has no closing quote");
}

std::optional<std::u32string> CharactersOf(std::string_view text) {
  const auto& utf8 = std::use_facet<std::codecvt<char32_t, char8_t, std::mbstate_t>>(std::locale::classic());
  const auto* const begin = reinterpret_cast<const char8_t*>(text.data());
  const auto* read = begin;
  std::u32string characters(text.size(), U'\0');
  auto* written = characters.data();
  std::mbstate_t state{};
  const auto result = utf8.in(state, begin, begin + text.size(), read, written, written + characters.size(), written);
  if (result != std::codecvt_base::ok) return std::nullopt;
  characters.resize(static_cast<std::size_t>(written - characters.data()));
  return characters;
}

}  // namespace orlin
