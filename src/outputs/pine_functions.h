#pragma once

#include <cstdint>
#include <string>

// The output functions of the Pine panel and its kin, by panel-type code.

namespace orlin {

/// A function code as the operator reads it: two numbers, the second 0 to 15.
struct FunctionPair {
  int First = 0;
  int Second = 0;
};

inline constexpr int kSecondNumbers = 16;
inline constexpr std::int16_t kHighestFirst = 8;

/// The highest second number that goes with the highest first one.
[[nodiscard]] std::int16_t HighestSecond(std::int32_t panelType);

/// Whether the list has a row for the pair on some panel.
[[nodiscard]] bool IsFunction(const FunctionPair& pair);

/// The row of a function, counted from 0.
[[nodiscard]] int RowOf(const FunctionPair& pair);

/// What stands before the text of a row: the two numbers in aligned columns. `value` is 16 times the first number plus
/// the second.
[[nodiscard]] std::string MakeCodePrefix(int value);

/// The text of a function on a panel.
[[nodiscard]] std::string FunctionText(const FunctionPair& pair, std::int32_t panelType);

}  // namespace orlin
