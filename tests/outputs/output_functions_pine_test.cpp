#include <algorithm>

#include "outputs_test.h"

namespace orlin::testing {
namespace {

DialogRun Open(const std::string& panelType, const std::string& code, const std::string& script) {
  return Play("clsOutputFunctions_Pine", {"vName=Output 5", "vCode=" + code, "vPanelType=" + panelType}, script);
}

/// The boxes, the row and whether OK can be pressed: "2,15 47 true".
std::string ShownBy(const DialogRun& run) {
  const auto text = [&](const char* box) { return run.Control(box)["text"].get<std::string>(); };
  return text("txtDigit1") + "," + text("txtDigit2") + " " + run.Control("lstFunctionCode")["listIndex"].dump() + " " +
         run.Control("cmdOK")["enabled"].dump();
}

TEST(OutputFunctionsPine, RowsFollowThePanelType) {
  const Numbers plain{
      513,  1268, 1269, 1272, 1273, 1274, 1275, 1276, 1277, 1278, 1279, 1280, 1283, 1284, 1285, 1286,  // 0
      1287, 1288, 1289, 1290, 1293, 1294, 1295, 1296, 1297, 1298, 1301, 1197, 1303, 1304, 1305, 1306,  // 1
      1307, 1308, 1309, 1310, 1311, 1312, 1313, 1314, 1315, 1316, 1317, 1318, 1319, 1320, 1324, 1325,  // 2
      1216, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326, 1326,  // 3
      1266, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328, 1328,  // 4
      1266, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330, 1330,  // 5
      1266, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332, 1332,  // 6
      1334, 1266, 1335, 1336, 1337, 1338, 1339, 1340, 1341, 1342, 1343, 1344, 1345, 1346, 10382};      // 8
  struct Change {
    std::int16_t Plain, Instead;
  };
  const std::vector<Change> set1{{1279, 1281}, {1280, 1282}, {1301, 1302}, {1318, 1321}, {1319, 1322},
                                 {1320, 1323}, {1326, 1327}, {1328, 1329}, {1330, 1331}, {1332, 1333}};
  const std::vector<Change> set2{{1268, 1270}, {1269, 1271}, {1289, 1291}, {1290, 1292},
                                 {1297, 1299}, {1298, 1300}, {1266, 1267}};
  const std::vector<Change> on32{{1310, 1902}, {1311, 1903}, {1312, 1904}};
  const std::vector<Change> on40{{1268, 1909}, {1269, 1910}, {1272, 1911}, {1297, 1912}, {1298, 1913}};
  const std::vector<Change> on41{{1277, 1907}};
  const struct {
    std::vector<int> PanelTypes;
    std::size_t Rows;
    std::vector<std::vector<Change>> Changes;
  } cases[] = {{{8, 26, 27}, 115, {set1, set2}},
               {{25}, 115, {set2}},
               {{24, 28, 29, 30, 31}, 115, {}},
               {{32}, 126, {on32}},
               {{40}, 126, {on40}},
               {{0, 7, 33, 48, 51, 53}, 126, {}},
               {{41, 42}, 127, {on41}},
               {{43, 44, 45, 46, 47, 52, 54, 55}, 127, {}}};
  for (const auto& [panelTypes, rows, changes] : cases) {
    Json expected = Json::array();
    for (std::size_t row = 0; row < rows; ++row) {
      const auto first = row < 112 ? row / 16 : 8;
      const auto second = row < 112 ? row % 16 : row - 111;
      const auto* blanks = row == 48 || row == 64 ? " " : second < 10 ? "  " : "";
      auto number = plain[row];
      for (const auto& change : changes) {
        const auto found =
            std::find_if(change.begin(), change.end(), [&](auto& one) { return one.Plain == plain[row]; });
        if (found != change.end()) number = found->Instead;
      }
      const bool numbered = first >= 3 && first <= 6 && second > 0;
      const auto text = numbered ? Text(number, "NUMBER", std::to_string(second)) : Text(number);
      expected.push_back(std::to_string(first) + "," + blanks + std::to_string(second) + "  " + text);
    }
    for (const auto panelType : panelTypes) {
      const auto run = Open(std::to_string(panelType), "", "dump");
      EXPECT_EQ(run.Control("lstFunctionCode")["list"], expected) << panelType;
    }
  }
}

TEST(OutputFunctionsPine, StoredCodeSelectsItsRow) {
  const struct {
    std::string PanelType, Code, Shown;
  } cases[] = {{"8", "0", "0,0 0 true"},       {"8", "\"48\"", "3,0 48 true"}, {"8", "64L", "4,0 64 true"},
               {"8", "111", "6,15 111 true"},  {"8", "112", "8,1 112 true"},   {"7", "121", "8,10 121 true"},
               {"41", "126", "8,15 126 true"}, {"8", "115", ", -1 false"},     {"8", "131", ", -1 false"},
               {"8", "132", ", -1 false"},     {"7", "126", ", -1 false"},     {"7", "100000", ", -1 false"},
               {"7", "empty", ", -1 false"},   {"7", "\"\"", ", -1 false"}};
  for (const auto& [panelType, code, shown] : cases) {
    SCOPED_TRACE(code);
    const auto run = Open(panelType, code, "dump\nkey txtDigit1 Enter");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Output 5"));
    EXPECT_EQ(ShownBy(run), shown);
    // Without a selection OK is out of reach.
    const auto row = run.Control("lstFunctionCode")["listIndex"].get<int>();
    EXPECT_EQ(run.Result, row < 0 ? 1 : 0);
    if (row >= 0) {
      EXPECT_EQ(run.Argument("vCode"), Integer(row));
    }
  }
}

TEST(OutputFunctionsPine, BoxesAndListStayInStep) {
  const struct {
    std::string PanelType, Code, Script, Shown, Focus;
    std::size_t Beeps = 0;
  } cases[] = {
      {"7", "empty", "type txtDigit1 \"2\"", "2, -1 false", "txtDigit2"},
      {"7", "empty", "type txtDigit1 \"215\"", "2,15 47 true", "txtDigit2"},
      {"7", "empty", "type txtDigit2 \"5\"", ",5 -1 false", "txtDigit1"},
      {"7", "5", "select lstFunctionCode 64", "4,0 64 true", "lstFunctionCode"},
      {"7", "37", "type txtDigit1 \"1\"", "1,5 21 true", "txtDigit2"},
      // Boxes and list agree already: the digits are written as the list has them.
      {"7", "5", "caret txtDigit2 0 0\ntype txtDigit2 \"0\"", "0,5 5 true", "txtDigit2"},
      {"7", "5", "type txtDigit2 \"05\"", "0,5 5 true", "txtDigit2"},
      {"7", "5", "key txtDigit2 Backspace", "0, -1 false", "txtDigit2"},
      {"7", "5", "key txtDigit1 Backspace", ",5 -1 false", "txtDigit1"},
      // A pair without a row leaves the selection alone.
      {"7", "5", "type txtDigit1 \"7\"", "7,5 5 true", "txtDigit2"},
      {"7", "0", "type txtDigit1 \"8\"", "8,0 0 true", "txtDigit2"},
      {"7", "empty", "type txtDigit1 \"705\"", "7,5 -1 true", "txtDigit2"},
      // Keys that the boxes refuse, and their neighbours.
      {"7", "5", "type txtDigit1 \"9/\"", "0,5 5 true", "txtDigit1", 2},
      {"7", "5", "type txtDigit2 \"/:\"", "0,5 5 true", "txtDigit2", 2},
      {"7", "5", "type txtDigit2 \"16\"", "0,1 1 true", "txtDigit2", 1},
      {"7", "5", "type txtDigit2 \"15\"", "0,15 15 true", "txtDigit2"},
      {"7", "5", "caret txtDigit2 0 0\ntype txtDigit2 \"1\"", "0,15 15 true", "txtDigit2"},
      {"7", "6", "caret txtDigit2 0 0\ntype txtDigit2 \"1\"", "0,6 6 true", "txtDigit2", 1},
      {"7", "112", "type txtDigit2 \"15\"", "8,1 112 true", "txtDigit2", 1},
      {"7", "112", "type txtDigit2 \"14\"", "8,14 125 true", "txtDigit2"},
      {"41", "112", "type txtDigit2 \"15\"", "8,15 126 true", "txtDigit2"},
      {"8", "112", "type txtDigit2 \"4\"", "8,1 112 true", "txtDigit2", 1},
      {"8", "4", "type txtDigit1 \"8\"", "0,4 4 true", "txtDigit1", 1},
      {"8", "3", "type txtDigit1 \"8\"", "8,3 114 true", "txtDigit2"},
  };
  for (const auto& expected : cases) {
    const auto run = Open(expected.PanelType, expected.Code, expected.Script + "\ndump");
    EXPECT_EQ(ShownBy(run), expected.Shown) << expected.Code << "\n" << expected.Script;
    EXPECT_EQ(run.Focus(), expected.Focus) << expected.Script;
    EXPECT_EQ(run.Events("beep").size(), expected.Beeps) << expected.Script;
  }
}

TEST(OutputFunctionsPine, SelectionCountsWhateverTheBoxesHold) {
  const auto run = Open("7", "48", "dump\ntype txtDigit1 \"7\"\ndump\nkey txtDigit1 Backspace\ndump");
  EXPECT_EQ(run.Control("txtFunctionCode", 0)["caption"], Text(1216));
  EXPECT_EQ(run.Control("txtFunctionCode", 1)["caption"], Text(1216));
  EXPECT_EQ(run.Control("txtFunctionCode")["caption"], "");
  EXPECT_EQ(Open("7", "5", "type txtDigit1 \"7\"\nclick cmdOK").Argument("vCode"), Integer(5));
  EXPECT_EQ(Open("7", "empty", "type txtDigit1 \"705\"\nclick cmdOK").Argument("vCode"), Integer(-1));
}

}  // namespace
}  // namespace orlin::testing
