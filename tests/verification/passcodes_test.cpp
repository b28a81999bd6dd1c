#include <string>
#include <vector>

#include "OrlinCustomDialogs/verification.h"

#include "frame/modGeneral.h"
#include "support/broken_catalogue.h"
#include "verification/texts.h"

namespace orlin::testing {
namespace {

using Strings = std::vector<std::string>;

Value Users(const Strings& codes) {
  std::vector<Value> all(codes.begin(), codes.end());
  all.resize(250, "");
  return Array(std::move(all));
}

Json Items(int title, const Strings& rows = {}) {
  Json items = {Text(title), " "};
  for (const auto& row : rows) items.push_back(row);
  return items;
}

Json Cells(std::vector<Strings> rows) {
  rows.insert(rows.begin(), {Text(10720), Text(10721)});
  return rows;
}

/// A verification of passcodes of four digits.
struct Account {
  Strings Codes;
  Strings InTrouble = {};
  std::string Type = "0";
  Strings More = {};
  int Highest = 3;
  PlayOptions Options = {};

  [[nodiscard]] DialogRun Play(const std::string& script) const {
    auto options = Options;
    options.Objects["vresult"] = Users(Codes);
    options.Objects["vpresent"] = Users(InTrouble);
    options.Settings =
        "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Installation]\n\"APPLICATION_TYPE\"=\"" + Type + "\"\n";
    Strings arguments = {"vPasscodeLength=4", "iTotalNoOfUsers=" + std::to_string(Highest)};
    arguments.insert(arguments.end(), More.begin(), More.end());
    return testing::Play("clspasscodeLen", arguments, script, options);
  }
};

std::string Edit(int row, const std::string& text) {
  return "edit fa " + std::to_string(row) + " 1 \"" + text + "\"\n";
}

TEST(Passcodes, TypeOfApplicationSetsTheLayout) {
  for (const std::string type : {"0", "2"}) {
    const auto run = Account{.Codes = {"12345", "22", "3333"}, .Type = type}.Play("dump");
    EXPECT_EQ(run.Control("fa").at("cells"), Cells({{"0", "1234"}, {"1", "22"}, {"2", "3333"}, {"3", ""}}));
    EXPECT_EQ(run.Control("optSave").at("visible"), true);
    EXPECT_EQ(run.Control("optSave").at("value"), true);
    EXPECT_EQ(run.Control("optPlZeroSsave").at("visible"), true);
    EXPECT_EQ(run.Control("lblCaption").at("caption"), Text(10722) + "\r\n" + Text(10723) + "4.");
  }
  const auto usual = Account{.Codes = {}}.Play("dump");
  EXPECT_EQ(usual.Events("show").at(0).at("caption"), Text(10717));
  const std::vector<std::pair<const char*, int>> captions = {
      {"Label1", 10726}, {"Label2", 10727}, {"optSave", 10718}, {"optPlZeroSsave", 10732}, {"cmdOK", 101}};
  for (const auto& [name, text] : captions) EXPECT_EQ(usual.Control(name).at("caption"), Text(text));
  const auto run = Account{.Codes = {"12345", "22222", "3333", "", "44444"}, .Type = "1"}.Play("dump");
  EXPECT_EQ(run.Control("fa").at("cells"), Cells({{"1", "2222"}, {"2", "3333"}, {"3", ""}}));
  EXPECT_EQ(run.Control("optSave").at("visible"), false);
  EXPECT_EQ(run.Control("optPlZeroSsave").at("visible"), false);
  const auto top = [](const DialogRun& of, const char* name) { return of.Control(name).at("top").get<int>(); };
  for (const auto* name : {"Label1", "Label2", "Shape1", "Shape2"}) {
    EXPECT_EQ(top(run, name), top(usual, "Label1") - 1470) << name;
  }
  for (const auto* name : {"cmdOK", "cmdCancel"}) EXPECT_EQ(top(run, name), top(usual, "cmdOK") - 1200) << name;
  EXPECT_EQ(run.Argument("vresult"), Users({"1234", "2222", "3333", "", "44444"})) << "nothing behind the last user";
}

TEST(Passcodes, EntriesInTroubleAreListedAndMarked) {
  const auto run = Account{.Codes = {"1234", "12", "", "5678"}, .InTrouble = {"12349", "12", "", "5678"}}.Play("dump");
  EXPECT_EQ(run.Control("lstMatch").at("list"), Items(10713, {"0   : 1234", "3   : 5678"}));
  EXPECT_EQ(run.Control("lstUnusable").at("list"), Items(10714, {"1   : 12"}));
  EXPECT_EQ(run.Control("lstExisting").at("list"), Items(10715));
  EXPECT_EQ(run.Control("fa").at("colours"), (Json{{0, 0}, {0, 255}, {0, 16711680}, {0, 0}, {0, 255}}));
  EXPECT_EQ(run.Control("fa").at("bold"),
            (Json{{false, false}, {false, true}, {false, true}, {false, false}, {false, true}}));
  EXPECT_EQ(run.Control("cmdOK").at("enabled"), false);
}

TEST(Passcodes, UserZeroWithoutARowIsListedAndTheLastUserIsMarked) {
  const auto run = Account{.Codes = {"1234", "", "", "5678"}, .InTrouble = {"12", "", "", "5678"}, .Type = "1"}.Play(
      "dump\n" + Edit(3, "9999") + "dump");
  EXPECT_EQ(run.Control("lstUnusable", 0).at("list"), Items(10714, {"0   : 12"}));
  EXPECT_EQ(run.Control("lstMatch", 0).at("list"), Items(10713, {"3   : 5678"}));
  EXPECT_EQ(run.Control("fa", 0).at("colours"), (Json{{0, 0}, {0, 0}, {0, 0}, {0, 255}}));
  EXPECT_EQ(run.Control("fa", 1).at("colours"), (Json{{0, 0}, {0, 0}, {0, 0}, {0, 0}}));
  EXPECT_EQ(run.Control("cmdOK", 1).at("enabled"), false) << "user 0 stays in trouble";
  EXPECT_EQ(run.Argument("vresult"), Users({"1234", "", "", "9999"}));
}

TEST(Passcodes, NothingInTroubleAllowsOKAtOnce) {
  const auto run = Account{.Codes = {"1234"}}.Play("dump\nkey - Enter");
  EXPECT_EQ(run.Control("lstMatch").at("list"), Items(10713));
  EXPECT_EQ(run.Control("lstUnusable").at("list"), Items(10714));
  EXPECT_EQ(run.Argument("bChangedStatus"), Integer(1));
  EXPECT_EQ(run.Result, 0);
}

TEST(Passcodes, PasscodeInTheFamilyOfAnotherUserIsRefused) {
  const struct {
    const char* Theirs;
    const char* Mine;
    bool Conflict;
  } cases[] = {{"1230", "1238", true},  {"1230", "1232", true}, {"1230", "1237", false}, {"1231", "1239", true},
               {"1231", "1238", false}, {"1238", "1230", true}, {"1238", "1231", false}, {"1239", "1231", true},
               {"1239", "1232", false}, {"1234", "1234", true}, {"1234", "1236", true},  {"1234", "1232", true},
               {"1234", "1237", false}, {"1234", "2234", false}};
  for (const auto& [theirs, mine, conflict] : cases) {
    SCOPED_TRACE(theirs + std::string(" ") + mine);
    const auto run = Account{.Codes = {"9", theirs}, .InTrouble = {"9"}}.Play((conflict ? "answer 1\n" : "") +
                                                                              Edit(1, mine) + "dump");
    EXPECT_EQ(run.Control("fa").at("cells")[1][1], conflict ? "9" : mine);
    EXPECT_EQ(run.Control("cmdOK").at("enabled"), !conflict);
    EXPECT_EQ(run.Fields("message", "text"), Texts({conflict ? 10725 : 0}));
  }
}

TEST(Passcodes, OwnPasscodeStandsInTheWayForOtherTypesOnly) {
  // Row 1 holds user 0 or, for type 1, user 1, whose own passcode does not stand in his way; for type 2 that of the
  // wrong user does not.
  EXPECT_TRUE((Account{.Codes = {"1111", "2222"}}.Play(Edit(1, "1112")).Events("message").empty()));
  EXPECT_TRUE((Account{.Codes = {"1111", "2222"}, .Type = "1"}.Play(Edit(1, "2221")).Events("message").empty()));
  EXPECT_TRUE((Account{.Codes = {"1111", "2222"}, .Type = "2"}.Play(Edit(1, "2222")).Events("message").empty()));
  const auto refused = Account{.Codes = {"1111", "2222"}, .Type = "2"}.Play("answer 1\n" + Edit(1, "1112"));
  EXPECT_EQ(refused.Fields("message", "text"), Texts({10725}));
}

TEST(Passcodes, CorrectingOneOfTwoInConflictClearsBoth) {
  const auto run = Account{.Codes = {"1234", "1236", "12"}, .InTrouble = {"1234", "1236", "12"}}.Play(
      Edit(1, "5555") + "dump\n" + Edit(3, "") + "dump\nclick optPlZeroSsave\nclick optSave\nclick cmdOK");
  EXPECT_EQ(run.Control("lstMatch", 0).at("list"), Items(10713));
  EXPECT_EQ(run.Control("lstUnusable", 0).at("list"), Items(10714, {"2   : 12"}));
  EXPECT_EQ(run.Control("cmdOK", 0).at("enabled"), false);
  EXPECT_EQ(run.Control("fa", 0).at("row"), 1);
  EXPECT_EQ(run.Control("lstUnusable", 1).at("list"), Items(10714));
  EXPECT_EQ(run.Control("fa", 1).at("colours")[3][1], 0);
  EXPECT_EQ(run.Control("fa", 1).at("bold")[3][1], false);
  EXPECT_EQ(run.Control("cmdOK", 1).at("enabled"), true);
  EXPECT_EQ(run.Argument("vresult"), Users({"5555", "1236"}));
  EXPECT_EQ(run.Argument("vpresent"), Users({}));
}

TEST(Passcodes, TroubleThatRemainsKeepsItsEntries) {
  const auto run = Account{.Codes = {"1234", "1235", "1236", "12"}, .InTrouble = {"1234", "1235", "1236", "12"}}.Play(
      Edit(1, "7777") + "dump");
  EXPECT_EQ(run.Control("lstMatch").at("list"), Items(10713, {"1   : 1235", "2   : 1236"}));
  EXPECT_EQ(run.Control("lstUnusable").at("list"), Items(10714, {"3   : 12"}));
}

TEST(Passcodes, WrongCorrectionGoesBack) {
  const auto length = Account{.Codes = {"12"}, .InTrouble = {"12"}}.Play("answer 1\n" + Edit(1, "123") + "dump");
  EXPECT_EQ(length.Fields("message", "text"), Texts({10716}));
  EXPECT_EQ(length.Fields("message", "title"), Texts({1860}));
  EXPECT_EQ(length.Control("fa").at("cells")[1][1], "12");
  EXPECT_EQ(length.Control("lstUnusable").at("list"), Items(10714, {"0   : 12"}));
  EXPECT_EQ(length.Control("cmdOK").at("enabled"), false);

  // Only the host can bring in letters: the keys of the editor take digits.
  const auto letters =
      Account{.Codes = {"12a"}}.Play("answer 1\ncell fa 1 1\ndoubleclick fa\ntype fa \"x-4.\"\nkey fa Enter\ndump");
  EXPECT_EQ(letters.Fields("message", "text"), Texts({262}));
  EXPECT_EQ(letters.Control("fa").at("cells")[1][1], "12a");
  EXPECT_EQ(letters.Lines[letters.Lines.size() - 3].at("event"), "beep") << "after the message";
}

TEST(Passcodes, ListFollowsTheTyping) {
  const auto run = Account{.Codes = {"12", "1234", "1299", "5678"}}.Play(
      "answer 1\ndump\ntick Timer1\ncell fa 1 1\ndoubleclick fa\ntick Timer1\ndump\ntype fa \"30\"\ntick Timer1\n"
      "dump\nkey fa Backspace\ntype fa \"2\"\ntick Timer1\ndump\nkey fa Escape\ndump\ncell fa 1 1\ndoubleclick fa\n"
      "type fa \"1\"\ndump\nkey fa Backspace");
  const auto list = [&](std::size_t dump) { return run.Control("lstExisting", dump).at("list"); };
  const auto timer = [&](std::size_t dump, const char* field) { return run.Control("Timer1", dump).at(field); };
  EXPECT_EQ(timer(0, "interval"), 100);
  EXPECT_EQ(timer(1, "interval"), 1000);
  EXPECT_EQ(list(1), Items(10715, {"1  : 1234", "2  : 1299"}));
  EXPECT_EQ(list(2), Items(10715, {Text(10724)}));
  EXPECT_EQ(list(3), Items(10715, {"1  : 1234"})) << "1232 is in the family of 1234";
  EXPECT_EQ(list(4), Items(10715)) << "after the edit, whose old text is refused as too short";
  EXPECT_EQ(timer(4, "enabled"), false);
  EXPECT_EQ(timer(5, "enabled"), true);
}

TEST(Passcodes, EveryOutcomeCopiesBack) {
  const std::string edit = Edit(1, "7777");
  const std::string disable = "click optPlZeroSsave\nclick cmdOK";
  const struct {
    std::string Script;
    int Status;
    int Question;
    std::string Type = "0";
    Strings More = {};
  } cases[] = {{edit + "close", 0, 0},
               {"answer 1\n" + edit + "click cmdCancel", 0, 10728},
               {"answer 1\n" + edit + "key - Escape", 0, 10730, "0", {"bThroughComm=1"}},
               {"answer 1\n" + edit + "click cmdCancel", 0, 10744, "1", {"bThroughComm=1"}},
               {"answer 2\n" + edit + "click cmdCancel\nclick cmdOK", 1, 10728},
               {"answer 1\n" + edit + disable, 2, 10736},
               {"answer 1\n" + edit + disable, 2, 10735, "0", {"bThroughSIA=1"}},
               {"answer 1\n" + edit + disable, 2, 10734, "0", {"bThroughComm=1"}},
               {"answer 1\n" + edit + disable, 2, 10733, "0", {"bThroughComm=1", "bThroughSIA=1"}},
               {"answer 2\n" + edit + disable + "\nclick optSave\nclick cmdOK", 1, 10736}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.Script);
    const auto run =
        Account{.Codes = {"11", "12345"}, .InTrouble = {"11", ""}, .Type = row.Type, .More = row.More}.Play(row.Script);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("bChangedStatus"), Integer(row.Status));
    const auto expected = row.Type == "1" ? Users({"11", "7777"}) : Users({"7777", "1234"});
    EXPECT_EQ(run.Argument("vresult"), expected);
    EXPECT_EQ(run.Argument("vpresent"), row.Status == 0 ? Users({"11"}) : Users({}));
    EXPECT_EQ(run.Fields("message", "text"), Texts({row.Question}));
    EXPECT_EQ(run.Fields("message", "title"), Texts({row.Question == 0 ? 0 : 10729}));
  }
}

