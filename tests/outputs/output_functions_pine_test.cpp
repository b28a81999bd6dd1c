#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kPine = "clsOutputFunctions_Pine vName=Output5 vPanelType={0} vCode={1}";
const std::string kBoxes = "txtDigit1 txtDigit2 lstFunctionCode.listIndex cmdOK.enabled";

/// The rows for a panel type: the two numbers in front, and the texts.
std::pair<Strings, Strings> Rows(const std::string& panelType) {
  std::pair<Strings, Strings> rows;
  const auto list =
      Play("clsOutputFunctions_Pine", {"vPanelType=" + panelType}, "dump", {.Catalogue = NumbersForTexts()})
          .Control("lstFunctionCode");
  for (const auto& row : list["list"].get<Strings>()) {
    rows.first.push_back(row.substr(0, row.rfind("  ")));
    rows.second.push_back(row.substr(row.rfind("  ") + 2));
  }
  return rows;
}

TEST(OutputFunctionsPine, RowsFollowThePanelType) {
  const auto [numbers, plain] = Rows("43");
  EXPECT_EQ(Listing(numbers),
            "0,  0..9, 0,10..0,15, 1,  0..9, 1,10..1,15, 2,  0..9, 2,10..2,15, 3, 0, 3,  1..9, 3,10..3,15, 4, 0, "
            "4,  1..9, 4,10..4,15, 5,  0..9, 5,10..5,15, 6,  0..9, 6,10..6,15, 8,  1..9, 8,10..8,15");
  EXPECT_EQ(Listing(plain),
            "513 1268 1269 1272..1280 1283..1290 1293..1298 1301 1197 1303..1320 1324 1325 1216, 1326 1..15, 1266, "
            "1328 1..15, 1266, 1330 1..15, 1266, 1332 1..15, 1334 1266 1335..1346 10382");

  // Panel types, how many rows they have, and what they show instead, in order.
  for (const std::string line :
       {"8 26 27|115|1270 1271 1281 1282 1291 1292 1299 1300 1302 1321..1323, 1327 1..15, 1267, 1329 1..15, 1267, "
        "1331 1..15, 1267, 1333 1..15, 1267",
        "25|115|1270 1271 1291 1292 1299 1300 1267 1267 1267 1267", "24 28 29 30 31|115|", "32|126|1902..1904",
        "40|126|1909..1913", "0 7 33 48 51 53|126|", "41 42|127|1907", "44 45 46 47 52 54 55|127|"}) {
    const auto cells = Split(line, "|");
    for (const auto& panelType : Split(cells[0], " ")) {
      auto [same, others] = Rows(panelType);
      ASSERT_EQ(std::to_string(others.size()), cells[1]) << panelType;
      EXPECT_TRUE(std::equal(same.begin(), same.end(), numbers.begin()));
      for (std::size_t row = others.size(); row-- > 0;) {
        if (others[row] == plain[row]) others.erase(others.begin() + static_cast<std::ptrdiff_t>(row));
      }
      EXPECT_EQ(Listing(others), cells[2]) << panelType;
    }
  }
}

TEST(OutputFunctionsPine, StoredCodeSelectsItsRow) {
  // Without a selection OK is out of reach.
  ExpectEach({kPine, "dump;key txtDigit1 Enter", "title " + kBoxes + " result vCode"},
             {"8|0|1192 Output5 0 0 0 true 0 0", "8|'48'|1192 Output5 3 0 48 true 0 48",
              "8|64L|1192 Output5 4 0 64 true 0 64", "8|112|1192 Output5 8 1 112 true 0 112",
              "7|121|1192 Output5 8 10 121 true 0 121", "41|126|1192 Output5 8 15 126 true 0 126",
              "8|115|1192 Output5   -1 false 1 115", "7|126|1192 Output5   -1 false 1 126",
              "7|100000|1192 Output5   -1 false 1 100000L", "7|empty|1192 Output5   -1 false 1 empty",
              "7|''|1192 Output5   -1 false 1 ''", "7|-1|1192 Output5   -1 false 1 -1"});
}

TEST(OutputFunctionsPine, BoxesAndListStayInStep) {
  // A box whose pair has no row leaves the selection alone; one whose pair is selected already is written anew.
  ExpectEach(
      {kPine, "type txtDigit{2} '{3}';dump", kBoxes + " focus beeps"},
      {"7||1|2|2  -1 false txtDigit2 0", "7||1|215|2 15 47 true txtDigit2 0", "7||2|5| 5 -1 false txtDigit1 0",
       "7|5|2|05|0 5 5 true txtDigit2 0", "7|5|1|7|7 5 5 true txtDigit2 0", "7||1|705|7 5 -1 true txtDigit2 0",
       "7|0|1|8|8 0 0 true txtDigit2 0", "7|5|1|9/|0 5 5 true txtDigit1 2", "7|5|2|/:|0 5 5 true txtDigit2 2",
       "7|5|2|16|0 1 1 true txtDigit2 1", "7|5|2|15|0 15 15 true txtDigit2 0", "7|112|2|15|8 1 112 true txtDigit2 1",
       "7|112|2|14|8 14 125 true txtDigit2 0", "41|112|2|15|8 15 126 true txtDigit2 0",
       "8|112|2|4|8 1 112 true txtDigit2 1", "8|4|1|8|0 4 4 true txtDigit1 1", "8|3|1|8|8 3 114 true txtDigit2 0"});
  ExpectEach({kPine, "select lstFunctionCode 64;dump", kBoxes + " focus"}, {"7|5|4 0 64 true lstFunctionCode"});
}

TEST(OutputFunctionsPine, SelectionCountsWhateverTheBoxesHold) {
  ExpectEach({kPine, "type txtDigit1 '7';dump;key txtDigit1 Backspace;dump",
              "0:txtFunctionCode txtFunctionCode " + kBoxes + " focus"},
             {"7|48|1216   0 -1 false txtDigit1"});
  ExpectEach({kPine, "type txtDigit1 '{2}';click cmdOK", "vCode"}, {"7|5|7|5", "7|empty|705|-1"});
}

}  // namespace
}  // namespace orlin::testing
