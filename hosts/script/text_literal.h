#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orlin {

/// A text in double quotes that does not end, or has an unknown escape.
class BadText : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the text in double quotes that `rest` begins with, and drops it from there. Escapes: \" \\ \t \n \r
[[nodiscard]] std::string ReadQuoted(std::string_view& rest);

/// The characters of a UTF-8 text; nothing where it is none.
[[nodiscard]] std::optional<std::u32string> CharactersOf(std::string_view text);

}  // namespace orlin
