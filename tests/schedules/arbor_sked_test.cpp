#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

constexpr const char* kRowan = "clsSkedFunc_Rowan";
constexpr const char* kAspen = "clsSkedFunc_Aspen";
constexpr const char* kLarchNova = "clsSkedFunc_LarchNova";
constexpr const char* kHazelKin = "clsSkedFunc_HazelKin";
constexpr const char* kLarchKin = "clsSkedFunc_LarchKin";

/// `bytes`: the three, with blanks between them.
DialogRun Open(const std::string& panel, const std::string& bytes, const std::string& script,
               const PlayOptions& options = {}) {
  std::istringstream words(bytes);
  std::vector<std::string> arguments;
  for (std::string word; words >> word;)
    arguments.push_back("Byte" + std::to_string(arguments.size() + 1) + "=" + word);
  return Play(panel, arguments, script, options);
}

/// Every text is its own number, so that a state tells which texts it shows.
PlayOptions NumbersForTexts() {
  PlayOptions options;
  options.Catalogue = "";
  for (int number = 700; number < 1800; ++number) {
    *options.Catalogue += std::to_string(number) + "\t" + std::to_string(number) + "\n";
  }
  return options;
}

const std::string kOK = "click cmdOK\n";

/// Selects a function.
std::string Row(std::size_t row) { return "select List1 " + std::to_string(row) + "\n"; }

/// Replaces what the number box holds.
std::string Enter(const std::string& number) {
  return "caret txtParameter1 0 9\ntype txtParameter1 \"" + number + "\"\n";
}

std::vector<Value> Bytes(const DialogRun& run) {
  return {run.Argument("Byte1"), run.Argument("Byte2"), run.Argument("Byte3")};
}

std::vector<Json> Dumps(const DialogRun& run) { return run.Fields("state", "controls"); }

/// A list as the number of its first text, the others following it, and its values.
std::string ShownList(const Json& list) {
  std::string shown = list.at("list").at(0);
  for (int number = std::stoi(shown); const auto& text : list.at("list")) EXPECT_EQ(text, std::to_string(number++));
  for (const auto& value : list.at("itemData")) shown += " " + value.dump();
  return shown;
}

/// The selected function and its parameters: labels, and the controls that are visible.
std::string ShownFunction(const Json& controls) {
  const auto& list = controls.at("List1");
  const auto row = list.at("listIndex").get<std::size_t>();
  std::string shown = list.at("list").at(row);
  EXPECT_EQ(list.at("itemData").at(row).dump() + "  ", shown.substr(0, shown.rfind(' ') + 1));
  for (const auto* name : {"Label1(1)", "txtParameter1", "lstParameter1", "lstMSParam1", "Label1(2)", "txtParameter2",
                           "lstParameter2", "lstMSParam2"}) {
    const auto& control = controls.at(name);
    if (control.contains("caption")) {
      shown += " | " + control.at("caption").get<std::string>();
    } else if (control.at("visible")) {
      shown += std::string(" ") + name + (control.contains("list") ? " " + ShownList(control) : "");
    }
  }
  return shown;
}

const std::string kD = "17141663 lstParameter2 1646 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143";

