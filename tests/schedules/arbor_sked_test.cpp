
#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kOK = ";click cmdOK;";

/// Selects a function.
std::string Row(std::size_t row) { return "select List1 " + std::to_string(row) + ";"; }

/// Replaces what the number box holds.
std::string Enter(const std::string& number) { return "caret txtParameter1 0 9;type txtParameter1 '" + number + "';"; }

/// What stands there at each `dump` of a script.
std::vector<Json> Dumps(const std::string& panel, const std::string& code, std::string script) {
  std::replace(script.begin(), script.end(), ';', '\n');
  std::replace(script.begin(), script.end(), '\'', '"');
  return Play(panel, {"Byte1=" + code, "Byte2=0", "Byte3=0"}, script, {.Catalogue = NumbersForTexts()})
      .Fields("state", "controls");
}

/// The texts and the values of a list.
std::string ShownList(const Json& list) {
  auto shown = Listing(list.at("list"));
  for (const auto& value : list.at("itemData")) shown += " " + value.dump();
  return shown;
}

/// The parameters of the selected function: labels, and the controls that are visible.
std::string ShownParameters(const Json& controls) {
  std::string shown;
  for (const auto* name : {"Label1(1)", "txtParameter1", "lstParameter1", "lstMSParam1", "Label1(2)", "txtParameter2",
                           "lstParameter2", "lstMSParam2"}) {
    const auto& control = controls.at(name);
    if (control.contains("caption")) {
      shown += (shown.empty() ? "" : " | ") + control.at("caption").get<std::string>();
    } else if (control.at("visible")) {
      shown += std::string(" ") + name + (control.contains("list") ? " " + ShownList(control) : "");
    }
  }
  return shown;
}

TEST(ArborSked, ShowsTheParametersOfEachFunction) {
  // What functions show, and their texts.
  using Functions = std::vector<std::pair<std::string, std::string>>;
  const std::string none = "1713 | 1714", items = "128 64 32 16 8 4 2 1", choice = "lstParameter1 743 744 1 0";
  const std::string mask = "17131626 lstMSParam1 1618..1625 " + items + " | 1714";
  const std::string second =
      " | 17141663 lstParameter2 1646..1661 128 129 130 131 132 133 134 135 136 137 138 139 140 141 142 143";
  const std::string two = "17131634 " + choice + " | 17141635 lstParameter2 743 744 1 0";
  const std::string eighth = "17131662 lstParameter1 1668..1675 1 2 3 4 5 6 7 8";
  const Functions rowan = {
      {none, "1616"},
      {mask, "1617 1627"},
      {"17131629 txtParameter1 | 1714", "1628 1630"},
      {mask, "1631"},
      {"17131492 txtParameter1 | 1714", "997 996"},
      {none, "1632"},
      {two, "1633"},
      {"17131634 " + choice + " | 1714", "1636"},
      {"17131662 lstParameter1 1638..1645 1 2 3 4 5 6 7 8" + second, "1637"},
      {none, "1616 1665 1666"},
      {"17131676 lstMSParam1 1668..1675 " + items + " | 1714", "1667"},
      {"17131692 lstMSParam1 1678..1684 64 32 16 8 4 2 1 | 17141692 lstMSParam2 1685..1691 128 64 32 16 8 4 2",
       "1677 1693"},
      {"17131703 lstMSParam1 1695..1702 " + items + " | 1714", "1694 1704..1709"},
      {"17131711 " + choice + " | 1714", "1710 1712"}};
  const Functions kin = {{none, "1616"},
                         {mask, "1617 1627"},
                         {"17131716 txtParameter1 | 1714", "1715 1717"},
                         {mask, "1631"},
                         {"17131492 txtParameter1 | 1714", "997 996"},
                         {none, "1632"},
                         {two, "1633"},
                         {"17131634 " + choice + " | 1714", "1718"},
                         {eighth + second, "1637"},
                         {none, "1616 1665 1666"},
                         {eighth + " | 1714", "1719"}};
  for (const auto& [panel, expected] :
       {std::pair("clsSkedFunc_Rowan", rowan), std::pair("clsSkedFunc_HazelKin", kin)}) {
    std::string script;
    for (std::size_t row = 0; row < (expected.size() == rowan.size() ? 27 : 16); ++row) script += Row(row) + "dump;";
    std::vector<std::pair<std::string, Strings>> functions;
    for (const auto& controls : Dumps(panel, "0", script)) {
      const auto& list = controls.at("List1");
      const auto row = list.at("listIndex").get<std::size_t>();
      const auto text = list.at("list").at(row).get<std::string>();
      const auto code = list.at("itemData").at(row).dump() + "  ";
      EXPECT_TRUE(text.starts_with(code)) << text;
      const auto shown = ShownParameters(controls);
      if (functions.empty() || functions.back().first != shown) functions.emplace_back(shown, Strings{});
      functions.back().second.push_back(text.substr(code.size()));
    }
    Functions came;
    for (const auto& [shown, texts] : functions) came.emplace_back(shown, Listing(texts));
    EXPECT_EQ(came, expected);
  }
}

using Intervals = std::vector<std::pair<int, int>>;

