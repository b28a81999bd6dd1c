#include "OrlinCustomDialogs/schedules.h"

#include "frame/services/modGeneral.h"
#include "support/broken_catalogue.h"
#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kTime = "clsTime_FirePanels Index={0} res='kept'";

TEST(Time, GivesBackTheMinutesSinceMidnight) {
  ExpectEach(
      {kTime, "dump;click cmdOK", "txtHour txtMinute result res Index"},
      {"0|00 00 0 0 0", "1439|23 59 0 1439 1439", "754|12 34 0 754 754", "59|00 59 0 59 59", "60|01 00 0 60 60"});
}

TEST(Time, TakesTheKeysOfAnyTime) {
  // The first digit replaces all that is marked. A digit between two counts as behind them.
  ExpectEach({kTime, "{1};dump;click cmdOK", "txtHour txtMinute res beeps"},
             {"754|type txtHour '23'|23 34 1414 0", "754|type txtHour '24'|2 34 154 1",
              "754|type txtHour '3';key txtHour Home;type txtHour '1'|13 34 814 0",
              "754|type txtHour '3';key txtHour Home;type txtHour '3'|3 34 214 1",
              "754|caret txtHour 1 0;type txtHour '0'|12 34 754 1", "754|type txtHour '012'|01 34 94 0",
              "754|type txtMinute '60'|12 6 726 1", "754|type txtMinute '59'|12 59 779 0",
              // A letter empties what is marked, and so does a mark of one digit.
              "754|type txtHour 'x'| 34 34 1", "754|caret txtHour 1 2147483647;type txtHour '5'|5 34 334 0",
              "754|key txtHour Backspace| 34 34 0", "754|caret txtHour 2 0;key txtHour Backspace|1 34 94 0",
              "754|caret txtHour 2 0;type txtHour 'x'|12 34 754 1", "754|type txtMinute 'x';focus txtHour|12 00 720 1",
              "754|type txtMinute '7';focus cmdOK|12 07 727 0", "754|key txtHour Up;key txtMinute PageUp|13 35 815 0",
              "754|key txtHour Down;key txtMinute PageDown|11 33 693 0",
              "754|step UpDown1 up 12;focus txtMinute;step UpDown1 down 35|00 59 59 0",
              "754|focus txtMinute;step UpDown1 up 26;focus txtHour;step UpDown1 down 13|23 00 1380 0",
              "754|focus cmdOK;step UpDown1 up;key cmdOK Down|12 34 754 2"});
}

TEST(Time, PromptsForTheBoxThatHasTheFocusAndStepsWithoutMovingTheCaret) {
  ExpectEach({kTime, "focus {1};dump", "title StatusBar1 txtHour.selLength txtMinute.selLength"},
             {"754|txtHour|1175 1177 1 2 0", "754|txtMinute|1175 1178 1 0 2", "754|cmdOK|1175  0 0"});
  ExpectEach({kTime, "caret txtHour 1 0;key - Up;key - PageDown;key - Up;dump", "txtHour txtHour.selStart"},
             {"754|13 1"});
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
  const auto run = Play("clsTime_FirePanels", {"Index=32767"}, "focus txtMinute\nkey - Up\nclick cmdOK");
  ASSERT_EQ(run.Events("failure").size(), 1U);
  EXPECT_EQ(run.Events("failure")[0].at("number"), failures::NoObject);
  EXPECT_EQ(run.Events("failure")[0].at("handler"), "cmdOK_Click");
}

}  // namespace
}  // namespace orlin::testing