TEST(Passcodes, DisablingTheLengthNeedsNoCorrection) {
  const auto run = Account{.Codes = {"11"}, .InTrouble = {"11"}, .More = {"bThroughComm=1"}}.Play(
      "answer 1\nclick optPlZeroSsave\ndump\nclick optSave\ndump\nclick optPlZeroSsave\nclick cmdOK");
  EXPECT_EQ(run.Control("optPlZeroSsave").at("caption"), Text(10731));
  EXPECT_EQ(run.Control("cmdOK", 0).at("enabled"), true);
  EXPECT_EQ(run.Control("cmdOK", 1).at("enabled"), false);
  EXPECT_EQ(run.Argument("bChangedStatus"), Integer(2));
}

TEST(Passcodes, AnyRecordAboveTheOperatorHidesAllButCancel) {
  const struct {
    Strings Levels;
    bool Visible;
  } cases[] = {{{"AuthorityLevel=2,2", "Any=2,2"}, true},
               {{"AuthorityLevel=2,2", "Any=3,2"}, false},
               {{"AuthorityLevel=2,2", "Any=2,3"}, false}};
  for (const auto& row : cases) {
    const auto run = Account{.Codes = {}, .Options = {.Levels = row.Levels}}.Play("dump");
    for (const auto* name :
         {"cmdOK", "fa", "lstExisting", "lstMatch", "lstUnusable", "lblCaption", "optSave", "optPlZeroSsave"}) {
      EXPECT_EQ(run.Control(name).at("visible"), row.Visible) << name;
      EXPECT_EQ(run.Control(name).at("enabled"), true) << name;
    }
    EXPECT_EQ(run.Control("cmdCancel").at("visible"), true);
  }
  EXPECT_EQ((Account{.Codes = {}, .More = {"SecurityLevels=empty"}}.Play("").Result), 0);
  EXPECT_EQ((Account{.Codes = {}, .More = {"SecurityLevels=5"}}.Play("").Result), failures::ObjectRequired);
}

