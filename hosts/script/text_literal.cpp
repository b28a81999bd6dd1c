#include "script/text_literal.h"

#include "OrlinCustomDialogs/written_text.h"

namespace orlin {

std::string ReadQuoted(std::string_view& rest) {
  std::string text;
  for (std::size_t at = 1; at < rest.size(); ++at) {
    if (rest[at] == '"') {
      rest.remove_prefix(at + 1);
      return text;
    }
    if (rest[at] != '\\') {
      text.push_back(rest[at]);
      continue;
    }
    if (++at == rest.size()) break;
    const auto character = Unescaped(rest[at]);
    if (!character) {
      throw BadText(std::string("\\") + rest[at] + " is no escape of a text: they are \\\" \\\\ \\t \\n \\r");
    }
    text.push_back(*character);
  }
  throw BadText("the text has no closing quote");
}

std::string Quoted(std::string_view text) { return '"' + Escaped(text) + '"'; }

}  // namespace orlin
