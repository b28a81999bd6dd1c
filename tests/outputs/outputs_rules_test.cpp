#include "outputs_test.h"

// What the editors of outputs have in common: rights, failures, arguments after Cancel.

namespace orlin::testing {
namespace {

TEST(OutputEditors, RightsHideAndDisableTheirControlsAndNoOthers) {
  const struct {
    Call Opened;
    std::string Record;
    Strings Controls;
  } cases[] = {
      {Octal("1", "1"), "Type", {"lblType", "cmbType"}},
      {Octal("1", "1"), "Options", {"lblOption", "cmbOption"}},
      {Octal("2", "1"), "Output Follows", {"lblFunction", "cmbFunction"}},
      {Octal("3", "1"), "Function", {"lblFunction", "txtFunction", "udFunction", "chkDisabled"}},
      {Octal("4", "1"), "Follows Zone", {"lblFunction", "txtFollowZone"}},
      {Function("14"), "Output Function", {"lblType", "cmbType"}},
      {Function("14"), "Options", {"lblOption", "cmbOption"}},
      {Function("14"), "Follows Zone 1", {"lblFirstZone", "txtFirstZone"}},
      {Function("14"), "Follows Zone 2", {"lblSecondZone", "txtSecondZone"}},
      {Onboard("2", "3"), "Output Follows", {"lblOutputFollows", "cmbType"}},
      {Onboard("2", "3"), "Options", {"fraOptions"}},
      {Relay("Mid", "1", "[1*8]"), "Function 2", {"lblFunction", "cmbFunction"}},
      {Relay("Mid", "1", "[1*8]"), "----Parameter 2", {"lblParameter", "lstMSParam"}},
      {Pulses("5", "12"), "Pulse Count", {"cbPulseCount"}},
      {Pulses("5", "12"), "Pulse Count Time", {"cbPulseCountTime", "lblWithin"}},
  };
  for (const auto& [opened, record, controls] : cases) {
    const auto free = Open(opened, "dump\nclick cmdOK");
    const auto seen = free.Events("state")[0]["controls"];
    for (const auto& [needed, denied] : {std::pair{"2,1", "visible"}, {"1,2", "enabled"}}) {
      const auto run = Open(opened, "dump\nclick cmdOK", {"AuthorityLevel=1,1", record + "=" + needed});
      auto expected = seen;
      for (const auto& control : controls) expected[control][denied] = false;
      EXPECT_EQ(run.Events("state")[0]["controls"], expected) << opened.PublicClass << " " << record << " " << needed;
      EXPECT_EQ(run.Events("return"), free.Events("return")) << opened.PublicClass << " " << record;
    }
    EXPECT_EQ(Open(opened, "", {record + "=1,1"}).Result, 5) << "without AuthorityLevel";
  }
}

TEST(OutputEditors, WhatNamesNoChoiceIsAFailureThatNobodySees) {
  const std::pair<std::int32_t, std::vector<Call>> cases[] = {
      {380,
       {Octal("0", "1"), Octal("5", "1"), Octal("1", "E"), Octal("1", "1", "4"), Function("16"),
        Function("1", "7", "9", "1"), Onboard("15", "0"), Relay("Mid", "19", "[]"), Relay("Base", "25", "[]"),
        Pine("-2")}},
      {13, {Octal("x", "1"), Function("x"), Relay("Mid", "1", "5"), Pine("1", "x"), Pulses("x", "0")}},
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
      {Octal("1", "0B"), "vData", 10.0},
      {Function("8"), "vType", Integer(6)},
      {Function("16"), "vType", Integer(14)},
      {Onboard("13", "0"), "vType", Integer(12)},
      {Onboard("\"12\"", "0"), "vType", "12"},
      {Relay("Base", "\"24\"", "[0*8]"), "FunctionCode", "24"},
      {Relay("Mid", "1", "[1]"), "ParameterCode", Array({Integer(1)})},
      {Pine("\"5\""), "vCode", "5"},
      {Pulses("\"0\"", "7"), "vPulseCount", "0"},
  };
  for (const auto& [opened, argument, after] : cases) {
    const auto run = Open(opened, "click cmdCancel");
    EXPECT_EQ(run.Argument(argument), after) << opened.PublicClass;
    EXPECT_EQ(run.Result == 1, !run.Events("show").empty());
  }
}

}  // namespace
}  // namespace orlin::testing
