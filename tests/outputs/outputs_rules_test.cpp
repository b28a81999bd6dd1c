#include <map>

#include "outputs_test.h"

// What the editors of outputs have in common: rights, failures, arguments after Cancel.

namespace orlin::testing {
namespace {

struct Call {
  std::string PublicClass;
  Strings Arguments;
};

Call Octal(const std::string& type, const std::string& option, const std::string& data) {
  return {"clsOctalRelaysBirch", {"vType=" + type, "vOption=" + option, "vData=\"" + data + "\""}};
}
Call Function(const std::string& type, const std::string& option = "0") {
  return {"clsOutputFunctionsBirch", {"vType=" + type, "vOption=" + option, "vFirstZone=7"}};
}
Call Onboard(const std::string& type, const std::string& option) {
  return {"clsOnboardOutputsBirch", {"vType=" + type, "vOption=" + option}};
}
Call Relay(const std::string& model, const std::string& code, const std::string& bits) {
  return {"clsRelayParam_Oak" + model, {"FunctionNo=2", "FunctionCode=" + code, "ParameterCode=" + bits}};
}
Call Pine(const std::string& code, const std::string& panelType = "8") {
  return {"clsOutputFunctions_Pine", {"vCode=" + code, "vPanelType=" + panelType}};
}
Call Pulses(const std::string& count, const std::string& time) {
  return {"clsPulseCount_Pine",
          {"vInterval1=\"4\"", "vInterval2=16", "vPulseCount=" + count, "vPulseCountTime=" + time}};
}

DialogRun Open(const Call& call, const std::string& script, const Strings& levels = {}) {
  return Play(call.PublicClass, call.Arguments, script, {.Levels = levels});
}

TEST(OutputEditors, RightsHideAndDisableTheirControlsAndNoOthers) {
  const struct {
    Call Opened;
    std::string Record;
    Strings Controls;
  } cases[] = {
      {Octal("1", "0", "1"), "Type", {"lblType", "cmbType"}},
      {Octal("1", "0", "1"), "Options", {"lblOption", "cmbOption"}},
      {Octal("2", "0", "1"), "Output Follows", {"lblFunction", "cmbFunction"}},
      {Octal("3", "0", "1"), "Function", {"lblFunction", "txtFunction", "udFunction", "chkDisabled"}},
      {Octal("4", "0", "1"), "Follows Zone", {"lblFunction", "txtFollowZone"}},
      {Function("14"), "Output Function", {"lblType", "cmbType"}},
      {Function("14"), "Options", {"lblOption", "cmbOption"}},
      {Function("14"), "Follows Zone 1", {"lblFirstZone", "txtFirstZone"}},
      {Function("14"), "Follows Zone 2", {"lblSecondZone", "txtSecondZone"}},
      {Onboard("2", "3"), "Output Follows", {"lblOutputFollows", "cmbType"}},
      {Onboard("2", "3"), "Options", {"fraOptions"}},
      {Relay("Mid", "1", "[1*8]"), "Function 2", {"lblFunction", "cmbFunction"}},
      {Relay("Mid", "1", "[1*8]"), "----Parameter 2", {"lblParameter", "lstMSParam"}},
      {Relay("Mid", "1", "[1*8]"), "----Parameter 1", {}},
      {Pulses("5", "12"), "Pulse Count", {"cbPulseCount"}},
      {Pulses("5", "12"), "Pulse Count Time", {"cbPulseCountTime", "lblWithin"}},
  };
  for (const auto& [opened, record, controls] : cases) {
    const auto free = Open(opened, "dump\nclick cmdOK");
    const auto seen = free.Events("state")[0]["controls"];
    for (const auto& [needed, denied] : {std::pair{"1,1", ""}, {"2,1", "visible"}, {"1,2", "enabled"}}) {
      const auto run = Open(opened, "dump\nclick cmdOK", {"AuthorityLevel=1,1", record + "=" + needed});
      auto expected = seen;
      for (const auto& control : controls) {
        if (*denied != '\0') expected[control][denied] = false;
      }
      EXPECT_EQ(run.Events("state")[0]["controls"], expected) << opened.PublicClass << " " << record << " " << needed;
      EXPECT_EQ(run.Events("return"), free.Events("return")) << opened.PublicClass << " " << record;
    }
    EXPECT_EQ(Open(opened, "", {record + "=1,1"}).Result, 5) << "without AuthorityLevel";
  }
}

TEST(OutputEditors, WhatNamesNoChoiceIsAFailureThatNobodySees) {
  const std::map<std::int32_t, std::vector<Call>> cases = {
      {380,
       {Octal("0", "0", "1"), Octal("5", "0", "1"), Octal("1", "0", "E"), Octal("1", "4", "1"), Octal("4", "-1", "1"),
        Function("16"), Function("-1"), Function("1", "1"), Onboard("15", "0"), Relay("Mid", "19", "[]"),
        Relay("Grand", "25", "[]"), Relay("Base", "25", "[]"), Pine("-1")}},
      {13, {Octal("x", "0", "1"), Function("x"), Relay("Mid", "1", "5"), Pine("x"), Pine("1", "x"), Pulses("x", "0")}},
      {9, {Onboard("1", "-1"), Onboard("14", "5")}},
      {6, {Relay("Mid", "1", "[256]"), Pulses("0", "40000")}}};
  for (const auto& [number, calls] : cases) {
    for (const auto& call : calls) {
      const auto run = Open(call, "");
      EXPECT_EQ(run.Result, number) << call.PublicClass << " " << Json(call.Arguments);
      EXPECT_TRUE(run.Events("show").empty());
    }
  }
}

TEST(OutputEditors, ArgumentsThatAreReplacedOnEntryStaySoUnlessOkPassed) {
  const struct {
    Call Opened;
    std::string Argument;
    Value After;
  } cases[] = {
      {Octal("1", "0", "0B"), "vData", 10.0},
      {Octal("5", "0", "F8"), "vData", 248.0},
      {Function("8"), "vType", Integer(6)},
      {Function("\"3\""), "vType", Integer(2)},
      {Function("\"1\""), "vType", "1"},
      {Function("16"), "vType", Integer(14)},
      {Onboard("13", "0"), "vType", Integer(12)},
      {Onboard("\"14\"", "0"), "vType", Integer(13)},
      {Onboard("\"12\"", "0"), "vType", "12"},
      {Onboard("15", "0"), "vType", Integer(15)},
      {Relay("Base", "\"24\"", "[0*8]"), "FunctionCode", "24"},
      {Relay("Mid", "1", "[1]"), "ParameterCode", Array({Integer(1)})},
      {Pine("\"5\""), "vCode", "5"},
      {Pulses("\"0\"", "7"), "vPulseCount", "0"},
  };
  for (const auto& [opened, argument, after] : cases) {
    for (const auto* script : {"click cmdCancel", "close"}) {
      const auto run = Open(opened, script);
      EXPECT_EQ(run.Argument(argument), after) << opened.PublicClass;
      EXPECT_EQ(run.Result == 1, !run.Events("show").empty());
    }
  }
}

}  // namespace
}  // namespace orlin::testing