TEST(ArborSked, ShowsTheParametersOfEachKindOfFunction) {
  // One of each kind, and code 12, which has the text of code 0.
  using Functions = std::vector<std::pair<std::size_t, std::string>>;
  const Functions rowan = {
      {0, "0  1616 | 1713 | 1714"},
      {1, "1  1617 | 17131626 lstMSParam1 1618 128 64 32 16 8 4 2 1 | 1714"},
      {3, "3  1628 | 17131629 txtParameter1 | 1714"},
      {6, "6  997 | 17131492 txtParameter1 | 1714"},
      {9, "9  1633 | 17131634 lstParameter1 743 1 0 | 17141635 lstParameter2 743 1 0"},
      {11, "11  1637 | 17131662 lstParameter1 1638 1 2 3 4 5 6 7 8 | " + kD},
      {12, "12  1616 | 1713 | 1714"},
      {15, "15  1667 | 17131676 lstMSParam1 1668 128 64 32 16 8 4 2 1 | 1714"},
      {16, "16  1677 | 17131692 lstMSParam1 1678 64 32 16 8 4 2 1 | 17141692 lstMSParam2 1685 128 64 32 16 8 4 2"},
      {18, "18  1694 | 17131703 lstMSParam1 1695 128 64 32 16 8 4 2 1 | 1714"},
      {24, "24  1709 | 17131703 lstMSParam1 1695 128 64 32 16 8 4 2 1 | 1714"},
      {26, "29  1712 | 17131711 lstParameter1 743 1 0 | 1714"},
  };
  const Functions kin = {
      {3, "3  1715 | 17131716 txtParameter1 | 1714"},
      {4, "4  1717 | 17131716 txtParameter1 | 1714"},
      {10, "10  1718 | 17131634 lstParameter1 743 1 0 | 1714"},
      {11, "11  1637 | 17131662 lstParameter1 1668 1 2 3 4 5 6 7 8 | " + kD},
      {12, "12  1616 | 1713 | 1714"},
      {15, "15  1719 | 17131662 lstParameter1 1668 1 2 3 4 5 6 7 8 | 1714"},
  };
  for (const auto& [panel, functions] : {std::pair(kRowan, rowan), std::pair(kHazelKin, kin)}) {
    std::string script;
    for (const auto& function : functions) script += Row(function.first) + "dump\n";
    const auto run = Open(panel, "0 0 0", script, NumbersForTexts());
    const auto dumps = Dumps(run);
    for (std::size_t i = 0; i < functions.size(); ++i) EXPECT_EQ(ShownFunction(dumps.at(i)), functions[i].second);
    EXPECT_EQ(run.Events("state").back().at("caption"), "1612");
  }
}

using Intervals = std::vector<std::pair<int, int>>;

/// Whether the number box of a function keeps the limits of the intervals and nothing next to them.
void ExpectLimits(const std::string& panel, const std::string& code, const Intervals& intervals) {
  std::string script;
  std::vector<std::string> expected, shown;
  const auto tryNumber = [&](int number, bool kept) {
    script += Enter(std::to_string(number)) + "focus List1\ndump\n";
    expected.push_back(kept ? std::to_string(number) : "");
  };
  for (const auto& [min, max] : intervals) {
    tryNumber(min - 1, false), tryNumber(min, true), tryNumber(max, true), tryNumber(max + 1, false);
  }
  for (const auto& controls : Dumps(Open(panel, code + " 0 0", script))) {
    shown.push_back(controls.at("txtParameter1").at("text"));
  }
  EXPECT_EQ(shown, expected) << code;
}

