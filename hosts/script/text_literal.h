#pragma once

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

/// The text in double quotes, as `ReadQuoted` reads it.
[[nodiscard]] std::string Quoted(std::string_view text);

}  // namespace orlin
