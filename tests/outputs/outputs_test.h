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

/// The call of an editor, without its script.
struct Call {
  std::string PublicClass;
  Strings Arguments;
};

inline DialogRun Open(const Call& call, const std::string& script, const Strings& levels = {}) {
  return Play(call.PublicClass, call.Arguments, script, {.Levels = levels});
}

inline Call Octal(const std::string& type, const std::string& data, const std::string& option = "0") {
  return {"clsOctalRelaysBirch", {"vName=Relay 3", "vType=" + type, "vOption=" + option, "vData=\"" + data + "\""}};
}
inline Call Function(const std::string& type, const std::string& first = "7", const std::string& second = "9",
                     const std::string& option = "0") {
  return {"clsOutputFunctionsBirch",
          {"vName=Output 2", "vType=" + type, "vOption=" + option, "vFirstZone=\"" + first + "\"",
           "vSecondZone=\"" + second + "\""}};
}
inline Call Onboard(const std::string& type, const std::string& option) {
  return {"clsOnboardOutputsBirch", {"vName=Output 1", "vType=" + type, "vOption=" + option}};
}
inline Call Relay(const std::string& model, const std::string& code, const std::string& bits) {
  return {"clsRelayParam_Oak" + model, {"RelayNo=4", "FunctionNo=2", "FunctionCode=" + code, "ParameterCode=" + bits}};
}
inline Call Pine(const std::string& code, const std::string& panelType = "8") {
  return {"clsOutputFunctions_Pine", {"vName=Output 5", "vCode=" + code, "vPanelType=" + panelType}};
}
inline Call Pulses(const std::string& count, const std::string& time, const std::string& model = "Pine") {
  return {"clsPulseCount_" + model,
          {"vName=Zone 3", "vInterval1=\"4\"", "vInterval2=16", "vPulseCount=" + count, "vPulseCountTime=" + time}};
}

}  // namespace orlin::testing
