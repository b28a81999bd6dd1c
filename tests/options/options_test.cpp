#include <gtest/gtest.h>

#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

// ---------------------------------------------------------------------------------------------- phone line faults

constexpr const char* kOk = "click cmdOK";

DialogRun PlayPhone(int panelType, const std::string& states, const std::string& script,
                    const std::vector<std::string>& levels = {}) {
  PlayOptions options;
  options.Levels = levels;
  return Play("clsPhoneOptions_Pine",
              {std::string("vTrouble=") + states[0], std::string("vOn=") + states[1], std::string("vOff=") + states[2],
               "vPanelType=" + std::to_string(panelType)},
              script, options);
}

TEST(PhoneOptionsPine, OkAsksForSupervisionByPanelType) {
  const struct {
    int PanelType;
    const char* States;
    int Message;  // 0: accepted
  } cases[] = {{8, "000", 0},     {24, "000", 0},    {8, "101", 0},     {24, "111", 0},    {8, "010", 1385},
               {8, "001", 1385},  {8, "011", 0},     {26, "011", 0},    {27, "010", 1385}, {24, "011", 1875},
               {25, "011", 1875}, {40, "010", 1875}, {25, "001", 1875}, {40, "110", 0}};
  for (const auto& one : cases) {
    const std::string at = std::to_string(one.PanelType) + " " + one.States;
    const auto run = PlayPhone(one.PanelType, one.States, one.Message == 0 ? kOk : "answer 1\nclick cmdOK\nclose");
    EXPECT_EQ(run.Result, one.Message == 0 ? 0 : 1) << at;
    const auto messages = run.Events("message");
    ASSERT_EQ(messages.size(), one.Message == 0 ? 0U : 1U) << at;
    if (one.Message == 0) continue;
    EXPECT_EQ(messages[0].at("text"), Text(static_cast<std::int16_t>(one.Message))) << at;
    EXPECT_EQ(messages[0].at("title"), one.Message == 1385 ? Json() : Json(Text(262))) << at;
  }
}

TEST(PhoneOptionsPine, RefusedOkIsJudgedAnew) {
  const auto run = PlayPhone(24, "010", "answer 1\nclick cmdOK\nclick Check1\nclick cmdOK");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("vTrouble"), Integer(1));
  EXPECT_EQ(run.Argument("vOn"), Integer(1));
  EXPECT_EQ(run.Argument("vOff"), Integer(0));
}

TEST(PhoneOptionsPine, CaptionsAndLayoutFollowThePanelType) {
  const struct {
    int PanelType;
    std::int16_t First;
    std::int16_t Second;
    int Wider;
  } cases[] = {{8, 1382, 1381, 0},  {26, 1382, 1381, 0},   {27, 1382, 1381, 0}, {25, 1383, 1381, 0},
               {40, 1382, 1908, 0}, {24, 1383, 1384, 600}, {0, 1383, 1384, 600}};
  for (const auto& one : cases) {
    const auto run = PlayPhone(one.PanelType, "000", "dump");
    EXPECT_EQ(run.Control("Check1").at("caption"), Text(one.First)) << one.PanelType;
    EXPECT_EQ(run.Control("Check2").at("caption"), Text(one.Second)) << one.PanelType;
    EXPECT_EQ(run.Control("Check3").at("caption"), Text(1380));
    for (const char* moved : {"cmdOK", "cmdCancel"}) EXPECT_EQ(run.Control(moved).at("left"), one.Wider) << moved;
    EXPECT_EQ(run.Control("Check2").at("width"), one.Wider);
  }
}

TEST(PhoneOptionsPine, RightsAreNamedByTheTagOfThePanelType) {
  const struct {
    int PanelType;
    const char* Record;
    const char* Box;  // nothing: no box has that name
  } cases[] = {
      {8, "Enable Supervision (System Trouble at Cmd Ctr)", "Check1"},
      {25, "Enable Supervision (System Trouble at Keypad)", "Check1"},
      {40, "Enable Supervision (System Trouble at Cmd Ctr)", "Check1"},
      {24, "Enable Supervision (System Trouble at Keypad)", "Check1"},
      {24, "Enable Supervision (System Trouble at Cmd Ctr)", ""},
      {8, "Burg Alarm and Strobe Functions, All or Part On", "Check2"},
      {40, "&Burg Alarm and Strobe Functions, Away Mode or Stay Mode", "Check2"},
      {40, "Burg Alarm and Strobe Functions, All or Part On", ""},
      {24, "Burg Alarm and Strobe Functions, All On or Perimeter Only", "Check2"},
      {24, "Burg Alarm and Strobe Functions, Off", "Check3"},
  };
  for (const auto& one : cases) {
    const auto hidden =
        PlayPhone(one.PanelType, "000", "dump", {"AuthorityLevel=1,1", std::string(one.Record) + "=2,1"});
    const auto disabled =
        PlayPhone(one.PanelType, "000", "dump", {"AuthorityLevel=1,1", std::string(one.Record) + "=1,2"});
    for (const std::string box : {"Check1", "Check2", "Check3"}) {
      EXPECT_EQ(hidden.Control(box).at("visible"), box != one.Box) << one.PanelType << one.Record;
      EXPECT_EQ(disabled.Control(box).at("enabled"), box != one.Box) << one.PanelType << one.Record;
    }
  }
  const auto unseen = PlayPhone(8, "010", "answer 1\nclick cmdOK",
                                {"AuthorityLevel=1,1", "Burg Alarm and Strobe Functions, All or Part On=2,1"});
  EXPECT_EQ(unseen.Result, 1);
}

