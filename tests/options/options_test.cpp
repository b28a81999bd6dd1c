#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

constexpr const char* kOk = "click cmdOK";

DialogRun PlayPhone(int panelType, const std::string& states, const std::string& script,
                    const std::vector<std::string>& levels = {}) {
  return Play("clsPhoneOptions_Pine",
              {std::string("vTrouble=") + states[0], std::string("vOn=") + states[1], std::string("vOff=") + states[2],
               "vPanelType=" + std::to_string(panelType)},
              script, {.Levels = levels});
}

TEST(PhoneOptionsPine, OkAsksForSupervisionByPanelTypeEachTimeAnew) {
  const struct {
    int PanelType;
    std::string States;
    int Message;  // 0: accepted
  } cases[] = {{8, "000", 0},     {24, "000", 0},    {8, "101", 0},     {24, "111", 0},    {8, "010", 1385},
               {8, "001", 1385},  {8, "011", 0},     {26, "011", 0},    {27, "010", 1385}, {24, "011", 1875},
               {25, "011", 1875}, {40, "010", 1875}, {25, "001", 1875}, {40, "110", 0}};
  for (const auto& [panelType, states, message] : cases) {
    SCOPED_TRACE(std::to_string(panelType) + " " + states);
    const bool refused = message != 0;
    const auto run = PlayPhone(panelType, states, refused ? "answer 1\nclick cmdOK\nclick Check1\nclick cmdOK" : kOk);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("vTrouble"), Integer(refused ? 1 : states[0] - '0'));
    EXPECT_EQ(run.Argument("vOn"), Integer(states[1] - '0'));
    EXPECT_EQ(run.Argument("vOff"), Integer(states[2] - '0'));
    if (!refused) continue;
    EXPECT_EQ(run.Fields("message", "text"), std::vector<Json>{Text(message)});
    EXPECT_EQ(run.Fields("message", "title")[0], message == 1385 ? Json() : Json(Text(262)));
  }
  EXPECT_EQ(PlayPhone(8, "200", "").Result, failures::InvalidPropertyValue);
}

TEST(PhoneOptionsPine, CaptionsAndLayoutFollowThePanelType) {
  const struct {
    int PanelType, First, Second, Wider;
  } cases[] = {{8, 1382, 1381, 0},  {26, 1382, 1381, 0},   {27, 1382, 1381, 0}, {25, 1383, 1381, 0},
               {40, 1382, 1908, 0}, {24, 1383, 1384, 600}, {0, 1383, 1384, 600}};
  for (const auto& [panelType, first, second, wider] : cases) {
    const auto run = PlayPhone(panelType, "000", "dump");
    EXPECT_EQ(run.Control("Check1").at("caption"), Text(first)) << panelType;
    EXPECT_EQ(run.Control("Check2").at("caption"), Text(second)) << panelType;
    EXPECT_EQ(run.Control("Check2").at("width"), wider);
    for (const char* moved : {"cmdOK", "cmdCancel"}) EXPECT_EQ(run.Control(moved).at("left"), wider) << moved;
  }
}

TEST(PhoneOptionsPine, RightsAreNamedByTheTagOfThePanelType) {
  const std::string supervision = "Enable Supervision (System Trouble at ";
  const std::string functions = "Burg Alarm and Strobe Functions, ";
  const struct {
    int PanelType;
    std::string Record, Box;  // no box: none has that name
  } cases[] = {{8, supervision + "Cmd Ctr)", "Check1"},
               {25, supervision + "Keypad)", "Check1"},
               {24, supervision + "Cmd Ctr)", ""},
               {8, functions + "All or Part On", "Check2"},
               {40, "&" + functions + "Away Mode or Stay Mode", "Check2"},
               {40, functions + "All or Part On", ""},
               {24, functions + "All On or Perimeter Only", "Check2"},
               {24, functions + "Off", "Check3"}};
  for (const auto& [panelType, record, denied] : cases) {
    const auto hidden = PlayPhone(panelType, "000", "dump", {"AuthorityLevel=1,1", record + "=2,1"});
    const auto disabled = PlayPhone(panelType, "000", "dump", {"AuthorityLevel=1,1", record + "=1,2"});
    for (const std::string box : {"Check1", "Check2", "Check3"}) {
      EXPECT_EQ(hidden.Control(box).at("visible"), box != denied) << panelType << record;
      EXPECT_EQ(disabled.Control(box).at("enabled"), box != denied) << panelType << record;
    }
  }
  const auto unseen =
      PlayPhone(8, "010", "answer 1\nclick cmdOK", {"AuthorityLevel=1,1", functions + "All or Part On=2,1"});
  EXPECT_EQ(unseen.Result, 1) << "a hidden box counts";
}

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

TEST(AltCommConfiguration, ModeDecidesTheThreeChoices) {
  const struct {
    std::string Values, Script, After;
    bool Enabled;  // when the script began
  } cases[] = {{"1101", "", "1101", true},
               {"0111", "", "0111", false},
               {"0111", "select cmbMode 1\nselect cmbMode 2\n", "2000", false},
               {"0111", "select cmbMode 1\n", "1111", false},
               {"1101", "select cmbAlarm 0\nselect cmbMode 2\nselect cmbMode 1\n", "1101", true},
               {"1101", "select cmbAlarm 0\n", "1001", true}};
  for (const auto& [values, script, after, enabled] : cases) {
    const auto run = PlayComm(values, 1, "dump\n" + script + kOk);
    EXPECT_EQ(Values(run), after) << values << script;
    for (const char* list : {"cmbAlarm", "cmbOpensCloses", "cmbAll"}) {
      EXPECT_EQ(run.Control(list, 0).at("enabled"), enabled) << list;
    }
    EXPECT_EQ(run.Control("cmbAlarm", 0).at("listIndex"), values[1] - '0');
  }
}

