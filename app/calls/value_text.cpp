#include "app/calls/value_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/usage/usage_error.h"
#include "script/text_literal.h"

namespace orlin {
namespace {

constexpr std::size_t kMostElements = 100'000;  // of an array and all arrays in it
constexpr int kDeepestArray = 32;

bool IsDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The number that the whole text writes; nothing where it writes none, or one that does not fit.
template <class Number>
std::optional<Number> Read(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

template <class Number>
Value ReadFitting(std::string_view digits, std::string_view text, const char* kind) {
  const auto number = Read<Number>(digits);
  if (!number) throw UsageError(std::string(text) + " does not fit a " + kind);
  return *number;
}

Value ReadWhole(std::string_view text) {
  if (const auto number = Read<std::int16_t>(text)) return *number;
  if (const auto number = Read<std::int32_t>(text)) return *number;
  return ReadFitting<double>(text, text, "Double");
}

/// A value without quotes or brackets.
Value ReadWord(std::string_view text) {
  if (text == "true") return true;
  if (text == "false") return false;
  if (text == "empty") return {};

  const auto digits = text.substr(text.starts_with('-') ? 1 : 0);
  if (IsDigits(digits)) return ReadWhole(text);
  const auto withoutMark = text.substr(0, text.size() - (text.empty() ? 0 : 1));
  if (text.ends_with('L') && IsDigits(digits.substr(0, digits.size() - 1))) {
    return ReadFitting<std::int32_t>(withoutMark, text, "Long");
  }
  const bool marked = text.ends_with('D');
  const auto number = marked ? digits.substr(0, digits.size() - 1) : digits;
  const auto point = number.find('.');
  const bool fraction =
      point != std::string_view::npos && IsDigits(number.substr(0, point)) && IsDigits(number.substr(point + 1));
  if (fraction || (marked && IsDigits(number))) {
    return ReadFitting<double>(marked ? withoutMark : text, text, "Double");
  }
  return text;
}

/// Reads values from the begin of a text, with blanks between their parts.
class ValueReader {
 public:
  explicit ValueReader(std::string_view text) : rest_(text) {}

  Value Quoted() {
    try {
      return ReadQuoted(rest_);
    } catch (const BadText& bad) {
      throw UsageError(bad.what());
    }
  }

  Value ArrayOfValues() {
    if (++depth_ > kDeepestArray) throw UsageError("arrays stand in arrays too deep");
    rest_.remove_prefix(1);
    std::vector<Value> elements;
    if (!Take(']')) {
      do {
        AddElements(elements);
      } while (Take(','));
      if (!Take(']')) throw UsageError("the array has no closing bracket");
    }
    --depth_;
    return Array(std::move(elements));
  }

  void End() const {
    if (!rest_.empty()) throw UsageError("nothing may follow the value, but " + std::string(rest_) + " does");
  }

 private:
  void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

  bool Take(char wanted) {
    SkipBlanks();
    if (!rest_.starts_with(wanted)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  Value Element() {
    SkipBlanks();
    if (rest_.starts_with('"')) return Quoted();
    if (rest_.starts_with('[')) return ArrayOfValues();
    const auto word = Word();
    if (word.empty()) throw UsageError("a value is missing in the array");
    return ReadWord(word);
  }

  std::string_view Word() {
    auto word = rest_.substr(0, rest_.find_first_of(",]*"));
    rest_.remove_prefix(word.size());
    while (word.ends_with(' ')) word.remove_suffix(1);
    return word;
  }

  /// An element, as often as it is told.
  void AddElements(std::vector<Value>& elements) {
    const auto before = std::exchange(count_, 0);
    auto element = Element();
    std::size_t times = 1;
    if (Take('*')) {
      SkipBlanks();
      const auto told = Read<std::size_t>(Word());
      if (!told || *told > kMostElements) {
        throw UsageError("behind * an array wants a number up to " + std::to_string(kMostElements));
      }
      times = *told;
    }
    count_ = before + times * (1 + count_);
    if (count_ > kMostElements)
      throw UsageError("the array has more than " + std::to_string(kMostElements) + " elements");
    elements.insert(elements.end(), times, element);
  }

  std::string_view rest_;
  std::size_t count_ = 0;  // of the elements read so far, those of inner arrays among them
  int depth_ = 0;
};

// From here on equal neighbours in an array are counted instead of repeated.
constexpr std::size_t kShortestRun = 4;

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

Value ParseValue(std::string_view text) {
  ValueReader reader(text);
  if (text.starts_with('"')) {
    auto value = reader.Quoted();
    reader.End();
    return value;
  }
  if (text.starts_with('[')) {
    auto value = reader.ArrayOfValues();
    reader.End();
    return value;
  }
  return ReadWord(text);
}

std::int16_t ParseInteger(std::string_view text) {
  const auto number = Read<std::int16_t>(text);
  if (!number) throw UsageError("\"" + std::string(text) + "\" is not a 16-bit integer");
  return *number;
}

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
