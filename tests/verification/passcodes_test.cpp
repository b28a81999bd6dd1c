#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/verification.h"

#include "frame/services/modGeneral.h"
#include "support/broken_catalogue.h"
#include "verification/texts.h"

namespace orlin::testing {
namespace {

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
  const auto top = [](const DialogRun& run, const char* name) { return run.Control(name).at("top").get<int>(); };
  const auto usual = Account{.Codes = {"12345", "22", "3333"}}.Play("dump\nkey - Enter");
  const auto users = Account{.Codes = {"12345", "22222", "3333", "", "44444"}, .Type = "1"}.Play("dump");
  EXPECT_EQ(usual.Control("fa").at("cells"), Cells({{"0", "1234"}, {"1", "22"}, {"2", "3333"}, {"3", ""}}));
  EXPECT_EQ(usual.Control("lblCaption").at("caption"), Text(10722) + "\r\n" + Text(10723) + "4.");
  EXPECT_EQ(usual.Events("show").at(0).at("caption"), Text(10717));
  EXPECT_EQ(usual.Control("optPlZeroSsave").at("caption"), Text(10732));
  EXPECT_EQ(usual.Control("optSave").at("value"), true);
  EXPECT_EQ(usual.Control("lstMatch").at("list"), Items(10713));
  EXPECT_EQ(usual.Control("lstUnusable").at("list"), Items(10714));
  EXPECT_EQ(usual.Argument("bChangedStatus"), Integer(1)) << "nobody is in trouble";
  EXPECT_EQ(users.Control("fa").at("cells"), Cells({{"1", "2222"}, {"2", "3333"}, {"3", ""}}));
  for (const auto* name : {"optSave", "optPlZeroSsave"}) {
    EXPECT_EQ(usual.Control(name).at("visible"), true);
    EXPECT_EQ(users.Control(name).at("visible"), false);
  }
  for (const auto* name : {"Label1", "Label2", "Shape1", "Shape2"}) {
    EXPECT_EQ(top(users, name), top(usual, "Label1") - 1470) << name;
  }
  for (const auto* name : {"cmdOK", "cmdCancel"}) EXPECT_EQ(top(users, name), top(usual, "cmdOK") - 1200) << name;
  EXPECT_EQ(users.Argument("vresult"), Users({"1234", "2222", "3333", "", "44444"})) << "nothing behind the last user";
}

TEST(Passcodes, EntriesInTroubleAreListedAndMarked) {
  const auto run = Account{.Codes = {"1234", "12", "", "5678"}, .InTrouble = {"12349", "12", "", "5678"}}.Play("dump");
  EXPECT_EQ(run.Control("lstMatch").at("list"), Items(10713, {"0   : 1234", "3   : 5678"}));
  EXPECT_EQ(run.Control("lstUnusable").at("list"), Items(10714, {"1   : 12"}));
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

TEST(Passcodes, PasscodeInTheFamilyOfAnotherUserIsRefused) {
  // Type, codes of users 0 and 1, what is typed in the first row, conflict. The own passcode stands in the way for
  // other types than 0 and 1 only, where that of the wrong user does not.
  const std::tuple<std::string, std::string, std::string, std::string, bool> cases[] = {
      {"0", "", "1230", "1238", true},      {"0", "", "1230", "1237", false},     {"0", "", "1230", "1232", true},
      {"0", "", "1231", "1239", true},      {"0", "", "1231", "1238", false},     {"0", "", "1238", "1230", true},
      {"0", "", "1238", "1231", false},     {"0", "", "1239", "1231", true},      {"0", "", "1239", "1232", false},
      {"0", "", "1234", "1234", true},      {"0", "", "1234", "1237", false},     {"0", "", "1234", "2234", false},
      {"0", "1111", "2222", "1112", false}, {"1", "1111", "2222", "2221", false}, {"2", "1111", "2222", "2222", false},
      {"2", "1111", "2222", "1112", true}};
  for (const auto& [type, zero, one, mine, conflict] : cases) {
    const auto run =
        Account{.Codes = {zero, one}, .Type = type}.Play((conflict ? "answer 1\n" : "") + Edit(1, mine) + "dump");
    EXPECT_EQ(run.Control("fa").at("cells")[1][1], conflict ? zero : mine) << one;
    EXPECT_EQ(run.Fields("message", "text"), Texts({conflict ? 10725 : 0})) << one << mine;
  }
}

TEST(Passcodes, CorrectingOneOfTwoInConflictClearsBoth) {
  const Strings codes = {"1234", "1236", "12", "1235"};
  const auto run = Account{.Codes = codes, .InTrouble = codes}.Play(
      Edit(4, "7777") + "dump\n" + Edit(1, "5555") + "dump\n" + Edit(3, "") +
      "dump\nclick optPlZeroSsave\nclick optSave\nclick cmdOK");
  const auto lists = [&](std::size_t dump) {
    return std::pair(run.Control("lstMatch", dump).at("list"), run.Control("lstUnusable", dump).at("list"));
  };
  EXPECT_EQ(lists(0), std::pair(Items(10713, {"0   : 1234", "1   : 1236"}), Items(10714, {"2   : 12"})));
  EXPECT_EQ(lists(1), std::pair(Items(10713), Items(10714, {"2   : 12"})));
  EXPECT_EQ(run.Control("fa", 1).at("row"), 1);
  EXPECT_EQ(lists(2), std::pair(Items(10713), Items(10714)));
  EXPECT_EQ(run.Control("fa", 2).at("colours")[3][1], 0);
  EXPECT_EQ(run.Control("fa", 2).at("bold")[3][1], false);
  for (const std::size_t dump : {0U, 1U, 2U}) EXPECT_EQ(run.Control("cmdOK", dump).at("enabled"), dump == 2);
  EXPECT_EQ(run.Argument("vresult"), Users({"5555", "1236", "", "7777"}));
  EXPECT_EQ(run.Argument("vpresent"), Users({}));
}

TEST(Passcodes, WrongCorrectionGoesBack) {
  const auto length = Account{.Codes = {"12"}, .InTrouble = {"12"}}.Play("answer 1\n" + Edit(1, "123") + "dump");
  EXPECT_EQ(length.Fields("message", "text"), Texts({10716}));
  EXPECT_EQ(length.Fields("message", "title"), Texts({1860}));
  EXPECT_EQ(length.Control("fa").at("cells")[1][1], "12");
  EXPECT_EQ(length.Control("lstUnusable").at("list"), Items(10714, {"0   : 12"}));
  EXPECT_EQ(length.Control("cmdOK").at("enabled"), false);

  // Only the host can bring in letters: the keys of the editor take digits.
  const auto letters = Account{.Codes = {"12a"}}.Play(
      "answer 1\ncell fa 1 1\ndoubleclick fa\nkey fa End\ntype fa \"x-4.\"\nkey fa Enter\ndump");
  EXPECT_EQ(letters.Fields("message", "text"), Texts({262}));
  EXPECT_EQ(letters.Control("fa").at("cells")[1][1], "12a");
  EXPECT_EQ(letters.Lines[letters.Lines.size() - 3].at("event"), "beep") << "after the message";
}

TEST(Passcodes, ListFollowsTheTyping) {
  const auto run = Account{.Codes = {"12", "1234", "1299", "5678"}}.Play(
      "answer 1\ndump\ntick Timer1\ncell fa 1 1\ndoubleclick fa\ntick Timer1\ndump\nkey - End\ntype fa \"30\"\ntick "
      "Timer1\n"
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
  // Disabling the length needs no correction.
  const auto run = Account{.Codes = {"11"}, .InTrouble = {"11"}, .More = {"bThroughComm=1"}}.Play(
      "answer 1\nclick optPlZeroSsave\ndump\nclick optSave\ndump\nclick optPlZeroSsave\nclick cmdOK");
  for (const std::size_t dump : {0U, 1U}) EXPECT_EQ(run.Control("cmdOK", dump).at("enabled"), dump == 0);
  EXPECT_EQ(run.Control("optPlZeroSsave").at("caption"), Text(10731));
  EXPECT_EQ(run.Argument("bChangedStatus"), Integer(2));
}

TEST(Passcodes, AnyRecordAboveTheOperatorHidesAllButCancel) {
  for (const auto& [any, visible] : {std::pair{"Any=2,2", true}, {"Any=3,2", false}, {"Any=2,3", false}}) {
    const auto run = Account{.Codes = {}, .Options = {.Levels = {"AuthorityLevel=2,2", any}}}.Play("dump");
    for (const auto* name :
         {"cmdOK", "fa", "lstExisting", "lstMatch", "lstUnusable", "lblCaption", "optSave", "optPlZeroSsave"}) {
      EXPECT_EQ(run.Control(name).at("visible"), visible) << name;
      EXPECT_EQ(run.Control(name).at("enabled"), true) << name;
    }
    EXPECT_EQ(run.Control("cmdCancel").at("visible"), true);
  }
}

TEST(Passcodes, FailureBeforeTheShowTouchesNothing) {
  EXPECT_EQ((Account{.Codes = {}, .More = {"SecurityLevels=empty"}}.Play("").Result), 0);
  const std::pair<Account, int> cases[] = {
      {{.Codes = {}, .Type = ""}, failures::TypeMismatch},
      {{.Codes = {}, .Type = "40000"}, failures::Overflow},
      {{.Codes = {}, .Highest = 250}, failures::SubscriptOutOfRange},
      {{.Codes = {}, .Highest = 32766}, failures::Overflow},
      {{.Codes = {}, .More = {"SecurityLevels=5"}}, failures::ObjectRequired},
  };
  for (const auto& [account, failure] : cases) {
    const auto run = account.Play("");
    EXPECT_EQ(run.Result, failure);
    EXPECT_TRUE(run.Events("show").empty());
    EXPECT_EQ(run.Argument("vresult"), Users({}));
    EXPECT_EQ(run.Argument("vpresent"), Users({}));
    EXPECT_EQ(run.Argument("bChangedStatus"), Integer(0));
  }
  for (const std::string array : {"5", "[\"1\",\"2\"]", "empty"}) {
    const auto run = Play("clspasscodeLen",
                          {"vresult=" + array, "vpresent=[\"\"*250]", "vPasscodeLength=4", "iTotalNoOfUsers=3"}, "");
    EXPECT_EQ(run.Result, array[0] == '[' ? failures::SubscriptOutOfRange : failures::TypeMismatch) << array;
  }
}

class PasscodeFaults : public BrokenCatalogueTest {
 protected:
  std::int32_t Display(const std::function<void(shown::Dialog&, shown::Table&)>& operate) {
    Host->Operate = [&](shown::Dialog& dialog) { operate(dialog, *dialog.Find("fa")->AsTable()); };
    Value codes = Users({"12", "123x"});
    Value inTrouble = Users({"12"});
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
