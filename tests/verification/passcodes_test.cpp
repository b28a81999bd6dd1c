#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/verification.h"

#include "frame/services/modGeneral.h"
#include "support/broken_catalogue.h"
#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

/// The passcodes of 250 users as an argument: "11,22".
std::string Users(const std::string& first) {
  auto codes = Split(first, ",");
  while (!codes.empty() && codes.back().empty()) codes.pop_back();
  std::string users;
  for (const auto& code : codes) users += "'" + code + "',";
  return "[" + users + "''*" + std::to_string(250 - codes.size()) + "]";
}

/// A verification of passcodes of four digits.
struct Account {
  std::string Codes;
  std::string InTrouble = {};
  std::string Type = "0";  // of application
  std::string More = {};

  void Expect(const std::string& script, const std::string& words, const std::string& expected) const {
    ExpectEach({.Call = "clspasscodeLen vPasscodeLength=4 iTotalNoOfUsers=3 vresult=" + Users(Codes) +
                        " vpresent=" + Users(InTrouble) + " " + More,
                .Script = script,
                .Words = words,
                .Settings = "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Installation]\n\"APPLICATION_TYPE\"=\"" +
                            Type + "\"\n"},
               {expected});
  }
};

std::string Edit(int row, const std::string& text) { return "edit fa " + std::to_string(row) + " 1 '" + text + "';"; }

TEST(Passcodes, TypeOfApplicationSetsTheLayout) {
  Account{"12345,22,3333"}.Expect(
      "dump;key - Enter", "title lblCaption optPlZeroSsave optSave.value lstMatch lstUnusable bChangedStatus fa.cells",
      R"(10717 10722)"
      "\r\n"
      R"(107234. 10732 true [10713,  ] [10714,  ] 1 )"
      R"([["10720","10721"],["0","1234"],["1","22"],["2","3333"],["3",""]])");
  // Nothing is cut behind the last user.
  Account{"12345,22222,3333,,44444", "", "1"}.Expect(
      "dump", "vresult fa.cells",
      Users("1234,2222,3333,,44444") + R"( [["10720","10721"],["1","2222"],["2","3333"],["3",""]])");
  const std::string words =
      "optSave.visible optPlZeroSsave.visible Label1.top Label2.top Shape1.top Shape2.top "
      "cmdOK.top cmdCancel.top";
  Account{""}.Expect("dump", words, "true true 5640 5640 5640 5640 0 0");
  Account{"", "", "1"}.Expect("dump", words, "false false 4170 4170 4170 4170 -1200 -1200");
}

TEST(Passcodes, EntriesInTroubleAreListedAndMarked) {
  Account{"1234,12,,5678", "12349,12,,5678"}.Expect(
      "dump", "lstMatch lstUnusable cmdOK.enabled fa.colours fa.bold",
      "[10713,  , 0   : 1234, 3   : 5678] [10714,  , 1   : 12] false [[0,0],[0,255],[0,16711680],[0,0],[0,255]] "
      "[[false,false],[false,true],[false,true],[false,false],[false,true]]");
  // User 0 has no row and stays in trouble.
  Account{"1234,,,5678", "12,,,5678", "1"}.Expect(
      "dump;" + Edit(3, "9999") + "dump", "0:lstUnusable 0:lstMatch 0:fa.colours fa.colours cmdOK.enabled vresult",
      "[10714,  , 0   : 12] [10713,  , 3   : 5678] [[0,0],[0,0],[0,0],[0,255]] [[0,0],[0,0],[0,0],[0,0]] false " +
          Users("1234,,,9999"));
}

