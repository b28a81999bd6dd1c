#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orlin {

struct CompiledText {
  std::int16_t Number;
  std::string_view Text;
};

/// One file of catalogue/: `de` from de.tsv.
struct Language {
  std::string_view Name;
  std::span<const CompiledText> Texts;  ///< in the order of their numbers

  /// Empty where the language lacks the text.
  [[nodiscard]] std::string_view Find(std::int16_t number) const noexcept;
};

/// The languages that are compiled in.
[[nodiscard]] std::span<const Language> Languages() noexcept;

/// The language of a user, named as in `LANG`: `de`, `de_DE.UTF-8`, `de-AT`, in any case of letters. English where
/// there is none of that name, and for `C`, `POSIX` and an empty name.
[[nodiscard]] const Language& LanguageOf(std::string_view name) noexcept;

}  // namespace orlin
