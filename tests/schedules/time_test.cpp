#include <string>
#include <tuple>

#include "OrlinCustomDialogs/schedules.h"

#include "frame/services/modGeneral.h"
#include "support/broken_catalogue.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

DialogRun Open(int minutes, const std::string& script) {
  return Play("clsTime_FirePanels", {"Index=" + std::to_string(minutes), "res=\"kept\""}, script);
}

TEST(Time, GivesBackTheMinutesSinceMidnight) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {0, "00", "00"}, {1439, "23", "59"}, {754, "12", "34"}, {59, "00", "59"}, {60, "01", "00"}};
  for (const auto& [index, hour, minute] : cases) {
    const auto run = Open(index, "dump\nclick cmdOK");
    EXPECT_EQ(run.Control("txtHour").at("text"), hour);
    EXPECT_EQ(run.Control("txtMinute").at("text"), minute);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("res"), Integer(index));
    EXPECT_EQ(run.Argument("Index"), Integer(index));
  }
}

TEST(Time, IsNotChangedWithoutOK) {
  for (const char* end : {"click cmdCancel", "close"}) {
    const auto run = Open(754, std::string("type txtHour \"7\"\n") + end);
    EXPECT_EQ(run.Result, 2);
    EXPECT_EQ(run.Argument("res"), "kept");
  }
}

TEST(Time, TakesTheKeysOfAnyTime) {
  const struct {
    const char* What;
    const char* Script;
    const char* Hour;
    const char* Minute;
    int Time;  // after OK
    std::size_t Beeps = 0;
  } cases[] = {
      {"the first digit replaces all", "type txtHour \"23\"", "23", "34", 1414},
      {"above the limit", "type txtHour \"24\"", "2", "34", 154, 1},
      {"before a digit", "type txtHour \"3\"\nkey txtHour Home\ntype txtHour \"1\"", "13", "34", 814},
      {"33 is above it", "type txtHour \"3\"\nkey txtHour Home\ntype txtHour \"3\"", "3", "34", 214, 1},
      {"between digits counts as behind them", "caret txtHour 1 0\ntype txtHour \"0\"", "12", "34", 754, 1},
      {"behind two digits", "type txtHour \"012\"", "01", "34", 94},
      {"first minute digit", "type txtMinute \"60\"", "12", "6", 726, 1},
      {"minutes", "type txtMinute \"59\"", "12", "59", 779},
      {"a letter empties what is marked", "type txtHour \"x\"", "", "34", 34, 1},
      {"a mark of one digit empties the box", "caret txtHour 1 2147483647\ntype txtHour \"5\"", "5", "34", 334},
      {"Backspace", "key txtHour Backspace", "", "34", 34},
      {"Backspace without a mark", "caret txtHour 2 0\nkey txtHour Backspace", "1", "34", 94},
      {"a letter alone", "caret txtHour 2 0\ntype txtHour \"x\"", "12", "34", 754, 1},
      {"leaving an empty box", "type txtMinute \"x\"\nfocus txtHour", "12", "00", 720, 1},
      {"leaving one digit", "type txtMinute \"7\"\nfocus cmdOK", "12", "07", 727},
      {"up", "key txtHour Up\nkey txtMinute PageUp", "13", "35", 815},
      {"down", "key txtHour Down\nkey txtMinute PageDown", "11", "33", 693},
      {"buttons", "step UpDown1 up 12\nfocus txtMinute\nstep UpDown1 down 35", "00", "59", 59},
      {"wrap up", "focus txtMinute\nstep UpDown1 up 26\nfocus txtHour\nstep UpDown1 down 13", "23", "00", 1380},
      {"no box to step", "focus cmdOK\nstep UpDown1 up\nkey cmdOK Down", "12", "34", 754, 2},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.What);
    const auto run = Open(754, std::string(one.Script) + "\ndump\nclick cmdOK");
    EXPECT_EQ(run.Control("txtHour").at("text"), one.Hour);
    EXPECT_EQ(run.Control("txtMinute").at("text"), one.Minute);
    EXPECT_EQ(run.Events("beep").size(), one.Beeps);
    EXPECT_EQ(run.Argument("res"), Integer(one.Time));
  }
}

TEST(Time, PromptsForTheBoxThatHasTheFocusAndStepsWithoutMovingTheCaret) {
  const auto run = Open(
      754,
      "dump\nfocus txtMinute\ndump\nfocus cmdOK\ndump\ncaret txtHour 1 0\nkey - Up\nkey - PageDown\nkey - Up\ndump");
  EXPECT_EQ(run.Fields("state", "caption")[0], Text(1175));
  const auto prompt = [&](std::size_t dump) { return run.Control("StatusBar1", dump).at("text"); };
  EXPECT_EQ(prompt(0), Text(1177, "NUMBER", "1"));
  EXPECT_EQ(run.Control("txtHour", 0).at("selLength"), 2);
  EXPECT_EQ(prompt(1), Text(1178, "NUMBER", "1"));
  EXPECT_EQ(run.Control("txtMinute", 1).at("selLength"), 2);
  EXPECT_EQ(prompt(2), "");
  EXPECT_EQ(run.Control("txtHour").at("text"), "13");
  EXPECT_EQ(run.Control("txtHour").at("selStart"), 1);
}

// More minutes than a day has, for want of anything else that fails.
constexpr std::int16_t kTooLate = 32767;

using TimeFaults = BrokenCatalogueTest;

TEST_F(TimeFaults, FailureOfAHandlerIsReportedAndTheDialogStays) {
  Host->Answers = {answers::Ok};
  Host->Operate = [](shown::Dialog& dialog) {
    dialog.Find("txtMinute")->Focus(), dialog.PressKey(Key::Named(keys::Up)), dialog.Find("cmdOK")->Press();
    EXPECT_TRUE(dialog.IsShown());
  };
  ASSERT_EQ(InitApplicationVariables(), 0);
  Value time = "kept";
  EXPECT_EQ(clsTime_FirePanels().Display(kTooLate, time), 2);
  EXPECT_EQ(time, "kept");
  EXPECT_EQ(Faults, Log{"frmTime cmdOK_Click 6"});
}

TEST(Time, FailsAgainWithoutAFaultObject) {
  const auto run = Open(kTooLate, "focus txtMinute\nkey - Up\nclick cmdOK");
  ASSERT_EQ(run.Events("failure").size(), 1U);
  EXPECT_EQ(run.Events("failure")[0].at("number"), failures::NoObject);
  EXPECT_EQ(run.Events("failure")[0].at("handler"), "cmdOK_Click");
}

}  // namespace
}  // namespace orlin::testing
