#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

constexpr const char* kDuo = "clsSkedFunc_WillowDuo";
constexpr const char* kAce = "clsSkedFunc_WillowAce";
const std::string kCodeRecord = "Function Code Ref.# and Description";

/// A stored sked, each part as the command line writes it.
struct Sked {
  std::string Type = "1", Time = "", Edit = "0", Data = "0", Func = "\"005\"", No = "0";
};

using Strings = std::vector<std::string>;

DialogRun Open(const Sked& sked, const std::string& script, const Strings& levels = {}, const char* panel = kAce) {
  PlayOptions options;
  options.Levels = levels;
  return Play(panel,
              {"SkedNo=" + sked.No, "SkedType=" + sked.Type, "SkedTime=" + sked.Time, "TimeEdit=" + sked.Edit,
               "SkedData=" + sked.Data, "SkedFunc=" + sked.Func},
              script, options);
}

std::vector<Value> Stored(const DialogRun& run) {
  return {run.Argument("SkedType"), run.Argument("SkedTime"), run.Argument("TimeEdit"), run.Argument("SkedData"),
          run.Argument("SkedFunc")};
}

Strings WithDays(const std::string& levels, Strings records) {
  for (const auto* day : {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}) records.push_back(day + ("=" + levels));
  return records;
}

std::pair<bool, bool> VisibleAndEnabled(const Json& control) { return {control["visible"], control["enabled"]}; }

TEST(WillowSked, TitleTellsGroupAndEntryOfANumber) {
  for (const auto& [number, shown] :
       {std::pair{"0", "101"}, {"15", "116"}, {"16", "201"}, {"17", "202"}, {"\"99999\"", "625016"}}) {
    const auto run = Open({.No = number}, "close");
    EXPECT_EQ(run.Events("show")[0]["caption"], Text(1519, "SKED", shown));
  }
}

TEST(WillowSked, FailsBeforeItIsShown) {
  const std::pair<Sked, int> cases[] = {{{.No = "x"}, 13},
                                        {{.Time = "[1]"}, 13},
                                        {{.Type = "2", .Data = "12/31"}, 13},
                                        {{.Type = "2", .Data = "40000"}, 6}};
  for (const auto& [given, result] : cases) {
    const auto run = Open(given, "");
    EXPECT_EQ(run.Result, result) << given.Data;
    EXPECT_TRUE(run.Events("show").empty()) << given.Data;
  }
}

TEST(WillowSked, OkStoresWhatIsShown) {
  const auto none = Value("");
  const std::pair<Sked, std::vector<Value>> cases[] = {
      {{"1", "23:59", "1", "12/31", "\"347\""}, {Integer(1), "23:59", Integer(1), "12/31", "347"}},
      {{"\"1\"", "**:**", "\"1\"", "**/**", "12"}, {Integer(1), "**:**", Integer(1), "**/**", "012"}},
      {{"1", "5", "2", "00/00"}, {Integer(1), "05:00", Integer(0), "01/01", "005"}},
      {{"1", "", "empty", "1231"}, {Integer(1), "00:00", Integer(0), "01/01", "005"}},
      {{"1", "", "0", "02/29"}, {Integer(1), "00:00", Integer(0), "02/29", "005"}},
      {{"1", "", "0", "02/30"}, {Integer(1), "00:00", Integer(0), "02/01", "005"}},
      {{"1", "", "0", "13/05"}, {Integer(1), "00:00", Integer(0), "01/05", "005"}},
      {{"2", "", "0", "127"}, {Integer(2), "00:00", Integer(0), Integer(127), "005"}},
      {{"2", "", "0", "-1"}, {Integer(2), "00:00", Integer(0), Integer(127), "005"}},
      {{"2", "", "0", "\"5\""}, {Integer(2), "00:00", Integer(0), Integer(5), "005"}},
      {{"1", "\u00E9", "0", ""}, {Integer(1), "0\u00E9:00", Integer(0), "01/01", "005"}},
      {{"0", "", "0", "12/31"}, {Integer(0), "00:00", Integer(0), "12/31", none}},
      {{"100000", "", "0", "5L", "empty"}, {Integer(0), "00:00", Integer(0), 5, none}},
  };
  for (const auto& [given, stored] : cases) {
    const auto run = Open(given, "click cmdOK");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(Stored(run), stored);
  }
}

