#include "outputs_test.h"

namespace orlin::testing {
namespace {

/// The boxes, the row and whether OK can be pressed: "2,15 47 true".
std::string ShownBy(const DialogRun& run) {
  const auto text = [&](const char* box) { return run.Control(box)["text"].get<std::string>(); };
  return text("txtDigit1") + "," + text("txtDigit2") + " " + run.Control("lstFunctionCode")["listIndex"].dump() + " " +
         run.Control("cmdOK")["enabled"].dump();
}

TEST(OutputFunctionsPine, RowsFollowThePanelType) {
  // Both numbers of a row and what stands between them; the texts of these rows for each panel type.
  const std::vector<std::pair<std::size_t, std::string>> rows{
      {1, "0,  1"},  {3, "0,  3"},  {8, "0,  8"},  {11, "0,11"},   {18, "1,  2"},
      {24, "1,  8"}, {26, "1,10"},  {36, "2,  4"}, {44, "2,12"},   {48, "3, 0"},
      {64, "4, 0"},  {80, "5,  0"}, {111, "6,15"}, {112, "8,  1"}, {113, "8,  2"}};
  const Numbers plain{1268, 1272, 1277, 1280, 1289, 1297, 1301, 1311, 1319, 1216, 1266, 1266, 1332, 1334, 1266};
  const struct {
    Numbers PanelTypes;
    std::size_t Rows;
    Numbers Texts;
  } cases[] = {
      {{8, 26, 27}, 115, {1270, 1272, 1277, 1282, 1291, 1299, 1302, 1311, 1322, 1216, 1267, 1267, 1333, 1334, 1267}},
      {{25}, 115, {1270, 1272, 1277, 1280, 1291, 1299, 1301, 1311, 1319, 1216, 1267, 1267, 1332, 1334, 1267}},
      {{24, 28, 29, 30, 31}, 115, plain},
      {{32}, 126, {1268, 1272, 1277, 1280, 1289, 1297, 1301, 1903, 1319, 1216, 1266, 1266, 1332, 1334, 1266}},
      {{40}, 126, {1909, 1911, 1277, 1280, 1289, 1912, 1301, 1311, 1319, 1216, 1266, 1266, 1332, 1334, 1266}},
      {{0, 7, 33, 48, 51, 53}, 126, plain},
      {{41, 42}, 127, {1268, 1272, 1907, 1280, 1289, 1297, 1301, 1311, 1319, 1216, 1266, 1266, 1332, 1334, 1266}},
      {{43, 44, 45, 46, 47, 52, 54, 55}, 127, plain}};
  for (const auto& [panelTypes, count, texts] : cases) {
    for (const auto panelType : panelTypes) {
      const auto list = Open(Pine("", std::to_string(panelType)), "dump").Control("lstFunctionCode")["list"];
      ASSERT_EQ(list.size(), count) << panelType;
      for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& [row, numbers] = rows[i];
        EXPECT_EQ(list[row], numbers + "  " + (row == 111 ? Text(texts[i], "NUMBER", "15") : Text(texts[i])));
      }
      if (count == 127) {
        EXPECT_EQ(list[126], "8,15  " + Text(10382));
      }
    }
  }
}

TEST(OutputFunctionsPine, StoredCodeSelectsItsRow) {
  const struct {
    std::string PanelType, Code, Shown;
  } cases[] = {{"8", "0", "0,0 0 true"},     {"8", "\"48\"", "3,0 48 true"}, {"8", "64L", "4,0 64 true"},
               {"8", "112", "8,1 112 true"}, {"7", "121", "8,10 121 true"},  {"41", "126", "8,15 126 true"},
               {"8", "115", ", -1 false"},   {"7", "126", ", -1 false"},     {"7", "100000", ", -1 false"},
               {"7", "empty", ", -1 false"}, {"7", "\"\"", ", -1 false"},    {"7", "-1", ", -1 false"}};
  for (const auto& [panelType, code, shown] : cases) {
    SCOPED_TRACE(code);
    const auto run = Open(Pine(code, panelType), "dump\nkey txtDigit1 Enter");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Output 5"));
    EXPECT_EQ(ShownBy(run), shown);
    const auto row = run.Control("lstFunctionCode")["listIndex"].get<int>();
    EXPECT_EQ(run.Result, row < 0 ? 1 : 0) << "without a selection OK is out of reach";
    if (row < 0) continue;
    EXPECT_EQ(run.Argument("vCode"), Integer(row));
  }
}

TEST(OutputFunctionsPine, BoxesAndListStayInStep) {
  // A box whose pair has no row leaves the selection alone; one whose pair is selected already is written anew.
  const struct {
    std::string PanelType, Code, Box, Typed, Shown, Focus;
    std::size_t Beeps;
  } cases[] = {{"7", "", "1", "2", "2, -1 false", "2", 0},       {"7", "", "1", "215", "2,15 47 true", "2", 0},
               {"7", "", "2", "5", ",5 -1 false", "1", 0},       {"7", "5", "2", "05", "0,5 5 true", "2", 0},
               {"7", "5", "1", "7", "7,5 5 true", "2", 0},       {"7", "", "1", "705", "7,5 -1 true", "2", 0},
               {"7", "0", "1", "8", "8,0 0 true", "2", 0},       {"7", "5", "1", "9/", "0,5 5 true", "1", 2},
               {"7", "5", "2", "/:", "0,5 5 true", "2", 2},      {"7", "5", "2", "16", "0,1 1 true", "2", 1},
               {"7", "5", "2", "15", "0,15 15 true", "2", 0},    {"7", "112", "2", "15", "8,1 112 true", "2", 1},
               {"7", "112", "2", "14", "8,14 125 true", "2", 0}, {"41", "112", "2", "15", "8,15 126 true", "2", 0},
               {"8", "112", "2", "4", "8,1 112 true", "2", 1},   {"8", "4", "1", "8", "0,4 4 true", "1", 1},
               {"8", "3", "1", "8", "8,3 114 true", "2", 0}};
  for (const auto& [panelType, code, box, typed, shown, focus, beeps] : cases) {
    SCOPED_TRACE(code + " " + box + " " + typed);
    const auto run = Open(Pine("\"" + code + "\"", panelType), "type txtDigit" + box + " \"" + typed + "\"\ndump");
    EXPECT_EQ(ShownBy(run), shown);
    EXPECT_EQ(run.Focus(), "txtDigit" + focus);
    EXPECT_EQ(run.Events("beep").size(), beeps);
  }
  const auto run = Open(Pine("5", "7"), "select lstFunctionCode 64\ndump");
  EXPECT_EQ(ShownBy(run), "4,0 64 true");
  EXPECT_EQ(run.Focus(), "lstFunctionCode");
}

TEST(OutputFunctionsPine, SelectionCountsWhateverTheBoxesHold) {
  const auto run = Open(Pine("48", "7"), "type txtDigit1 \"7\"\ndump\nkey txtDigit1 Backspace\ndump");
  EXPECT_EQ(run.Control("txtFunctionCode", 0)["caption"], Text(1216));
  EXPECT_EQ(run.Control("txtFunctionCode")["caption"], "");
  EXPECT_EQ(ShownBy(run), ",0 -1 false");
  EXPECT_EQ(run.Focus(), "txtDigit1");
  EXPECT_EQ(Open(Pine("5", "7"), "type txtDigit1 \"7\"\nclick cmdOK").Argument("vCode"), Integer(5));
  EXPECT_EQ(Open(Pine("empty", "7"), "type txtDigit1 \"705\"\nclick cmdOK").Argument("vCode"), Integer(-1));
}

}  // namespace
}  // namespace orlin::testing
