#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kSked =
    "clsSkedFunc_Willow{0} SkedNo=0 SkedType={1} SkedTime='{2}' TimeEdit={3} SkedData={4} SkedFunc={5}";
const std::string kStored = "SkedType SkedTime TimeEdit SkedData SkedFunc";
/// An entry for every day, at some time.
const std::string kDate =
    "clsSkedFunc_WillowAce SkedNo=0 SkedType=1 SkedTime='{0}' TimeEdit=0 SkedData=0 SkedFunc='005'";

Strings WithDays(const std::string& levels, Strings records) {
  for (const auto* day : {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"}) records.push_back(day + ("=" + levels));
  return records;
}

TEST(WillowSked, TitleTellsGroupAndEntryOfANumber) {
  ExpectEach({"clsSkedFunc_WillowAce SkedType=1 SkedData=0 SkedNo={0}", "close", "title"},
             {"0|1519 101", "15|1519 116", "16|1519 201", "17|1519 202", "'99999'|1519 625016"});
}

TEST(WillowSked, OkStoresWhatIsShown) {
  ExpectEach(
      {kSked, "click cmdOK", "result " + kStored},
      {"Ace|1|23:59|1|'12/31'|'347'|0 1 '23:59' 1 '12/31' '347'",
       "Ace|'1'|**:**|'1'|'**/**'|12|0 1 '**:**' 1 '**/**' '012'",
       "Ace|1|5|2|'00/00'|'005'|0 1 '05:00' 0 '01/01' '005'", "Ace|1||empty|1231|'005'|0 1 '00:00' 0 '01/01' '005'",
       "Ace|1||0|'02/29'|'005'|0 1 '00:00' 0 '02/29' '005'", "Ace|1||0|'02/30'|'005'|0 1 '00:00' 0 '02/01' '005'",
       "Ace|1||0|'13/05'|'005'|0 1 '00:00' 0 '01/05' '005'", "Ace|2||0|127|'005'|0 2 '00:00' 0 127 '005'",
       "Ace|2||0|-1|'005'|0 2 '00:00' 0 127 '005'", "Ace|2||0|'5'|'005'|0 2 '00:00' 0 5 '005'",
       "Ace|0||0|'12/31'|'005'|0 0 '00:00' 0 '12/31' ''", "Ace|100000||0|5L|empty|0 0 '00:00' 0 5L ''"});
  EXPECT_EQ(Play("clsSkedFunc_WillowAce", {"SkedNo=0", "SkedType=1", "SkedTime=\u00E9", "SkedData=0", "SkedFunc=5"},
                 "click cmdOK")
                .Argument("SkedTime"),
            "0\u00E9:00")
      << "one character, of two bytes";
}

/// The list of codes, each of three digits and its text, and the texts on one line.
std::pair<Strings, std::string> Codes(const std::string& panel) {
  const auto run = Play("clsSkedFunc_Willow" + panel, {"SkedNo=0", "SkedType=1", "SkedData=0", "SkedFunc=5"}, "dump",
                        {.Catalogue = NumbersForTexts()});
  const auto list = run.Control("cmbSkedCode")["list"].get<Strings>();
  Strings texts;
  for (const auto& row : list) texts.push_back(row.substr(5));
  return {list, Listing(texts)};
}

TEST(WillowSked, EachCodeHasItsText) {
  auto [codes, texts] = Codes("Ace");
  EXPECT_EQ(texts,
            "1544..1553, 1554 1..8, 1556, 1555 1..8, 1558, 1557 1..8, 1560, 1559 1..8, 1562, 1563 1..8, 1564 1..8, "
            "1565 1..8, 1566 1, 1567 1..1566 8, 1567 8, 1568 1569, 1570 1..8, 1570 91..96, 1561 1..8, 1561 91..96, "
            "1571 1..7, 1572, 1576 1..7, 1573, 1578 1..7, 1574, 1876 1..7, 1575, 1877 1..7, 1577, 1877 1..7, 1579, "
            "1580 A..D, 1581 A..D, 1582 A..D, 1583 A..D, 1584 A..D, 1585 A..D, 1879 A..D, 1880 A..D, 1881 A..D, "
            "1882 A..D, 1883 A..D, 1884 A..D, 1885 A..D, 1886 A..D, 1887 A..D, 1586 A..D, 1587 A..D, 1588 A..D, "
            "1589, 1888 1, 1889 1..1888 8, 1889 8, 1888 91, 1889 91..1888 96, 1889 96, 1590 1, 1591 1..1590 8, "
            "1591 8, 1590 91, 1591 91..1590 96, 1591 96, 1592 1, 1593 1..1592 8, 1593 8, 1890 1..8, 1594, 1891 1..8, "
            "1595..1597, 1598 A..D, 1599 1600, 1601 A..D, 1602 A..D, 1603 A..D");
  ASSERT_EQ(codes.size(), 347);
  for (std::size_t row = 0; row < codes.size(); ++row) {
    EXPECT_EQ(codes[row].substr(0, 5), std::to_string(1001 + row).substr(1) + "  ");
  }
  codes.erase(codes.begin() + 327, codes.end()), codes.erase(codes.begin() + 116, codes.begin() + 236);
  EXPECT_EQ(Codes("Duo").first, codes);
}

TEST(WillowSked, StoredCodeSelectsItsRowOrNone) {
  ExpectEach({"clsSkedFunc_Willow{0} SkedNo=0 SkedType=1 SkedData=0 SkedFunc={1}", "dump", "cmbSkedCode.listIndex"},
             {"Duo|'116'|115", "Duo|'237'|116", "Ace|'237'|236", "Duo|'327'|206", "Duo|'328'|-1", "Duo|'120'|-1",
              "Ace|'348'|-1", "Ace|empty|-1", "Ace|'abc'|-1", "Ace|1e9|-1", "Ace|'0991'|98"});
}

TEST(WillowSked, CodeIsCheckedKeyByKey) {
  const std::string clear = "caret cmbSkedCode 0 99;key cmbSkedCode Backspace;";
  const std::string pick = "select cmbSkedCode 122;";
  // Panel, what is done first, keys; the text, its row, beeps.
  ExpectEach({"clsSkedFunc_Willow{0} SkedNo=0 SkedType=1 SkedData=0", "{1};type cmbSkedCode '{2}';dump",
              "cmbSkedCode.text cmbSkedCode.listIndex beeps"},
             {"Ace||12|12 -1 0", "Ace||120|120  1571 4 119 0", "Duo||120|12 -1 1", "Duo||116|116  1561 96 115 0",
              "Duo||237|237  1589 116 0", "Duo||328|32 -1 1", "Ace||347|347  1603 D 346 0", "Ace||348|34 -1 1",
              "Ace||000|00 -1 1", "Ace||1.5|1. -1 1", "Ace||x| -1 1", "Ace|| 12|12 -1 1", "Ace||1005|100  1570 94 99 0",
              "Ace||12 |012  1554 2 11 0", "Ace|" + clear + "|| -1 0", "Ace|" + pick + "|x|123  1571 7 122 1",
              "Ace|" + pick + clear + "|| -1 0", "Ace|" + pick + clear + "|x| -1 1"});
  // A refused key brings the stored code back.
  ExpectEach({kDate, "type cmbSkedCode 'x';dump", "cmbSkedCode.listIndex"}, {"|4"});
}

TEST(WillowSked, OkNeedsACodeAndADay) {
  const std::string ok = "answer 1;click cmdOK;dump;";
  ExpectEach({kSked, "{6}", "messages beeps focus SkedData SkedFunc"},
             {"Ace|1||0|'01/31'|'005'|select cmbMonth 4;" + ok +
                  "select cmbDay 30;click cmdOK|1606/1607/0 1 cmbDay '04/30' '005'",
              "Ace|1||0|0|empty|" + ok + "select cmbSkedCode 99;click cmdOK|1610/1611/0 1 cmbSkedCode '01/01' '100'",
              "Ace|1||0|0|empty|type cmbSkedCode '12';" + ok +
                  "type cmbSkedCode '3';click cmdOK|1610/1611/0 1 cmbSkedCode '01/01' '123'",
              "Ace|2||0|4|empty|" + ok + "|1610/1611/0 1 cmbSkedCode 4 empty"});
}

TEST(WillowSked, MonthGivesTheListOfDays) {
  ExpectEach({kDate, "select cmbMonth {1};dump", "cmbDay"},
             {"|0|[** 1..31]", "|1|[** 1..31]", "|2|[** 1..29]", "|3|[** 1..31]", "|4|[** 1..30]", "|5|[** 1..31]",
              "|6|[** 1..30]", "|7|[** 1..31]", "|8|[** 1..31]", "|9|[** 1..30]", "|10|[** 1..31]", "|11|[** 1..30]",
              "|12|[** 1..31]"});
}

TEST(WillowSked, EachTypeShowsItsFramesAndADateStartsAnew) {
  ExpectEach({kSked, "click optDate;click cmdOK", "SkedData"}, {"Ace|1||0|'05/20'|'005'|'01/01'"});
  // Records bear the names of days, which are texts.
  const auto levels = WithDays("0,0", {"AuthorityLevel=0,0"});
  const auto at = [&](const std::string& dump) {
    return dump + ":fraDate.visible " + dump + ":fraDOW.visible " + dump + ":fraCode.visible ";
  };
  ExpectEach(
      {.Call = kSked,
       .Script = "dump;click chkDOW(6);click optDOW;click chkDOW(2);click optDate;dump;click optDOW;dump;click cmdOK",
       .Words = at("0") + at("1") + at("2") + "SkedData",
       .Levels = levels,
       .Texts = true},
      {"Ace|2||0|4|'005'|false true true true false true false true true 64"});
  ExpectEach({kSked, "click optDisabled;dump;click cmdOK", at("0") + kStored, levels},
             {"Ace|2||0|4|'005'|false false false 0 '00:00' 0 4 ''"});
}

TEST(WillowSked, TimeIsCheckedKeyByKey) {
  // Box, keys, its text then, its text when it is left, beeps.
  for (const std::string box : {"txtHour", "txtMinute"}) {
    const Strings hours = {"|23|23 23 0",  "|24|2 02 1", "|75|7 07 1", "|*|* ** 0", "|**|** ** 0",
                           "|***|** ** 1", "|*5|* ** 1", "|2*|2 02 1", "|x| 00 1",  "|001|00 00 0"};
    ExpectEach({kDate, "type " + box + " '{1}';dump;focus cmdOK;dump", "0:" + box + " " + box + " beeps"},
               box == "txtHour" ? hours : Strings{"|59|59 59 0", "|60|6 06 1"});
  }
  ExpectEach({kDate, "key txtMinute Backspace;dump;key - Enter", "txtMinute SkedTime"}, {"12:34| '12:00'"});
}

TEST(WillowSked, StepsTheTimeRound) {
  for (const std::string line : {"txtHour|up|23 ** 00 01", "txtHour|down|01 00 ** 23", "txtHour|up|99 00",
                                 "txtMinute|up|59 ** 00", "txtMinute|down|00 ** 59"}) {
    const auto cells = Split(line, "|");
    const auto texts = Split(cells[2], " ");
    std::string script = "focus " + cells[0], words;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      script += ";dump;step udTime " + cells[1];
      words += (i == 0 ? "" : " ") + std::to_string(i) + ":" + cells[0];
    }
    ExpectEach({kDate, script, words}, {texts[0] + ":" + texts[0] + "|" + cells[2]});
  }
  ExpectEach({kDate, "focus cmdOK;step udTime up;click cmdOK", "beeps SkedTime"}, {"07:07|1 '07:07'"});
}

TEST(WillowSked, ViewLevelAloneDecidesWhenATypeIsChosen) {
  // What is required, and what parts are when the dialog opens and after the choice.
  for (const std::string line : {"2,2|true/false|true/true", "2,3|true/false|true/false", "3,2|false/false|false/true",
                                 "3,0|false/true|false/true"}) {
    const auto cells = Split(line, "|");
    const auto &levels = cells[0], &opened = cells[1], &chosen = cells[2];
    const auto all =
        WithDays(levels, {"AuthorityLevel=2,0", "Date=" + levels, "Function Code Ref.# and Description=" + levels});
    ExpectEach({kDate, "dump;click optDate;dump", "0:fraDate.on 0:fraCode.on fraDate.on fraCode.on", all},
               {"|" + opened + " " + opened + " " + chosen + " " + chosen});
    ExpectEach({.Call = kSked,
                .Script = "dump;click optDOW;dump",
                .Words = "0:chkDOW(0).on 0:chkDOW(6).on 0:fraCode.on fraDOW.on chkDOW(0).on chkDOW(6).on fraCode.on",
                .Levels = all,
                .Texts = true},
               {"Ace|2||0|0|'005'|" + opened + " " + opened + " " + opened + " " + chosen + " " + chosen + " " +
                chosen + " " + chosen});
  }
}

TEST(WillowSked, WithoutRecordsADateShowsAndDaysDoNot) {
  ExpectEach(
      {kDate, "dump;click optDOW;dump;click optDate;dump",
       "0:fraDate.on 0:fraCode.on fraDate.on fraCode.on 1:fraDOW.visible 1:chkDOW(0).visible 1:chkDOW(6).visible"},
      {"|true/true true/true true/true true/true false false false"});
  ExpectEach({.Call = kSked,
              .Script = "dump",
              .Words = "fraDOW.on chkDOW(2).visible chkDOW(3).visible",
              .Levels = {"AuthorityLevel=0,0", "Wed=0,0"},
              .Texts = true},
             {"Ace|2||0|0|'005'|true/true false true"});
}

}  // namespace
}  // namespace orlin::testing