TEST(WillowSked, CancelChangesNothing) {
  const auto run = Open({"2", "", "0", "5L"}, R"(type txtHour "7"
    click chkTimeEdit
    click optDate
    caret cmbSkedCode 0 99
    key cmbSkedCode Backspace
    answer 1
    click cmdOK
    click cmdCancel)");
  EXPECT_EQ(run.Result, 1);
  EXPECT_EQ(Stored(run), (std::vector<Value>{Integer(2), "", Integer(0), 5, "005"}));
}

TEST(WillowSked, EachCodeHasItsText) {
  const std::tuple<std::size_t, int, std::string, std::string> cases[] = {
      {1, 1544, "", ""},         {10, 1553, "", ""},         {18, 1554, "RELAY", "8"},   {72, 1567, "ZONE", "1"},
      {85, 1566, "ZONE", "8"},   {96, 1570, "COMBO", "8"},   {97, 1570, "COMBO", "91"},  {116, 1561, "COMBO", "96"},
      {123, 1571, "LEVEL", "7"}, {163, 1877, "LEVEL", "7"},  {168, 1580, "DOOR", "D"},   {188, 1585, "DOOR", "D"},
      {189, 1879, "DOOR", "A"},  {236, 1588, "DOOR", "D"},   {237, 1589, "", ""},        {252, 1888, "COMBO", "8"},
      {253, 1889, "COMBO", "8"}, {254, 1888, "COMBO", "91"}, {265, 1889, "COMBO", "96"}, {293, 1591, "COMBO", "96"},
      {309, 1593, "RELAY", "8"}, {317, 1890, "ZONE", "8"},   {326, 1891, "ZONE", "8"},   {333, 1598, "DOOR", "D"},
      {347, 1603, "DOOR", "D"},
  };
  const auto ace = Open({}, "dump").Control("cmbSkedCode")["list"];
  ASSERT_EQ(ace.size(), 347);
  auto lacking = Json::array();
  for (std::size_t row = 0; row < ace.size(); ++row) {
    const auto code = std::to_string(1001 + row).substr(1);
    EXPECT_EQ(ace[row].get<std::string>().substr(0, 5), code + "  ");
    if (row < 116 || (row >= 236 && row < 327)) lacking.push_back(ace[row]);
  }
  for (const auto& [code, number, variable, value] : cases) {
    EXPECT_EQ(ace[code - 1].get<std::string>().substr(5), Text(number, variable, value)) << code;
  }
  EXPECT_EQ(Open({}, "dump", {}, kDuo).Control("cmbSkedCode")["list"], lacking);
}

TEST(WillowSked, StoredCodeSelectsItsRowOrNone) {
  const std::tuple<const char*, std::string, int> cases[] = {
      {kDuo, "\"116\"", 115}, {kDuo, "\"237\"", 116}, {kAce, "\"237\"", 236}, {kDuo, "\"327\"", 206},
      {kDuo, "\"328\"", -1},  {kDuo, "\"120\"", -1},  {kAce, "\"348\"", -1},  {kAce, "empty", -1},
      {kAce, "\"abc\"", -1},  {kAce, "1e9", -1},      {kAce, "\"0991\"", 98},
  };
  for (const auto& [panel, func, row] : cases) {
    const auto run = Open({.Func = func}, "dump", {}, panel);
    EXPECT_EQ(run.Control("cmbSkedCode")["listIndex"], row) << panel << " " << func;
  }
}

