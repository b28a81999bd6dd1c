#include "app/command_line/language.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "app/usage/suggestion.h"
#include "app/usage/usage_error.h"
#include "catalogue/languages.h"

namespace orlin {

std::string LanguageOfEnvironment() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

std::vector<std::string> KnownLanguages() {
  std::vector<std::string> known;
  for (const auto& one : Languages()) known.emplace_back(one.Name);
  return known;
}

void CheckLanguage(const std::string& name) {
  // An unknown language is taken for English.
  const auto language = name.substr(0, name.find_first_of("_-.@"));
  const bool english = language == "en" || language == "EN" || language == "C" || language == "POSIX";
  if (english || LanguageOf(name).Name != "en") return;
  throw UsageError("--language: there are no texts in " + name + ", but in " + Enumerated(KnownLanguages(), "and"));
}

}  // namespace orlin