TEST(PhoneOptionsPine, ValuesThatAreNoStateFail) {
  EXPECT_EQ(PlayPhone(8, "200", "").Result, failures::InvalidPropertyValue);
  EXPECT_EQ(Play("clsPhoneOptions_Pine", {"vPanelType=\"x\""}, "").Result, failures::TypeMismatch);
  EXPECT_EQ(Play("clsPhoneOptions_Pine", {"SecurityLevels=1"}, "").Result, failures::ObjectRequired);
}

// ---------------------------------------------------------------------------------------------- alternate communicator

DialogRun PlayComm(const std::string& values, int item, const std::string& script) {
  return Play(
      "clsAltCommConfiguration",
      {"vName=x", std::string("vMode=") + values[0], std::string("vAlarm=") + values[1],
       std::string("vOpenClose=") + values[2], std::string("vAll=") + values[3], "iItemNo=" + std::to_string(item)},
      script);
}

std::string Values(const DialogRun& run) {
  std::string values;
  for (const char* name : {"vMode", "vAlarm", "vOpenClose", "vAll"}) {
    values += std::to_string(*run.Argument(name).Get<std::int16_t>());
  }
  return values;
}

TEST(AltCommConfiguration, ThirdModeFollowsTheItem) {
  for (const int item : {131, 132, 133}) {
    const auto run = PlayComm("0000", item, "dump");
    EXPECT_EQ(run.Control("cmbMode").at("list"), Json({Text(513), Text(10181), Text(item == 132 ? 10538 : 10539)}));
    EXPECT_EQ(run.Control("cmbAll").at("list"), Json({Text(10549), Text(10550)}));
  }
}

TEST(AltCommConfiguration, ModeDecidesTheThreeChoices) {
  const struct {
    const char* Values;
    const char* Script;
    const char* After;
    bool Enabled;  // when the script began
  } cases[] = {
      {"1101", "", "1101", true},
      {"0111", "", "0111", false},
      {"0111", "select cmbMode 1\nselect cmbMode 2\n", "2000", false},
      {"0111", "select cmbMode 1\n", "1111", false},
      {"1101", "select cmbAlarm 0\nselect cmbMode 2\nselect cmbMode 1\n", "1101", true},
      {"1101", "select cmbAlarm 0\n", "1001", true},
  };
  for (const auto& one : cases) {
    const auto run = PlayComm(one.Values, 1, std::string("dump\n") + one.Script + kOk);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(Values(run), one.After) << one.Values << one.Script;
    for (const char* list : {"cmbAlarm", "cmbOpensCloses", "cmbAll"}) {
      EXPECT_EQ(run.Control(list, 0).at("enabled"), one.Enabled) << list;
    }
    EXPECT_EQ(run.Control("cmbAlarm", 0).at("listIndex"), one.Values[1] - '0');
  }
}

TEST(AltCommConfiguration, FailsOnAChoiceThatIsNone) {
  for (const char* values : {"3000", "0200", "1020", "1002"}) {
    EXPECT_EQ(PlayComm(values, 1, "").Result, failures::InvalidPropertyValue) << values;
  }
  PlayOptions options;
  options.Levels = {"AuthorityLevel=0,0", "Mode=9,9"};
  const auto run = Play("clsAltCommConfiguration", {}, "dump", options);
  EXPECT_EQ(run.Control("cmbMode").at("visible"), true);
  EXPECT_EQ(run.Events("state").at(0).at("caption"), "AltCommConfiguration");
}

// ---------------------------------------------------------------------------------------------- panel time

DialogRun PlayTime(int hours, int minutes, const std::string& script, const std::vector<std::string>& levels = {}) {
  PlayOptions options;
  options.Levels = levels;
  return Play("clsPanelGMT", {"iHrs=" + std::to_string(hours), "iMins=" + std::to_string(minutes), "iIsPanelBehind=5"},
              script, options);
}

