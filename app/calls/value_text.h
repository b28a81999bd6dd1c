#pragma once

#include <string>
#include <string_view>

#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// The value that a text of the command line stands for; `UsageError` where it begins as a text or an array and is
/// none, or where a number is too large.
///
///     5  -5         Integer, or Long or Double where it does not fit
///     5L            Long
///     2.5  5D       Double
///     true  false  empty
///     "text"        String, with the escapes of a script
///     [1,0,"x"*3]   Array from index 0; V*N stands for N times V
///     other         String as it stands
[[nodiscard]] Value ParseValue(std::string_view text);

/// The whole text as a decimal 16-bit integer; `UsageError` where it is none.
[[nodiscard]] std::int16_t ParseInteger(std::string_view text);

/// The text that `ParseValue` reads as that very value, its kind included. `UsageError` for what has no such text: an
/// object, infinity, a NaN, an array that does not begin at index 0.
[[nodiscard]] std::string FormatValue(const Value& value);

}  // namespace orlin
