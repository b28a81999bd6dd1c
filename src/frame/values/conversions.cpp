#include "frame/values/conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/written_text.h"

namespace orlin {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const auto first = std::find_if_not(text.begin(), text.end(), IsBlank);
  return text.substr(static_cast<std::size_t>(first - text.begin()));
}

std::string_view WithoutBlanks(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::size_t CountDigits(std::string_view text, std::size_t from) {
  std::size_t count = 0;
  while (from + count < text.size() && IsDigit(text[from + count])) ++count;
  return count;
}

/// How many characters of the text its longest leading number takes: a sign, digits with or without a fraction, and
/// an exponent if it is whole.
std::size_t LengthOfNumber(std::string_view text) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  const auto whole = CountDigits(text, at);
  at += whole;
  std::size_t fraction = 0;
  if (at < text.size() && text[at] == '.') {
    fraction = CountDigits(text, at + 1);
    if (whole + fraction > 0) at += 1 + fraction;
  }
  if (whole + fraction == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    auto exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    if (const auto digits = CountDigits(text, exponent); digits > 0) at = exponent + digits;
  }
  return at;
}

/// The number that exactly these characters write; infinite where it is too large for any type.
double ReadNumber(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range) {
    const auto exponent = text.find_first_of("eE");
    const bool tiny = exponent != std::string_view::npos && text.find('-', exponent) != std::string_view::npos;
    number = tiny ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -number : number;
}

std::optional<double> ReadWhole(std::string_view text) {
  text = WithoutBlanks(text);
  if (text.empty() || LengthOfNumber(text) != text.size()) return std::nullopt;
  return ReadNumber(text);
}

double RoundHalfToEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

/// A number of a whole type; `Failure` 6 where it does not fit.
template <class Whole>
Whole Fit(double number) {
  const double rounded = RoundHalfToEven(number);
  // Written so that a number that is no number does not fit either.
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    throw Failure(failures::Overflow);
  }
  return static_cast<Whole>(rounded);
}

std::string DecimalText(double number) {
  std::array<char, 32> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                    std::abs(number) < 1e15 ? std::chars_format::fixed : std::chars_format::general);
  if (error == std::errc()) return {buffer.data(), end};
  const auto general = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general);
  return {buffer.data(), general.ptr};
}

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

double DecimalValue(std::string_view text) noexcept {
  text = WithoutLeadingBlanks(text);
  return ReadNumber(text.substr(0, LengthOfNumber(text)));
}

double NumericValue(std::string_view text) noexcept {
  text = WithoutLeadingBlanks(text);
  if (text.size() < 2 || text[0] != '&' || LowerCase(text[1]) != 'h') return DecimalValue(text);
  double number = 0;
  for (const char c : text.substr(2)) {
    const char digit = LowerCase(c);
    if (IsDigit(digit)) {
      number = number * 16 + (digit - '0');
    } else if (digit >= 'a' && digit <= 'f') {
      number = number * 16 + (digit - 'a' + 10);
    } else {
      break;
    }
  }
  return number;
}

bool IsNumeric(std::string_view text) noexcept {
  const auto number = ReadWhole(text);
  return number && std::isfinite(*number);
}

bool IsNumeric(const Value& value) noexcept {
  if (const auto* text = value.Get<std::string>()) return IsNumeric(std::string_view(*text));
  return value.kind() != Value::Kind::Array && value.kind() != Value::Kind::Object;
}

double ToDouble(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Empty:
      return 0;
    case Value::Kind::Integer:
      return *value.Get<std::int16_t>();
    case Value::Kind::Long:
      return *value.Get<std::int32_t>();
    case Value::Kind::Double:
      return *value.Get<double>();
    case Value::Kind::Boolean:
      return *value.Get<bool>() ? -1 : 0;
    case Value::Kind::String:
      if (const auto number = ReadWhole(*value.Get<std::string>())) {
        if (!std::isfinite(*number)) throw Failure(failures::Overflow);
        return *number;
      }
      break;
    case Value::Kind::Array:
    case Value::Kind::Object:
      break;
  }
  throw Failure(failures::TypeMismatch);
}

std::int16_t ToInteger(const Value& value) { return Fit<std::int16_t>(ToDouble(value)); }

std::int32_t ToLong(const Value& value) { return Fit<std::int32_t>(ToDouble(value)); }

std::uint8_t ToByte(const Value& value) { return Fit<std::uint8_t>(ToDouble(value)); }

bool ToBoolean(const Value& value) {
  if (const auto* text = value.Get<std::string>()) {
    const auto word = WithoutBlanks(*text);
    if (SameName(word, "true")) return true;
    if (SameName(word, "false")) return false;
  }
  return ToDouble(value) != 0;
}

std::string ToText(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Empty:
      return {};
    case Value::Kind::Integer:
      return std::to_string(*value.Get<std::int16_t>());
    case Value::Kind::Long:
      return std::to_string(*value.Get<std::int32_t>());
    case Value::Kind::Double:
      return DecimalText(*value.Get<double>());
    case Value::Kind::Boolean:
      return *value.Get<bool>() ? "True" : "False";
    case Value::Kind::String:
      return *value.Get<std::string>();
    case Value::Kind::Array:
    case Value::Kind::Object:
      break;
  }
  throw Failure(failures::TypeMismatch);
}

const Array& AsArray(const Value& value) {
  const auto* array = value.Get<Array>();
  if (array == nullptr) throw Failure(failures::TypeMismatch);
  return *array;
}

Array& AsArray(Value& value) { return const_cast<Array&>(AsArray(std::as_const(value))); }

std::string HexText(std::int32_t number) {
  std::array<char, 8> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<std::uint32_t>(number), 16);
  std::string text(buffer.data(), end);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
  return text;
}

double HexNumber(const Value& digits) { return NumericValue("&H" + ToText(digits)); }

std::string WithLeadingZero(const std::string& text) { return CharacterCount(text) < 2 ? "0" + text : text; }

std::string TwoDigits(int number) {
  const auto digits = std::to_string(number);
  return number >= 0 && number < 10 ? "0" + digits : digits;
}

std::string Mid(std::string_view text, int start, int length) {
  const auto characters = FromUtf8(text);
  const auto first = static_cast<std::size_t>(std::max(start, 1) - 1);
  if (first >= characters.size() || length <= 0) return {};
  return ToUtf8(std::u32string_view(characters).substr(first, static_cast<std::size_t>(length)));
}

std::string Left(std::string_view text, int length) { return Mid(text, 1, length); }

bool SameName(std::string_view a, std::string_view b) noexcept {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char left, char right) { return LowerCase(left) == LowerCase(right); });
}

}  // namespace orlin
