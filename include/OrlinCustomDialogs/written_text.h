#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace [[using gnu: visibility("default")]] orlin {

/// The characters of a text. A byte that is no UTF-8 becomes a character of its own, which `ToUtf8` turns into that
/// byte again, so that stored data survives being shown.
[[nodiscard]] std::u32string FromUtf8(std::string_view text);
[[nodiscard]] std::string ToUtf8(std::u32string_view characters);

/// Whether a character stands for a byte that is no UTF-8.
[[nodiscard]] constexpr bool IsStrayByte(char32_t character) { return character >= 0xDC80 && character <= 0xDCFF; }

/// Whether all of a text is UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view text);

/// The number of characters of a text.
[[nodiscard]] int CharacterCount(std::string_view text);

/// The letter that stands for a letter in either case: enough for those of western languages.
[[nodiscard]] char32_t SmallLetter(char32_t letter) noexcept;

/// What a letter behind a backslash stands for in the files and lines of this system: \t \n \r \\ \". Nothing for
/// others.
[[nodiscard]] std::optional<char> Unescaped(char letter) noexcept;

/// The text with these escapes.
[[nodiscard]] std::string Escaped(std::string_view text);

}  // namespace orlin