/// Whether the number box of a function keeps the limits of the intervals and nothing next to them.
void ExpectLimits(const std::string& panel, const std::string& code, const Intervals& intervals) {
  std::string script;
  std::vector<std::string> expected, shown;
  const auto tryNumber = [&](int number, bool kept) {
    script += Enter(std::to_string(number)) + "focus List1;dump;";
    expected.push_back(kept ? std::to_string(number) : "");
  };
  for (const auto& [min, max] : intervals) {
    tryNumber(min - 1, false), tryNumber(min, true), tryNumber(max, true), tryNumber(max + 1, false);
  }
  for (const auto& controls : Dumps(panel, code, script)) {
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
    const auto dumps = Dumps(panel, "1", "dump;" + Row(11) + "dump;" + Row(hasH ? 18 : 0) + "dump");
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

TEST(ArborSked, GivesBackTheBytesOfTheChoice) {
  const std::string change = "select lstMSParam1 7 off;select lstMSParam1 0 on;";
  ExpectEach({"clsSkedFunc_{0} Byte1={1} Byte2={2} Byte3={3}", "{4}", "result Byte1 Byte2 Byte3 beeps failures"},
             {// Numbers: a shown one is one higher than the byte for some functions, and 0 is none.
              "Rowan|3|0|0|" + kOK + "|0 3L 0L 0L 0 0", "Rowan|'4'|'9'|'0'|" + kOK + "|0 4L 9L 0L 0 0",
              "Rowan|3|0|0|" + Enter("128") + "focus List1;" + Enter("129") + kOK + "|0 3L 128L 0L 1 0",
              "Rowan|6|1|0|" + Enter("128") + kOK + "|0 6L 128L 0L 0 0",
              "Rowan|6|0|0|" + kOK + "type txtParameter1 '7'" + kOK + "|0 6L 7L 0L 1 0",
              "Rowan|6|1|0|" + Enter("") + "key - Backspace" + kOK + Enter("5") + kOK + "|0 6L 5L 0L 2 0",
              "Rowan|6|100|0|" + Row(3) + kOK + "|0 3L 99L 0L 0 0", "Rowan|3|9|0|" + Row(6) + kOK + "|0 6L 10L 0L 0 0",
              "Aspen|6|100|0|" + Row(3) + kOK + Enter("2") + kOK + "|0 3L 1L 0L 1 0",
              "Rowan|7|1|0|" + Enter("1.5") + kOK + "|0 7L 2L 0L 0 0",
              "Rowan|3|1|0|" + Enter("127.5") + kOK + Enter("126.4") + kOK + "|0 3L 125L 0L 2 0",
              "Rowan|6|1|0|" + Enter("10x") + kOK + kOK + Enter("11") + kOK + "|0 6L 11L 0L 0 0",
              "Rowan|6|1|0|" + Enter("9") + "key - Enter|0 6L 9L 0L 0 0",
              "HazelKin|3|0|0|" + Enter("72") + kOK + Enter("73") + kOK + "|0 3L 72L 0L 2 0",
              "LarchKin|6|1|0|" + Enter("49") + kOK + Enter("48") + kOK + "|0 6L 48L 0L 2 0",
              // Masks, also with bits that have no item.
              "Rowan|1|129|0|" + kOK + "|0 1L 129L 0L 0 0", "LarchNova|1|129|0|" + kOK + "|0 1L 128L 0L 0 0",
              "Rowan|17|255|255|" + kOK + "|0 17L 127L 254L 0 0",
              "Rowan|16|64|128|select lstMSParam1 0 off;focus List1" + kOK + "|0 16L 0L 128L 0 0",
              "Rowan|16|64|128|select lstMSParam2 6 on;key - Enter|0 16L 64L 130L 0 0",
              "Rowan|1|1|0|" + change + Row(0) + Row(1) + kOK + "|0 1L 129L 0L 0 0",
              "Rowan|1|1|0|" + change + Row(0) + Row(1) + "focus lstMSParam1" + kOK + "|0 1L 1L 0L 0 0",
              // Choices.
              "Rowan|9|9|9|select lstParameter2 0;" + Row(10) + Row(9) + kOK + "|0 9L 0L 1L 0 0",
              "Rowan|9|1|0|" + kOK + "|0 9L 1L 0L 0 0", "Rowan|10|7|0|" + kOK + "|0 10L 0L 0L 0 0",
              "HazelKin|15|3|0|" + kOK + "|0 15L 3L 0L 0 0",
              // No parameters, and no such function.
              "Rowan|0|77|88|" + kOK + "|0 0L 0L 0L 0 0", "Rowan|3|4|0|" + Row(0) + kOK + "|0 0L 5L 0L 0 0",
              "Rowan|6|1|0|" + Enter("10x") + Row(8) + kOK + Row(6) + kOK + "|0 6L 1L 0L 0 0",
              "LarchNova|17|0|0|" + kOK + "|0 0L 0L 0L 0 0", "Rowan|5000000000|1|0|" + kOK + "|0 0L 0L 0L 0 0",
              "Rowan|2.5|1|0|" + kOK + "|0 0L 0L 0L 0 0"});
}

TEST(ArborSked, ShowsTheGivenBytes) {
  ExpectEach({"clsSkedFunc_Rowan Byte1={0} Byte2={1} Byte3=0", "{2};dump", "title txtParameter1 lstMSParam1.selected"},
             {"6|0||1612 0 []", "1|129|select lstMSParam1 7 off;select lstMSParam1 0 on;" + Row(0) + Row(1) +
                                    "|1612  [true,false,false,false,false,false,false,true]"});
}

}  // namespace
}  // namespace orlin::testing
