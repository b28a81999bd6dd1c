#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/dialog_test.h"

namespace orlin::testing {

using Strings = std::vector<std::string>;
using Numbers = std::vector<std::int16_t>;
using Values = std::vector<Value>;

/// These numbers, and behind them those from `first` to `last`.
inline Numbers Then(Numbers numbers, std::int16_t first, std::int16_t last) {
  for (auto number = first; number <= last; ++number) numbers.push_back(number);
  return numbers;
}

inline Json Texts(const Numbers& numbers) {
  Json texts = Json::array();
  for (const auto number : numbers) texts.push_back(Text(number));
  return texts;
}

/// Some fields of a control, as a dump showed them.
inline Json Seen(const DialogRun& run, const std::string& control, const Strings& fields,
                 std::optional<std::size_t> dump = {}) {
  Json seen = Json::array();
  for (const auto& field : fields) seen.push_back(run.Control(control, dump).at(field));
  return seen;
}

/// What came back in some arguments.
inline Values Back(const DialogRun& run, const Strings& names) {
  Values values;
  for (const auto& name : names) values.push_back(run.Argument(name));
  return values;
}

}  // namespace orlin::testing