TEST(WillowSked, CodeIsCheckedKeyByKey) {
  const std::string clear = "caret cmbSkedCode 0 99\nkey cmbSkedCode Backspace\n";
  const std::string pick = "select cmbSkedCode 122\n";
  // Panel, what is done first, keys, what the text begins with then, its row, beeps.
  const std::tuple<const char*, std::string, std::string, std::string, int, std::size_t> cases[] = {
      {kAce, "", "12", "12", -1, 0},      {kAce, "", "120", "120  ", 119, 0},  {kDuo, "", "120", "12", -1, 1},
      {kDuo, "", "116", "116  ", 115, 0}, {kDuo, "", "237", "237  ", 116, 0},  {kDuo, "", "328", "32", -1, 1},
      {kAce, "", "347", "347  ", 346, 0}, {kAce, "", "348", "34", -1, 1},      {kAce, "", "000", "00", -1, 1},
      {kAce, "", "1.5", "1.", -1, 1},     {kAce, "", "x", "", -1, 1},          {kAce, "", " 12", "12", -1, 1},
      {kAce, "", "1005", "100  ", 99, 0}, {kAce, "", "12 ", "012  ", 11, 0},   {kAce, clear, "", "", -1, 0},
      {kAce, pick, "x", "123  ", 122, 1}, {kAce, pick + clear, "", "", -1, 0}, {kAce, pick + clear, "x", "", -1, 1},
  };
  for (const auto& [panel, before, keys, start, row, beeps] : cases) {
    const auto script = before + "type cmbSkedCode \"" + keys + "\"\ndump";
    const auto run = Open({.Func = "empty"}, script, {}, panel);
    const auto list = run.Control("cmbSkedCode");
    const auto text = list["text"].get<std::string>();
    EXPECT_EQ(row == -1 ? text : text.substr(0, 5), start) << panel << " " << script;
    EXPECT_EQ(list["listIndex"], row) << panel << " " << script;
    EXPECT_EQ(run.Events("beep").size(), beeps) << panel << " " << script;
  }
  const auto stored = Open({}, "type cmbSkedCode \"x\"\ndump");
  EXPECT_EQ(stored.Control("cmbSkedCode")["listIndex"], 4) << "a refused key brings the stored code back";
}

TEST(WillowSked, OkNeedsACodeAndADay) {
  const std::string ok = "answer 1\nclick cmdOK\ndump\n";
  const struct {
    Sked Given;
    std::string Script;
    int Message;
    const char* Focus;
    std::vector<Value> DataAndFunc;
  } cases[] = {{{.Data = "01/31"},
                "select cmbMonth 4\n" + ok + "select cmbDay 30\nclick cmdOK",
                1606,
                "cmbDay",
                {"04/30", "005"}},
               {{.Func = "empty"}, ok + "select cmbSkedCode 99\nclick cmdOK", 1610, "cmbSkedCode", {"01/01", "100"}},
               {{.Type = "2", .Data = "4", .Func = "empty"}, ok, 1610, "cmbSkedCode", {Integer(4), Value()}}};
  for (const auto& one : cases) {
    const auto run = Open(one.Given, one.Script);
    const Json message = run.Events("message").at(0);
    EXPECT_EQ(message["text"], Text(one.Message));
    EXPECT_EQ(message["title"], Text(one.Message + 1));
    EXPECT_EQ(message["flags"], 0);
    EXPECT_EQ(run.Events("beep").size(), 1);
    EXPECT_EQ(run.Focus(), one.Focus);
    EXPECT_EQ((std::vector{run.Argument("SkedData"), run.Argument("SkedFunc")}), one.DataAndFunc);
  }
}