TEST(AltCommConfiguration, KnowsItsChoicesAndNoRights) {
  for (const char* values : {"3000", "0200", "1020", "1002"}) {
    EXPECT_EQ(PlayComm(values, 1, "").Result, failures::InvalidPropertyValue) << values;
  }
  for (const int item : {131, 132, 133}) {
    EXPECT_EQ(PlayComm("0000", item, "dump").Control("cmbMode").at("list"),
              Json({Text(513), Text(10181), Text(item == 132 ? 10538 : 10539)}));
  }
  const auto run = Play("clsAltCommConfiguration", {}, "dump", {.Levels = {"AuthorityLevel=0,0", "Mode=9,9"}});
  EXPECT_EQ(run.Control("cmbAll").at("list"), Json({Text(10549), Text(10550)}));
  EXPECT_EQ(run.Control("cmbMode").at("visible"), true);
  EXPECT_EQ(run.Events("state").at(0).at("caption"), "AltCommConfiguration");
}

DialogRun PlayTime(int hours, int minutes, const std::string& script, const std::vector<std::string>& levels = {}) {
  return Play("clsPanelGMT", {"iHrs=" + std::to_string(hours), "iMins=" + std::to_string(minutes), "iIsPanelBehind=5"},
              script, {.Levels = levels});
}

TEST(PanelGMT, UpDownsHoldTheNumbersThatCount) {
  const struct {
    int Hours, Minutes;
    std::string Script;
    int HoursAfter, MinutesAfter;
    std::size_t Beeps = 0;
  } cases[] = {{5, 30, "", 5, 30},
               {12, 30, "", 12, 0},
               {5, 0, "caret txthrsfromGMT 0 1\ntype txthrsfromGMT \"13\"\n", 5, 0},
               {5, 0, "caret txthrsfromGMT 1 0\ntype txthrsfromGMT \"x\"\n", 5, 0, 1},
               {5, 15, "caret txtminfromGMT 0 2\ntype txtminfromGMT \"60\"\n", 5, 15},
               {5, 15, "caret txtminfromGMT 0 2\ntype txtminfromGMT \"59\"\n", 5, 59},
               {5, 59, "step udMinfromGMT up 2\n", 5, 60},
               {11, 30, "step udHrsfromGMT up\n", 12, 0},
               {11, 30, "step udHrsfromGMT up\nstep udHrsfromGMT down\n", 11, 0},
               {5, 0, "caret txthrsfromGMT 1 0\nkey txthrsfromGMT Backspace\n", 5, 0}};
  for (const auto& one : cases) {
    const auto run = PlayTime(one.Hours, one.Minutes, one.Script + "dump\n" + kOk);
    const std::vector<Value> after{run.Argument("iHrs"), run.Argument("iMins"), run.Argument("iIsPanelBehind"),
                                   run.Argument("iPanelDayLightSaving")};
    EXPECT_EQ(after, (std::vector{Integer(one.HoursAfter), Integer(one.MinutesAfter), Integer(1), Integer(0)}));
    EXPECT_EQ(run.Events("beep").size(), one.Beeps) << one.Script;
    EXPECT_EQ(run.Control("udMinfromGMT").at("enabled"), one.HoursAfter != 12) << one.Script;
  }
  EXPECT_EQ(PlayTime(12, 30, "dump").Control("txtminfromGMT").at("text"), "30");
  EXPECT_EQ(PlayTime(13, 0, "").Result, failures::InvalidPropertyValue);
  EXPECT_EQ(PlayTime(5, 61, "").Result, failures::InvalidPropertyValue);
  EXPECT_EQ(PlayTime(5, 0, "key - Escape\nkey - Enter").Result, 0) << "Escape does nothing, Enter confirms";
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

TEST(ReportRouting, OptionIsTheNumberAndEitherLevelHidesIt) {
  for (int option = 0; option < 4; ++option) {
    const auto run = Play("clsReportroutinglite", {"vOption=" + std::to_string(option)},
                          "dump\nclick optOption(" + std::to_string(3 - option) + ")\nclick cmdOK");
    EXPECT_EQ(run.Argument("vOption"), Integer(3 - option));
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(run.Control("optOption(" + std::to_string(i) + ")").at("value"), i == option);
    }
  }
  EXPECT_EQ(Play("clsReportroutinglite", {"vOption=2"}, "click optOption(0)\nclick cmdCancel").Argument("vOption"),
            Integer(2));
  for (const char* none : {"vOption=4", "vOption=-1"}) EXPECT_GT(Play("clsReportroutinglite", {none}, "").Result, 2);
  for (const char* record : {"Options=2,1", "Options=1,2"}) {
    const auto run = Play("clsReportroutinglite", {"vOption=2"}, "dump\nclick cmdOK",
                          {.Levels = {"AuthorityLevel=1,1", record, "Other=9,9"}});
    EXPECT_EQ(run.Control("Frame1").at("visible"), false);
    EXPECT_EQ(run.Control("Frame1").at("enabled"), true);
    EXPECT_EQ(run.Argument("vOption"), Integer(2));
  }
}

}  // namespace
}  // namespace orlin::testing
