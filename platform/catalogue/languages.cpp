#include "catalogue/languages.h"

#include <algorithm>

namespace orlin {
namespace {

char Plain(char c) {
  if (c == '-') return '_';
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

const Language* Named(std::string_view name) {
  const auto languages = Languages();
  const auto found = std::ranges::find_if(languages, [name](const Language& language) {
    return std::ranges::equal(language.Name, name, {}, Plain, Plain);
  });
  return found != languages.end() ? &*found : nullptr;
}

}  // namespace

std::string_view Language::Find(std::int16_t number) const noexcept {
  const auto found = std::ranges::lower_bound(Texts, number, {}, &CompiledText::Number);
  return found != Texts.end() && found->Number == number ? found->Text : std::string_view();
}

const Language& LanguageOf(std::string_view name) noexcept {
  // A country may have texts of its own (pt_BR); otherwise it takes those of its language.
  for (const char* ends : {".@", ".@_-"}) {
    if (const auto* language = Named(name.substr(0, name.find_first_of(ends)))) return *language;
  }
  return *Named("en");
}

}  // namespace orlin
