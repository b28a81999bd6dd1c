#pragma once

#include <string>

#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// The text that `ParseValue` reads as that very value, its kind included. `UsageError` for what has no such text: an
/// object, infinity, a NaN, an array that does not begin at index 0.
[[nodiscard]] std::string FormatValue(const Value& value);

}  // namespace orlin