TEST(WillowSked, MonthGivesTheListOfDays) {
  const std::vector<std::size_t> days = {31, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  std::string script;
  for (std::size_t month = 0; month < days.size(); ++month)
    script += "select cmbMonth " + std::to_string(month) + "\ndump\n";
  const auto run = Open({}, script);
  for (std::size_t month = 0; month < days.size(); ++month) {
    const auto list = run.Control("cmbDay", month)["list"];
    EXPECT_EQ(list.front(), "**");
    EXPECT_EQ(list.back(), std::to_string(days[month]));
    EXPECT_EQ(list.size(), days[month] + 1);
  }
  EXPECT_EQ(run.Control("cmbMonth")["list"][12], Text(1167));
}

TEST(WillowSked, EachTypeShowsItsFramesAndADateStartsAnew) {
  const auto date = Open({.Data = "05/20"}, "click optDate\nclick cmdOK");
  EXPECT_EQ(date.Argument("SkedData"), "01/01");
  const auto run =
      Open({.Type = "2", .Data = "4"},
           "dump\nclick chkDOW(6)\nclick optDOW\nclick chkDOW(2)\nclick optDate\ndump\nclick optDOW\ndump\nclick cmdOK",
           WithDays("0,0", {"AuthorityLevel=0,0"}));
  EXPECT_EQ(run.Argument("SkedData"), Integer(64));
  const auto off =
      Open({.Type = "2", .Data = "4"}, "click optDisabled\ndump\nclick cmdOK", WithDays("0,0", {"AuthorityLevel=0,0"}));
  EXPECT_EQ(Stored(off), (std::vector<Value>{Integer(0), "00:00", Integer(0), Integer(4), ""}));
  const std::tuple<const char*, std::vector<Json>> cases[] = {
      {"fraDate", {false, true, false, false}},
      {"fraDOW", {true, false, true, false}},
      {"fraCode", {true, true, true, false}},
  };
  for (const auto& [frame, visible] : cases) {
    EXPECT_EQ((std::vector<Json>{run.Control(frame, 0)["visible"], run.Control(frame, 1)["visible"],
                                 run.Control(frame, 2)["visible"], off.Control(frame)["visible"]}),
              visible)
        << frame;
  }
}

TEST(WillowSked, TimeIsCheckedKeyByKey) {
  // Box, keys, its text then, its text when it is left, beeps.
  const std::tuple<std::string, std::string, std::string, std::string, std::size_t> cases[] = {
      {"txtHour", "23", "23", "23", 0},  {"txtHour", "24", "2", "02", 1},    {"txtHour", "75", "7", "07", 1},
      {"txtHour", "*", "*", "**", 0},    {"txtHour", "**", "**", "**", 0},   {"txtHour", "***", "**", "**", 1},
      {"txtHour", "*5", "*", "**", 1},   {"txtHour", "2*", "2", "02", 1},    {"txtHour", "x", "", "00", 1},
      {"txtHour", "001", "00", "00", 0}, {"txtMinute", "59", "59", "59", 0}, {"txtMinute", "60", "6", "06", 1},
  };
  for (const auto& [box, keys, typed, left, beeps] : cases) {
    const auto run = Open({}, "type " + box + " \"" + keys + "\"\ndump\nfocus cmdOK\ndump");
    EXPECT_EQ(run.Control(box, 0)["text"], typed) << keys;
    EXPECT_EQ(run.Control(box, 1)["text"], left) << keys;
    EXPECT_EQ(run.Events("beep").size(), beeps) << keys;
  }
  const auto emptied = Open({.Time = "12:34"}, "key txtMinute Backspace\ndump\nkey - Enter");
  EXPECT_EQ(emptied.Control("txtMinute")["text"], "");
  EXPECT_EQ(emptied.Argument("SkedTime"), "12:00");
}

TEST(WillowSked, StepsTheTimeRound) {
  const std::tuple<std::string, std::string, Strings> cases[] = {{"txtHour", "up", {"23", "**", "00", "01"}},
                                                                 {"txtHour", "down", {"01", "00", "**", "23"}},
                                                                 {"txtHour", "up", {"99", "00"}},
                                                                 {"txtMinute", "up", {"59", "**", "00"}},
                                                                 {"txtMinute", "down", {"00", "**", "59"}}};
  for (const auto& [box, direction, texts] : cases) {
    std::string script = "focus " + box + "\n";
    for (std::size_t i = 0; i < texts.size(); ++i) script += "dump\nstep udTime " + direction + "\n";
    const auto run = Open({.Time = texts[0] + ":" + texts[0]}, script);
    for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(run.Control(box, i)["text"], texts[i]);
  }
  const auto elsewhere = Open({.Time = "07:07"}, "focus cmdOK\nstep udTime up\nclick cmdOK");
  EXPECT_EQ(elsewhere.Events("beep").size(), 1);
  EXPECT_EQ(elsewhere.Argument("SkedTime"), "07:07");
}

TEST(WillowSked, RightsHideAndDisable) {
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"Time", "fraTime", "1"},      {"Date", "fraDate", "1"},  {"Time Edit", "chkTimeEdit", "1"},
      {kCodeRecord, "fraCode", "2"}, {"Sun", "chkDOW(0)", "2"}, {"Sat", "chkDOW(6)", "2"},
  };
  for (const auto& [record, control, type] : cases) {
    for (const auto& [levels, expected] :
         {std::pair{"=1,1", std::pair{true, true}}, {"=1,2", {true, false}}, {"=2,2", {false, false}}}) {
      const auto run = Open({.Type = type}, "dump", {"AuthorityLevel=1,1", record + levels});
      EXPECT_EQ(VisibleAndEnabled(run.Control(control)), expected) << record << levels;
    }
  }
}