TEST(ArborSked, LimitsFunctionsToTheModel) {
  const struct {
    const char* Panel;
    std::vector<int> LastCodes;
    Intervals Codes3And4;
    int Codes6And7;
    std::vector<std::size_t> Items;  // of lists A, D and H
  } models[] = {{"Rowan", {24, 28, 29}, {{1, 127}, {129, 247}}, 128, {8, 16, 8}},
                {"Hazel", {17, 28, 29}, {{1, 127}, {129, 247}}, 128, {8, 16, 0}},
                {"Aspen", {24, 28, 29}, {{1, 75}}, 64, {8, 4, 2}},
                {"Larch", {17, 28, 29}, {{1, 75}}, 64, {8, 4, 0}},
                {"Cedar", {24, 28, 29}, {{1, 75}}, 64, {8, 4, 4}},
                {"Maple", {24, 28, 29}, {{1, 127}, {129, 247}}, 128, {8, 16, 8}},
                {"RowanNova", {24, 28, 29}, {{1, 127}, {129, 247}}, 128, {8, 16, 8}},
                {"AspenNova", {24, 28, 29}, {{1, 75}}, 64, {8, 4, 2}},
                {"LarchNova", {15, 28, 29}, {{1, 40}}, 24, {4, 4, 0}},
                {"HazelKin", {13, 14, 15}, {{1, 71}, {73, 135}}, 128, {8, 16, 0}},
                {"LarchKin", {13, 14, 15}, {{1, 48}}, 48, {8, 4, 0}}};
  for (const auto& model : models) {
    SCOPED_TRACE(model.Panel);
    const auto panel = std::string("clsSkedFunc_") + model.Panel;
    const bool hasH = model.Items[2] > 0;
    const auto dumps = Dumps(Open(panel, "1 0 0", "dump\n" + Row(11) + "dump\n" + Row(hasH ? 18 : 0) + "dump"));
    const auto items = [&](std::size_t dump, const char* list) { return dumps[dump].at(list).at("list").size(); };
    const auto codes = dumps[0].at("List1").at("itemData").get<std::vector<int>>();
    EXPECT_EQ(std::vector(codes.end() - 3, codes.end()), model.LastCodes);
    for (std::size_t row = 0; row + 2 < codes.size(); ++row) EXPECT_EQ(codes[row], static_cast<int>(row));
    EXPECT_EQ(items(1, "lstParameter1"), 8U);
    EXPECT_EQ((std::vector{items(0, "lstMSParam1"), items(1, "lstParameter2"), hasH ? items(2, "lstMSParam1") : 0}),
              model.Items);
    for (const char* code : {"3", "4"}) ExpectLimits(panel, code, model.Codes3And4);
    for (const char* code : {"6", "7"}) ExpectLimits(panel, code, {{1, model.Codes6And7}});
  }
}

const std::string kChangeMask = "select lstMSParam1 7 off\nselect lstMSParam1 0 on\n";

