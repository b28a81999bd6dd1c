#include <array>
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
  std::string Type = "1", Time = "", Edit = "0", Data = "", Func = "\"005\"", No = "0";
};

DialogRun Open(const Sked& sked, const std::string& script, const std::vector<std::string>& levels = {},
               const char* panel = kAce) {
  PlayOptions options;
  options.Levels = levels;
  return Play(panel,
              {"SkedNo=" + sked.No, "SkedType=" + sked.Type, "SkedTime=" + sked.Time, "TimeEdit=" + sked.Edit,
               "SkedData=" + sked.Data, "SkedFunc=" + sked.Func},
              script, options);
}

std::vector<Value> Stored(const DialogRun& run) {
  std::vector<Value> values;
  for (const auto* name : {"SkedType", "SkedTime", "TimeEdit", "SkedData", "SkedFunc"}) {
    values.push_back(run.Argument(name));
  }
  return values;
}

std::vector<std::string> WithDays(const std::string& levels, std::vector<std::string> records) {
  for (const auto* day : {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}) records.push_back(day + ("=" + levels));
  return records;
}

std::pair<bool, bool> VisibleAndEnabled(const Json& control) { return {control["visible"], control["enabled"]}; }

TEST(WillowSked, TitleTellsGroupAndEntry) {
  for (const auto& [number, shown] :
       {std::pair{"0", "101"}, {"15", "116"}, {"16", "201"}, {"17", "202"}, {"\"99999\"", "625016"}}) {
    const auto run = Open({.No = number}, "close");
    EXPECT_EQ(run.Events("show")[0]["caption"], Text(1519, "SKED", shown));
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
      {{"2", "", "0", "12/31"}, {Integer(2), "00:00", Integer(0), Integer(0), "005"}},
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
  const auto run = Open({"2", "", "0", "5L"}, R"(
    type txtHour "7"
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

TEST(WillowSked, NumberOrTimeThatIsNoneFails) {
  EXPECT_EQ(Open({.No = "x"}, "close").Result, 13);
  EXPECT_EQ(Open({.Time = "[1]"}, "close").Result, 13);
}

TEST(WillowSked, EachCodeHasItsText) {
  const std::tuple<std::size_t, std::int16_t, std::string, std::string> cases[] = {
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
      {kDuo, "\"328\"", -1},  {kDuo, "\"236\"", -1},  {kDuo, "\"120\"", -1},  {kAce, "\"348\"", -1},
      {kAce, "empty", -1},    {kAce, "\"abc\"", -1},  {kAce, "1e9", -1},      {kAce, "\"0991\"", 98},
  };
  for (const auto& [panel, func, row] : cases) {
    const auto run = Open({.Func = func}, "dump", {}, panel);
    EXPECT_EQ(run.Control("cmbSkedCode")["listIndex"], row) << panel << " " << func;
    EXPECT_EQ(run.Result, 1);
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

void ExpectMessage(const DialogRun& run, std::int16_t text, std::int16_t title, const std::string& focus) {
  EXPECT_EQ(run.Fields("message", "text"), std::vector<Json>{Text(text)});
  EXPECT_EQ(run.Fields("message", "title"), std::vector<Json>{Text(title)});
  EXPECT_EQ(run.Fields("message", "flags"), std::vector<Json>{0});
  EXPECT_EQ(run.Events("beep").size(), 1);
  EXPECT_EQ(run.Focus(), focus);
}

TEST(WillowSked, OkNeedsACode) {
  for (const auto& type : {"1", "2"}) {
    const auto run = Open({.Type = type, .Func = "empty"}, "answer 1\nclick cmdOK\ndump");
    ExpectMessage(run, 1610, 1611, "cmbSkedCode");
    EXPECT_EQ(run.Result, 1);
  }
  const auto run = Open({.Func = "empty"}, "answer 1\nclick cmdOK\nselect cmbSkedCode 99\nclick cmdOK");
  EXPECT_EQ(run.Argument("SkedFunc"), "100");
}

TEST(WillowSked, MonthGivesTheListOfDays) {
  const std::array<int, 13> days = {31, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  std::string script;
  for (std::size_t month = 0; month < days.size(); ++month) {
    script += "select cmbMonth " + std::to_string(month) + "\ndump\n";
  }
  const auto run = Open({}, script);
  for (std::size_t month = 0; month < days.size(); ++month) {
    const auto list = run.Control("cmbDay", month)["list"];
    EXPECT_EQ(list.front(), "**");
    EXPECT_EQ(list.back(), std::to_string(days[month]));
    EXPECT_EQ(list.size(), days[month] + 1);
    EXPECT_EQ(run.Control("cmbMonth")["list"][month],
              month == 0 ? "**" : Text(static_cast<std::int16_t>(1155 + month)));
  }
}

TEST(WillowSked, OkNeedsADay) {
  const auto run =
      Open({.Data = "01/31"}, "select cmbMonth 4\nanswer 1\nclick cmdOK\ndump\nselect cmbDay 30\nclick cmdOK");
  EXPECT_EQ(run.Control("cmbDay")["listIndex"], -1);
  ExpectMessage(run, 1606, 1607, "cmbDay");
  EXPECT_EQ(run.Argument("SkedData"), "04/30");
}

TEST(WillowSked, ChoosingATypeAgain) {
  const auto date = Open({.Data = "05/20"}, "click optDate\nclick cmdOK");
  EXPECT_EQ(date.Argument("SkedData"), "01/01");
  const auto days = Open({.Type = "2", .Data = "4"}, "click chkDOW(6)\nclick optDOW\nclick chkDOW(2)\nclick cmdOK",
                         WithDays("0,0", {"AuthorityLevel=0,0"}));
  EXPECT_EQ(days.Argument("SkedData"), Integer(64));
}

TEST(WillowSked, EachTypeShowsItsFrames) {
  const auto run = Open({.Type = "2", .Data = "4"},
                        "dump\nclick optDate\ndump\nclick optDOW\ndump\nclick optDisabled\ndump\nclick cmdOK",
                        WithDays("0,0", {"AuthorityLevel=0,0"}));
  const std::tuple<const char*, std::array<bool, 4>> cases[] = {
      {"fraDate", {false, true, false, false}},
      {"fraDOW", {true, false, true, false}},
      {"fraCode", {true, true, true, false}},
  };
  for (const auto& [frame, visible] : cases) {
    for (std::size_t i = 0; i < visible.size(); ++i) EXPECT_EQ(run.Control(frame, i)["visible"], visible[i]) << frame;
  }
  EXPECT_EQ(Stored(run), (std::vector<Value>{Integer(0), "00:00", Integer(0), Integer(4), ""}));
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
  const std::tuple<std::string, std::string, std::vector<std::string>> cases[] = {
      {"txtHour", "up", {"08", "09", "10"}},         {"txtHour", "up", {"23", "**", "00", "01"}},
      {"txtHour", "down", {"01", "00", "**", "23"}}, {"txtMinute", "up", {"59", "**", "00"}},
      {"txtMinute", "down", {"00", "**", "59"}},     {"txtHour", "up", {"99", "00"}},
  };
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
      {kCodeRecord, "fraCode", "2"}, {"Sun", "chkDOW(0)", "2"}, {"Mon", "chkDOW(1)", "2"},
      {"Tue", "chkDOW(2)", "2"},     {"Wed", "chkDOW(3)", "2"}, {"Thu", "chkDOW(4)", "2"},
      {"Fri", "chkDOW(5)", "2"},     {"Sat", "chkDOW(6)", "2"},
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
  const std::vector<std::string> dateParts = {"fraDate", "fraCode"};
  const std::vector<std::string> dayParts = {"chkDOW(0)", "chkDOW(6)", "fraCode"};
  for (const auto& [levels, opened, chosen] : cases) {
    const auto all = WithDays(levels, {"AuthorityLevel=2,0", "Date=" + levels, kCodeRecord + "=" + levels});
    const auto date = Open({.Type = "1"}, "dump\nclick optDate\ndump", all);
    const auto days = Open({.Type = "2"}, "dump\nclick optDOW\ndump", all);
    for (const auto& [run, parts] : {std::pair(&date, &dateParts), std::pair(&days, &dayParts)}) {
      for (const auto& part : *parts) {
        EXPECT_EQ(VisibleAndEnabled(run->Control(part, 0)), opened) << part << levels;
        EXPECT_EQ(VisibleAndEnabled(run->Control(part, 1)), chosen) << part << levels;
      }
    }
    EXPECT_EQ(VisibleAndEnabled(days.Control("fraDOW")), chosen) << levels;
  }
}

TEST(WillowSked, WithoutRecordsADateShowsAndDaysDoNot) {
  const auto run = Open({.Type = "1"}, "dump\nclick optDOW\ndump\nclick optDate\ndump");
  const std::pair all{true, true};
  for (const std::size_t dump : {0, 2}) {
    EXPECT_EQ(VisibleAndEnabled(run.Control("fraDate", dump)), all);
    EXPECT_EQ(VisibleAndEnabled(run.Control("fraCode", dump)), all);
  }
  for (const auto* control : {"fraDOW", "chkDOW(0)", "chkDOW(6)"}) {
    EXPECT_EQ(run.Control(control, 1)["visible"], false) << control;
  }
  const auto oneDay = Open({.Type = "2"}, "dump", {"AuthorityLevel=0,0", "Wed=0,0"});
  EXPECT_EQ(VisibleAndEnabled(oneDay.Control("fraDOW")), all);
  EXPECT_EQ(oneDay.Control("chkDOW(2)")["visible"], false);
  EXPECT_EQ(oneDay.Control("chkDOW(3)")["visible"], true);
}

}  // namespace
}  // namespace orlin::testing