TEST(Passcodes, FailureBeforeTheShowTouchesNothing) {
  const auto fails = [](const Account& account, const Value& result, const Value& present) {
    const auto run = account.Play("");
    EXPECT_TRUE(run.Events("show").empty());
    EXPECT_EQ(run.Argument("vresult"), result);
    EXPECT_EQ(run.Argument("vpresent"), present);
    EXPECT_EQ(run.Argument("bChangedStatus"), Integer(0));
    return run.Result;
  };
  const auto none = Users({});
  EXPECT_EQ(fails({.Codes = {}, .Type = ""}, none, none), failures::TypeMismatch);
  EXPECT_EQ(fails({.Codes = {}, .Type = "40000"}, none, none), failures::Overflow);
  EXPECT_EQ(fails({.Codes = {}, .Highest = 250}, none, none), failures::SubscriptOutOfRange);
  EXPECT_EQ(fails({.Codes = {}, .Highest = 32766}, none, none), failures::Overflow);
  for (const std::string array : {"5", "[\"1\",\"2\"]", "empty"}) {
    const auto run = Play("clspasscodeLen",
                          {"vresult=" + array, "vpresent=[\"\"*250]", "vPasscodeLength=4", "iTotalNoOfUsers=3"}, "");
    EXPECT_EQ(run.Result, array[0] == '[' ? failures::SubscriptOutOfRange : failures::TypeMismatch) << array;
    EXPECT_TRUE(run.Events("show").empty());
  }
}