TEST(WillowSked, ViewLevelAloneDecidesWhenATypeIsChosen) {
  using Flags = std::pair<bool, bool>;
  const std::tuple<std::string, Flags, Flags> cases[] = {
      // required, when the dialog opens, after the choice
      {"2,2", {true, false}, {true, true}},
      {"2,3", {true, false}, {true, false}},
      {"3,2", {false, false}, {false, true}},
      {"3,0", {false, true}, {false, true}},
  };
  const std::tuple<const char*, const char*, Strings> types[] = {
      {"1", "dump\nclick optDate\ndump", {"fraDate", "fraCode"}},
      {"2", "dump\nclick optDOW\ndump", {"chkDOW(0)", "chkDOW(6)", "fraCode"}}};
  for (const auto& [levels, opened, chosen] : cases) {
    const auto all = WithDays(levels, {"AuthorityLevel=2,0", "Date=" + levels, kCodeRecord + "=" + levels});
    for (const auto& [type, script, parts] : types) {
      const auto run = Open({.Type = type}, script, all);
      EXPECT_EQ(VisibleAndEnabled(run.Control(*type == '1' ? "fraDate" : "fraDOW")), chosen) << levels;
      for (const auto& part : parts) {
        EXPECT_EQ(VisibleAndEnabled(run.Control(part, 0)), opened) << part << levels;
        EXPECT_EQ(VisibleAndEnabled(run.Control(part, 1)), chosen) << part << levels;
      }
    }
  }
}

TEST(WillowSked, WithoutRecordsADateShowsAndDaysDoNot) {
  const auto run = Open({.Type = "1"}, "dump\nclick optDOW\ndump\nclick optDate\ndump");
  const std::pair all{true, true};
  for (const auto* control : {"fraDate", "fraCode"}) {
    for (const std::size_t dump : {0U, 2U}) EXPECT_EQ(VisibleAndEnabled(run.Control(control, dump)), all) << control;
  }
  for (const auto* control : {"fraDOW", "chkDOW(0)", "chkDOW(6)"}) {
    EXPECT_EQ(run.Control(control, 1)["visible"], false) << control;
  }
  const auto oneDay = Open({.Type = "2"}, "dump", {"AuthorityLevel=0,0", "Wed=0,0"});
  EXPECT_EQ(VisibleAndEnabled(oneDay.Control("fraDOW")), all);
  for (const int day : {2, 3}) {
    EXPECT_EQ(oneDay.Control("chkDOW(" + std::to_string(day) + ")")["visible"], day == 3);
  }
}

}  // namespace
}  // namespace orlin::testing