TEST(PanelGMT, UpDownsHoldTheNumbersThatCount) {
  const struct {
    const char* Name;
    int Hours;
    int Minutes;
    const char* Script;
    int HoursAfter;
    int MinutesAfter;
    std::size_t Beeps;
  } cases[] = {
      {"as they came", 5, 30, "", 5, 30, 0},
      {"12 hours have no minutes", 12, 30, "", 12, 0, 0},
      {"13 falls back without a beep", 5, 0, "caret txthrsfromGMT 0 1\ntype txthrsfromGMT \"13\"\n", 5, 0, 0},
      {"a letter falls back with a beep", 5, 0, "caret txthrsfromGMT 1 0\ntype txthrsfromGMT \"x\"\n", 5, 0, 1},
      {"60 minutes fall back", 5, 15, "caret txtminfromGMT 0 2\ntype txtminfromGMT \"60\"\n", 5, 15, 0},
      {"59 minutes pass", 5, 15, "caret txtminfromGMT 0 2\ntype txtminfromGMT \"59\"\n", 5, 59, 0},
      {"60 by stepping", 5, 59, "step udMinfromGMT up 2\n", 5, 60, 0},
      {"stepping to 12 takes the minutes", 11, 30, "step udHrsfromGMT up\n", 12, 0, 0},
      {"and back leaves them at 0", 11, 30, "step udHrsfromGMT up\nstep udHrsfromGMT down\n", 11, 0, 0},
      {"an emptied box keeps the up-down", 5, 0, "caret txthrsfromGMT 1 0\nkey txthrsfromGMT Backspace\n", 5, 0, 0},
  };
  for (const auto& one : cases) {
    const auto run = PlayTime(one.Hours, one.Minutes, std::string(one.Script) + "dump\n" + kOk);
    EXPECT_EQ(run.Result, 0) << one.Name;
    EXPECT_EQ(run.Argument("iHrs"), Integer(one.HoursAfter)) << one.Name;
    EXPECT_EQ(run.Argument("iMins"), Integer(one.MinutesAfter)) << one.Name;
    EXPECT_EQ(run.Argument("iIsPanelBehind"), Integer(1)) << one.Name;
    EXPECT_EQ(run.Argument("iPanelDayLightSaving"), Integer(0)) << one.Name;
    EXPECT_EQ(run.Events("beep").size(), one.Beeps) << one.Name;
    EXPECT_EQ(run.Control("udMinfromGMT").at("enabled"), one.HoursAfter != 12) << one.Name;
  }
  EXPECT_EQ(PlayTime(12, 30, "dump").Control("txtminfromGMT").at("text"), "30");
}

TEST(PanelGMT, EscapeDoesNothingAndEnterConfirms) {
  EXPECT_EQ(PlayTime(5, 0, "key - Escape\nkey - Enter").Result, 0);
  EXPECT_EQ(PlayTime(5, 0, "click cmdCancel").Result, 1);
}

TEST(PanelGMT, EveryRecordOfRightsHidesOrDisablesTheFour) {
  const auto run = PlayTime(5, 0, "dump\ncaret txthrsfromGMT 0 1\ntype txthrsfromGMT \"7\"\nclick cmdOK",
                            {"AuthorityLevel=1,1", "Anything=2,1", "Else=1,2"});
  for (const char* control : {"udHrsfromGMT", "udMinfromGMT", "chkPanelTime", "chkPanelDayLightSaving"}) {
    EXPECT_EQ(run.Control(control).at("visible"), false) << control;
    EXPECT_EQ(run.Control(control).at("enabled"), false) << control;
  }
  EXPECT_EQ(run.Argument("iHrs"), Integer(7));
}

TEST(PanelGMT, FailsOnNumbersBeyondTheUpDowns) {
  EXPECT_EQ(PlayTime(13, 0, "").Result, failures::InvalidPropertyValue);
  EXPECT_EQ(PlayTime(5, 61, "").Result, failures::InvalidPropertyValue);
}

// ---------------------------------------------------------------------------------------------- report routing

TEST(ReportRouting, OptionIsTheNumber) {
  for (int option = 0; option < 4; ++option) {
    const auto run = Play("clsReportroutinglite", {"vOption=" + std::to_string(option)},
                          "dump\nclick optOption(" + std::to_string(3 - option) + ")\nclick cmdOK");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("vOption"), Integer(3 - option));
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(run.Control("optOption(" + std::to_string(i) + ")").at("value"), i == option);
    }
  }
  EXPECT_EQ(Play("clsReportroutinglite", {"vOption=2"}, "click optOption(0)\nclick cmdCancel").Argument("vOption"),
            Integer(2));
  for (const char* none : {"vOption=4", "vOption=-1"}) EXPECT_GT(Play("clsReportroutinglite", {none}, "").Result, 2);
}

TEST(ReportRouting, EitherLevelHidesTheOptions) {
  for (const char* record : {"Options=2,1", "Options=1,2"}) {
    PlayOptions options;
    options.Levels = {"AuthorityLevel=1,1", record, "Other=9,9"};
    const auto run = Play("clsReportroutinglite", {"vOption=2"}, "dump\nclick cmdOK", options);
    EXPECT_EQ(run.Control("Frame1").at("visible"), false);
    EXPECT_EQ(run.Control("Frame1").at("enabled"), true);
    EXPECT_EQ(run.Argument("vOption"), Integer(2));
  }
}

}  // namespace
}  // namespace orlin::testing
