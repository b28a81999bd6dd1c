#pragma once

#include <string>
#include <string_view>

namespace orlin {

/// The characters of a text. A byte that is no UTF-8 becomes a character of its own, which `ToUtf8` turns into that
/// byte again, so that stored data survives being shown.
[[nodiscard]] std::u32string FromUtf8(std::string_view text);
[[nodiscard]] std::string ToUtf8(std::u32string_view characters);

/// The letter that stands for a letter in either case: enough for those of western languages.
[[nodiscard]] char32_t SmallLetter(char32_t letter) noexcept;

/// The number of characters of a text.
[[nodiscard]] int CharacterCount(std::string_view text);

}  // namespace orlin
