#include "app/calls/value_format.h"

#include <array>
#include <charconv>
#include <cmath>

#include "app/command_line/usage_error.h"

namespace orlin {
namespace {

// From here on equal neighbours in an array are counted instead of repeated.
constexpr std::size_t kShortestRun = 4;

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    switch (c) {
      case '"':
      case '\\':
        quoted.append({'\\', c});
        break;
      case '\t':
        quoted.append("\\t");
        break;
      case '\n':
        quoted.append("\\n");
        break;
      case '\r':
        quoted.append("\\r");
        break;
      default:
        quoted.push_back(c);
    }
  }
  return quoted + '"';
}

std::string Decimal(double number) {
  if (!std::isfinite(number)) throw UsageError("infinity, or what is not a number, cannot be kept");
  std::array<char, 512> text{};  // the largest number has 309 digits
  const auto written = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  std::string decimal(text.data(), written.ptr);
  return decimal.find('.') == std::string::npos ? decimal + 'D' : decimal;
}

std::string Bracketed(const Array& array) {
  if (array.LowerBound() != 0) throw UsageError("an array that does not begin at 0 cannot be kept");
  const auto& elements = array.Elements();
  std::string text = "[";
  for (std::size_t i = 0; i < elements.size();) {
    std::size_t run = 1;
    while (i + run < elements.size() && elements[i + run] == elements[i]) ++run;
    const auto element = FormatValue(elements[i]);
    const bool counted = run >= kShortestRun;
    for (std::size_t told = 0; told < (counted ? 1 : run); ++told) text.append(i + told > 0 ? "," : "").append(element);
    if (counted) text.append("*").append(std::to_string(run));
    i += run;
  }
  return text + ']';
}

}  // namespace

std::string FormatValue(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Empty:
      return "empty";
    case Value::Kind::Integer:
      return std::to_string(*value.Get<std::int16_t>());
    case Value::Kind::Long:
      return std::to_string(*value.Get<std::int32_t>()) + 'L';
    case Value::Kind::Double:
      return Decimal(*value.Get<double>());
    case Value::Kind::Boolean:
      return *value.Get<bool>() ? "true" : "false";
    case Value::Kind::String:
      return Quoted(*value.Get<std::string>());
    case Value::Kind::Array:
      return Bracketed(*value.Get<Array>());
    case Value::Kind::Object:
      break;
  }
  throw UsageError("an object cannot be kept");
}

}  // namespace orlin
