#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/value.h"

namespace orlin {

// Two ways to read a number, never mixed. `NumericValue` takes what a text begins with and never fails; the
// conversions below take a value as a whole or fail.

/// The longest leading number of a text, blanks before it passed over, or 0. "&H" begins a hexadecimal number, which
/// is read as a positive number of any size.
[[nodiscard]] double NumericValue(std::string_view text) noexcept;
/// The same without hexadecimal numbers: "&HF" is 0.
[[nodiscard]] double DecimalValue(std::string_view text) noexcept;

/// Whether a text is a number as a whole: blanks, a sign, digits with or without a fraction and an exponent, blanks.
[[nodiscard]] bool IsNumeric(std::string_view text) noexcept;
[[nodiscard]] inline bool IsNumeric(const std::string& text) noexcept { return IsNumeric(std::string_view(text)); }
/// Whether a value is a number, a boolean, empty, or such a text.
[[nodiscard]] bool IsNumeric(const Value& value) noexcept;

// An empty value is 0, true is -1. Halves go to the even neighbour. `Failure` 13 where the value is no number,
// 6 where it does not fit.
[[nodiscard]] std::int16_t ToInteger(const Value& value);
[[nodiscard]] std::int32_t ToLong(const Value& value);
[[nodiscard]] double ToDouble(const Value& value);
[[nodiscard]] std::uint8_t ToByte(const Value& value);
/// A number other than 0 is true, and so are the texts "True" and "False" what they say, in any case.
[[nodiscard]] bool ToBoolean(const Value& value);
/// A text as it stands, a number in decimal digits without a leading blank, an empty text for an empty value.
/// `Failure` 13 for an array or an object.
[[nodiscard]] std::string ToText(const Value& value);
/// The array that a value holds; `Failure` 13 for any other value.
[[nodiscard]] const Array& AsArray(const Value& value);
[[nodiscard]] Array& AsArray(Value& value);

/// Capitals, no leading zeros.
[[nodiscard]] std::string HexText(std::int32_t number);
/// The number that hexadecimal digits without a prefix write, such as "F8"; 0 where there are none. `Failure` 13 for
/// an array or an object.
[[nodiscard]] double HexNumber(const Value& digits);
/// A text with at least two characters, or one more than it had: "5" becomes "05".
[[nodiscard]] std::string WithLeadingZero(const std::string& text);
/// A number with at least two digits: 7 is "07".
[[nodiscard]] std::string TwoDigits(int number);

/// `length` characters from `start`, counted from 1, or as many as there are.
[[nodiscard]] std::string Mid(std::string_view text, int start, int length);
[[nodiscard]] std::string Left(std::string_view text, int length);

/// Whether two names are the same without regard to case.
[[nodiscard]] bool SameName(std::string_view a, std::string_view b) noexcept;

}  // namespace orlin
