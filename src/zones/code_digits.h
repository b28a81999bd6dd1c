#pragma once

#include <string_view>

#include "frame/values/conversions.h"

namespace orlin {

// The digit at a place of a code, counted from 1; 0 where no such digit stands there.

[[nodiscard]] inline int DecimalDigitAt(std::string_view code, int place) {
  return static_cast<int>(NumericValue(Mid(code, place, 1)));
}

[[nodiscard]] inline int HexDigitAt(std::string_view code, int place) {
  return static_cast<int>(HexNumber(Mid(code, place, 1)));
}

}  // namespace orlin