TEST(ArborSked, GivesBackTheBytesOfTheChoice) {
  const struct {
    const char* What;
    const char* Panel;
    const char* Given;
    std::string Script;
    std::vector<int> Bytes;
    std::size_t Beeps = 0;
  } cases[] = {
      {"a shown number is one higher than the byte", kRowan, "3 0 0", kOK, {3, 0, 0}},
      {"texts of digits", kRowan, R"("4" "9" "0")", kOK, {4, 9, 0}},
      {"second range", kRowan, "3 0 0", Enter("128") + "focus List1\n" + Enter("129") + kOK, {3, 128, 0}, 1},
      {"byte 128", kRowan, "6 1 0", Enter("128") + kOK, {6, 128, 0}},
      {"0 is no number", kRowan, "6 0 0", kOK + "type txtParameter1 \"7\"\n" + kOK, {6, 7, 0}, 1},
      {"empty box", kRowan, "6 1 0", Enter("") + "key - Backspace\n" + kOK + Enter("5") + kOK, {6, 5, 0}, 2},
      {"to one higher", kRowan, "6 100 0", Row(3) + kOK, {3, 99, 0}},
      {"from one higher", kRowan, "3 9 0", Row(6) + kOK, {6, 10, 0}},
      {"above the other range", kAspen, "6 100 0", Row(3) + kOK + Enter("2") + kOK, {3, 1, 0}, 1},
      {"half to the even number above", kRowan, "7 1 0", Enter("1.5") + kOK, {7, 2, 0}},
      {"between the ranges", kRowan, "3 1 0", Enter("127.5") + kOK + Enter("126.4") + kOK, {3, 125, 0}, 2},
      {"letters behind a number", kRowan, "6 1 0", Enter("10x") + kOK + kOK + Enter("11") + kOK, {6, 11, 0}},
      {"Enter in the number box", kRowan, "6 1 0", Enter("9") + "key - Enter", {6, 9, 0}},
      {"Kin between ranges", kHazelKin, "3 0 0", Enter("72") + kOK + Enter("73") + kOK, {3, 72, 0}, 2},
      {"Kin above the range", kLarchKin, "6 1 0", Enter("49") + kOK + Enter("48") + kOK, {6, 48, 0}, 2},
      {"mask", kRowan, "1 129 0", kOK, {1, 129, 0}},
      {"bits without an item", kLarchNova, "1 129 0", kOK, {1, 128, 0}},
      {"two masks", kRowan, "17 255 255", kOK, {17, 127, 254}},
      {"first mask", kRowan, "16 64 128", "select lstMSParam1 0 off\nfocus List1\n" + kOK, {16, 0, 128}},
      {"second mask, Enter in it", kRowan, "16 64 128", "select lstMSParam2 6 on\nkey - Enter", {16, 64, 130}},
      {"mask and given bits", kRowan, "1 1 0", kChangeMask + Row(0) + Row(1) + kOK, {1, 129, 0}},
      {"mask anew", kRowan, "1 1 0", kChangeMask + Row(0) + Row(1) + "focus lstMSParam1\n" + kOK, {1, 1, 0}},
      {"value kept by a row", kRowan, "9 9 9", "select lstParameter2 0\n" + Row(10) + Row(9) + kOK, {9, 0, 1}},
      {"two choices", kRowan, "9 1 0", kOK, {9, 1, 0}},
      {"no choice of that value", kRowan, "10 7 0", kOK, {10, 0, 0}},
      {"Kin code 15", kHazelKin, "15 3 0", kOK, {15, 3, 0}},
      {"no parameters", kRowan, "0 77 88", kOK, {0, 0, 0}},
      {"no parameters after a number", kRowan, "3 4 0", Row(0) + kOK, {0, 5, 0}},
      {"no parameters after letters", kRowan, "6 1 0", Enter("10x") + Row(8) + kOK + Row(6) + kOK, {6, 1, 0}},
      {"no such function on the model", kLarchNova, "17 0 0", kOK, {0, 0, 0}},
      {"no such function at all", kRowan, "5000000000 1 0", kOK, {0, 0, 0}},
      {"between two functions", kRowan, "2.5 1 0", kOK, {0, 0, 0}},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.What);
    const auto run = Open(one.Panel, one.Given, one.Script);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(Bytes(run), std::vector<Value>(one.Bytes.begin(), one.Bytes.end()));
    EXPECT_EQ(run.Events("beep").size(), one.Beeps);
    EXPECT_TRUE(run.Events("failure").empty());
  }
}

TEST(ArborSked, ShowsTheGivenBytes) {
  EXPECT_EQ(Open(kRowan, "6 0 0", "dump").Control("txtParameter1").at("text"), "0");
  const auto run = Open(kRowan, "1 129 0", kChangeMask + Row(0) + Row(1) + "dump");
  EXPECT_EQ(run.Control("lstMSParam1").at("selected").dump(), "[true,false,false,false,false,false,false,true]");
}

TEST(ArborSked, LeavesTheBytesWithoutOK) {
  for (const char* end : {"click cmdCancel", "close"}) {
    const auto run = Open(kRowan, R"(1 "129" 2.5)",
                          "select lstMSParam1 1 on\nselect List1 9\nselect lstParameter1 0\n" + std::string(end));
    EXPECT_EQ(run.Result, 1);
    EXPECT_EQ(Bytes(run), (std::vector<Value>{Integer(1), "129", 2.5}));
  }
}

TEST(ArborSked, FailsBeforeItIsShown) {
  const std::tuple<const char*, const char*, int> cases[] = {
      {kHazelKin, "16 0 0", 380}, {kHazelKin, "-1 0 0", 380}, {kLarchKin, "28 0 0", 380},
      {kRowan, "x 0 0", 13},      {kRowan, "3 x 0", 13},      {kHazelKin, "3000000000 0 0", 6}};
  for (const auto& [panel, given, result] : cases) {
    const auto run = Open(panel, given, kOK);
    EXPECT_EQ(run.Result, result) << given;
    EXPECT_TRUE(run.Events("show").empty());
  }
}

}  // namespace
}  // namespace orlin::testing