class PasscodeFaults : public BrokenCatalogueTest {
 protected:
  std::int32_t Display() {
    std::int16_t status = 0;
    return clspasscodeLen().Display(Codes, InTrouble, status, 4, 2);
  }
  Value Codes = Users({"12", "123x"});
  Value InTrouble = Users({"12"});
};

TEST_F(PasscodeFaults, FailureInANotificationIsShownAndTheEditEnds) {
  Host->Answers = {answers::Ok};
  Host->Operate = [this](shown::Dialog& dialog) {
    auto& fa = dynamic_cast<shown::Grid&>(*dialog.Find("fa"));
    FailsFor = 10716;
    fa.MakeCurrent(1, 1), fa.DoubleClick(), dialog.PressKey(Key::Typing(U'1')),
        dialog.PressKey(Key::Named(keys::Enter));
    EXPECT_FALSE(dialog.Find("Timer1")->Enabled());
    FailsFor = 0;
    fa.DoubleClick();
    EXPECT_TRUE(fa.Editing());
  };
  EXPECT_EQ(Display(), 0);
  EXPECT_EQ(Host->Happened, (Log{"show frmVerifyPasscodes", "message Object not set after edit "}));
}

TEST_F(PasscodeFaults, PasscodeThatDoesNotEndInADigitIsReportedAndConflictsWithNone) {
  ASSERT_EQ(InitApplicationVariables(), 0);
  Host->Operate = [](shown::Dialog& dialog) {
    auto& fa = dynamic_cast<shown::Grid&>(*dialog.Find("fa"));
    fa.MakeCurrent(1, 1), fa.DoubleClick(), fa.SetEditorCaret(0, 2), fa.PasteIntoEditor("1239");
    dialog.PressKey(Key::Named(keys::Enter));
    EXPECT_TRUE(dialog.Find("cmdOK")->Enabled());
  };
  EXPECT_EQ(Display(), 0);
  EXPECT_EQ(Faults, Log{"frmVerifyPasscodes CalculateDuressPasscode() 13"});
}

}  // namespace
}  // namespace orlin::testing
