#pragma once

#include <string>
#include <vector>

namespace orlin {

/// The language that the environment asks for in `LC_ALL`, `LC_MESSAGES` or `LANG`, as a locale names it; empty where
/// it asks for none.
[[nodiscard]] std::string LanguageOfEnvironment();

/// The names of the languages that there are texts in.
[[nodiscard]] std::vector<std::string> KnownLanguages();

/// `UsageError` for a language that there are no texts in. English has other names too: "C", "POSIX".
void CheckLanguage(const std::string& name);

}  // namespace orlin