TEST(Passcodes, PasscodeInTheFamilyOfAnotherUserIsRefused) {
  // Type, codes of users 0 and 1, what is typed in the first row. The own passcode stands in the way for other types
  // than 0 and 1 only, where that of the wrong user does not.
  const auto type = [](const std::string& row, const std::string& messages) {
    const auto cells = Split(row, " ");
    const bool conflict = !messages.empty();
    const auto kept = cells[0] == "1" ? cells[2] : cells[1], other = cells[0] == "1" ? cells[1] : cells[2];
    const auto mine = conflict ? kept : cells[3];
    Account{cells[1] + "," + cells[2], "", cells[0]}.Expect(
        (conflict ? "answer 1;" : "") + Edit(1, cells[3]), "messages vresult",
        messages + " " + Users(cells[0] == "1" ? other + "," + mine : mine + "," + other));
  };
  for (const auto* row : {"0  1230 1238", "0  1230 1232", "0  1231 1239", "0  1238 1230", "0  1239 1231",
                          "0  1234 1234", "2 1111 2222 1112"}) {
    type(row, "10725/1860/0");
  }
  for (const auto* row : {"0  1230 1237", "0  1231 1238", "0  1238 1231", "0  1239 1232", "0  1234 1237",
                          "0  1234 2234", "0 1111 2222 1112", "1 1111 2222 2221", "2 1111 2222 2222"}) {
    type(row, "");
  }
}

TEST(Passcodes, CorrectingOneOfTwoInConflictClearsBoth) {
  const std::string codes = "1234,1236,12,1235";
  Account{codes, codes}.Expect(
      Edit(4, "7777") + "dump;" + Edit(1, "5555") + "dump;" + Edit(3, "") +
          "dump;click optPlZeroSsave;click optSave;click cmdOK",
      "0:lstMatch 0:lstUnusable 0:cmdOK.enabled 1:lstMatch 1:lstUnusable 1:cmdOK.enabled 1:fa.row lstMatch lstUnusable "
      "cmdOK.enabled fa.colours fa.bold vresult vpresent",
      "[10713,  , 0   : 1234, 1   : 1236] [10714,  , 2   : 12] false [10713,  ] [10714,  , 2   : 12] false 1 [10713,  "
      "] "
      "[10714,  ] true [[0,0],[0,0],[0,0],[0,0],[0,0]] "
      "[[false,false],[false,false],[false,false],[false,false],[false,false]] " +
          Users("5555,1236,,7777") + " " + Users(""));
}

TEST(Passcodes, WrongCorrectionGoesBack) {
  const std::string words = "messages lstUnusable cmdOK.enabled vresult events";
  Account{"12", "12"}.Expect("answer 1;" + Edit(1, "123") + "dump", words,
                             "10716/1860/0 [10714,  , 0   : 12] false " + Users("12") + " show message state return");
  // Only the host can bring in letters: the keys of the editor take digits.
  Account{"12a"}.Expect("answer 1;cell fa 1 1;doubleclick fa;key fa End;type fa 'x-4.';key fa Enter;dump", words,
                        "262/1860/0 [10714,  ] true " + Users("12a") + " show message beep state return");
}

TEST(Passcodes, ListFollowsTheTyping) {
  // 1232 is in the family of 1234. After the edit the old text is refused as too short.
  Account{"12,1234,1299,5678"}.Expect(
      "answer 1;dump;tick Timer1;cell fa 1 1;doubleclick fa;tick Timer1;dump;key - End;type fa '30';tick Timer1;"
      "dump;key fa Backspace;type fa '2';tick Timer1;dump;key fa Escape;dump;cell fa 1 1;doubleclick fa;"
      "type fa '1';dump;key fa Backspace",
      "0:Timer1.interval 1:Timer1.interval 1:lstExisting 2:lstExisting 3:lstExisting 4:lstExisting 4:Timer1.enabled "
      "5:Timer1.enabled",
      "100 1000 [10715,  , 1  : 1234, 2  : 1299] [10715,  , 10724] [10715,  , 1  : 1234] [10715,  ] false true");
}

TEST(Passcodes, EveryOutcomeCopiesBack) {
  const std::string edit = Edit(1, "7777"), disable = "click optPlZeroSsave;click cmdOK";
  const struct {
    std::string Script;
    int Status;
    std::string Question = {}, More = {}, Type = "0";
  } cases[] = {{edit + "close", 0},
               {"answer 1;" + edit + "click cmdCancel", 0, "10728"},
               {"answer 1;" + edit + "key - Escape", 0, "10730", "bThroughComm=1"},
               {"answer 1;" + edit + "click cmdCancel", 0, "10744", "bThroughComm=1", "1"},
               {"answer 2;" + edit + "click cmdCancel;click cmdOK", 1, "10728"},
               {"answer 1;" + edit + disable, 2, "10736"},
               {"answer 1;" + edit + disable, 2, "10735", "bThroughSIA=1"},
               {"answer 1;" + edit + disable, 2, "10734", "bThroughComm=1"},
               {"answer 1;" + edit + disable, 2, "10733", "bThroughComm=1 bThroughSIA=1"},
               {"answer 2;" + edit + disable + ";click optSave;click cmdOK", 1, "10736"}};
  for (const auto& [script, status, question, more, type] : cases) {
    Account{"11,12345", "11", type, more}.Expect(
        script, "result bChangedStatus vresult vpresent messages",
        "0 " + std::to_string(status) + " " + Users(type == "1" ? "11,7777" : "7777,1234") + " " +
            Users(status == 0 ? "11" : "") + " " + (question.empty() ? "" : question + "/10729/1"));
  }
  // Disabling the length needs no correction.
  Account{"11", "11", "0", "bThroughComm=1"}.Expect(
      "answer 1;click optPlZeroSsave;dump;click optSave;dump;click optPlZeroSsave;click cmdOK",
      "0:cmdOK.enabled cmdOK.enabled optPlZeroSsave bChangedStatus", "true false 10731 2");
}

TEST(Passcodes, TypeOfApplicationHasToBeANumber) {
  Account{"", "", "0", "SecurityLevels=empty"}.Expect("", "result", "0");
  Account{"", "", ""}.Expect("", "result vresult", "13 " + Users(""));
  Account{"", "", "40000"}.Expect("", "result vresult", "6 " + Users(""));
}

class PasscodeFaults : public BrokenCatalogueTest {
 protected:
  std::int32_t Display(const std::function<void(shown::Dialog&, shown::Table&)>& operate) {
    Host->Operate = [&](shown::Dialog& dialog) { operate(dialog, *dialog.Find("fa")->AsTable()); };
    std::vector<Value> entries(250, "");
    entries[0] = "12";
    Value inTrouble = Array(entries);
    entries[1] = "123x";
    Value codes = Array(entries);
    std::int16_t status = 0;
    return clspasscodeLen().Display(codes, inTrouble, status, 4, 2);
  }
};

TEST_F(PasscodeFaults, FailureInANotificationIsShownAndTheEditEnds) {
  Host->Answers = {answers::Ok};
  const auto operate = [this](shown::Dialog& dialog, shown::Table& fa) {
    FailsFor = 10716;
    fa.MakeCurrent(1, 1), fa.DoubleClick();
    dialog.PressKey(Key::Typing(U'1')), dialog.PressKey(Key::Named(keys::Enter));
    EXPECT_FALSE(dialog.Find("Timer1")->Enabled());
    FailsFor = 0;
    fa.DoubleClick();
    EXPECT_TRUE(fa.Editing());
  };
  EXPECT_EQ(Display(operate), 0);
  EXPECT_EQ(Host->Happened, (Log{"show frmVerifyPasscodes", "message Object not set after edit "}));
}

TEST_F(PasscodeFaults, PasscodeThatDoesNotEndInADigitIsReportedAndConflictsWithNone) {
  ASSERT_EQ(InitApplicationVariables(), 0);
  const auto operate = [](shown::Dialog& dialog, shown::Table& fa) {
    fa.MakeCurrent(1, 1), fa.DoubleClick(), fa.SetEditorCaret(0, 2), fa.PasteIntoEditor("1239");
    dialog.PressKey(Key::Named(keys::Enter));
    EXPECT_TRUE(dialog.Find("cmdOK")->Enabled());
  };
  EXPECT_EQ(Display(operate), 0);
  EXPECT_EQ(Faults, Log{"frmVerifyPasscodes CalculateDuressPasscode() 13"});
}

}  // namespace
}  // namespace orlin::testing
