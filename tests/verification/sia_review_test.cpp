#include <string>
#include <tuple>
#include <vector>

#include "OrlinCustomDialogs/verification.h"

#include "frame/services/modGeneral.h"
#include "support/broken_catalogue.h"
#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kReview = "clsErrorMessageNova PanelType=49 vItemNo={0} vValue={1}";

TEST(SiaReview, ShowsAndStoresEveryKindOfParameter) {
  // Item, present value, cells. 99 is of no kind: its row stays blank.
  std::string items, values;
  Json cells = {Split("10701,10702,10703,10704,10705,10706", ",")};
  for (const std::string line :
       {"29;10;10686,1,10,45,255 (Increments of 5 only),60", "27;'2';10687,1,2,6,90,6", "7;5;10688,N/A,5,3,3,3",
        "22;3;10690,N/A,3,30,240 (Increments of 5 only),30", "54;9;10691,N/A,9,15,45,30", "53;9;10692,N/A,9,1,2,1",
        "65;0;10693,1,10707,10697,10697,10697", "52;0;10695,N/A,10712,3,6,4", "17;1;10739,N/A,E,-,-,-",
        "19;'2';10740,N/A,P,-,-,-", "10;1;10743,1,10697,10707,10707,10707", "8;1;10742,1,10697,10707,10707,10707",
        "17;'x';10739,N/A,x,-,-,-", "99;5;,,,,,", "54;empty;10691,N/A,,15,45,30"}) {
    const auto parts = Split(line, ";");
    items += (items.empty() ? "[" : ",") + parts[0];
    values += (values.empty() ? "[" : ",") + parts[1];
    cells.push_back(Split(parts[2], ","));
  }
  ExpectEach({kReview, "answer 1;dump;click OptAccept;click btnAcceptChanges",
              "title OptIgnore messages vsFlexArray1.cells vValue"},
             {items + "]|" + values + "]|10681 10684 10700/10699/0 " + cells.dump() +
              " ['60','6','3','30','30','1','1','4','0'*5,'','30']"});
}

TEST(SiaReview, ItemNumberTellsTheAreaOrPointAndPanelTypeTheLimitOfPoints) {
  const auto row = [](const std::string& cells) {
    return R"([["10701","10702","10703","10704","10705","10706"],[)" + cells + "]]";
  };
  for (const auto& [item, area] : {std::pair{"129", "2"},
                                   {"929", "10"},
                                   {"127", "2"},
                                   {"137", "2"},
                                   {"122", "1"},
                                   {"222", "2"},
                                   {"165", "2"},
                                   {"166", "2"},
                                   {"110", "2"},
                                   {"108", "2"},
                                   {"107", "N/A"},
                                   {"154", "N/A"},
                                   {"152", "N/A"}}) {
    const auto run = Play("clsErrorMessageNova", {std::string("vItemNo=[") + item + "]", "vValue=[1]"}, "dump");
    EXPECT_EQ(run.Control("vsFlexArray1").at("cells")[1][1], area) << item;
  }
  for (const std::string line : {"49 128 ", "50 64 ", "51 24 ", "1  "}) {
    const auto cells = Split(line, " ");
    ExpectEach({"clsErrorMessageNova vItemNo=[37] vValue=[1] PanelType=" + cells[0], "dump", "vsFlexArray1.cells"},
               {row(R"("10689","1","1","1",")" + cells[1] + R"( A,B,C","A")")});
  }
}

TEST(SiaReview, GridHasARowForEachValue) {
  for (const auto& [items, values, rows] :
       {std::tuple{"[29*60]", "[1*60]", 60U}, {"[29,27]", "[1]", 1U}, {"[]", "[]", 0U}}) {
    const auto run =
        Play("clsErrorMessageNova", {std::string("vItemNo=") + items, std::string("vValue=") + values}, "dump");
    EXPECT_EQ(run.Control("vsFlexArray1").at("cells").size(), rows + 1);
  }
  ExpectEach({kReview, "answer 1;{2}click btnAcceptChanges", "result"}, {"[]|[]||1", "[]|[]|click OptAccept;|2"});
}

TEST(SiaReview, DesiredValueHasToComply) {
  // Panel type, item, what is typed, what is left, the message, beeps.
  const std::string range = "10708/10709/0", invalid = "1151/262/0";
  for (const std::string line : {"49|29|45|45||0",
                                 "49|29|255|255||0",
                                 "49|29|40|60|range|0",
                                 "49|29|260|60|range|0",
                                 "49|29|62|60|invalid|0",
                                 "49|29||60|invalid|0",
                                 "49|29|40000|60|invalid|0",
                                 "49|22|240|240||0",
                                 "49|22|31|30|invalid|0",
                                 "49|22|25|30|range|0",
                                 "49|27|90|90||0",
                                 "49|27|91|6|range|0",
                                 "49|27|5|6|range|0",
                                 "49|27||6|range|0",
                                 "49|27|x7-|7||2",
                                 "49|54|44|44||0",
                                 "49|52|7|4|range|0",
                                 "49|37|b|B||0",
                                 "49|37|C|C||0",
                                 "49|37|AB|A|invalid|0",
                                 "49|37|1a|A|invalid|0",
                                 "49|37||A|invalid|0",
                                 "49|37|d2|2||1",
                                 "49|37|128|128||0",
                                 "49|37|129|A|range|0",
                                 "49|37|0|A|range|0",
                                 "51|37|24|24||0",
                                 "51|37|25|A|range|0",
                                 "1|37|1|A|range|0",
                                 "1|37|c|C||0"}) {
    SCOPED_TRACE(line);
    const auto cells = Split(line, "|");
    const auto run = Play("clsErrorMessageNova", {"PanelType=" + cells[0], "vItemNo=[" + cells[1] + "]", "vValue=[1]"},
                          (cells[4].empty() ? "" : "answer 1\n") + ("edit vsFlexArray1 1 5 \"" + cells[2]) + "\"\ndump",
                          {.Catalogue = NumbersForTexts()});
    EXPECT_EQ(run.Control("vsFlexArray1").at("cells")[1][5], cells[3]);
    EXPECT_EQ(Told(run, "messages beeps"), (cells[4] == "range"     ? range
                                            : cells[4] == "invalid" ? invalid
                                                                    : "") +
                                               " " + cells[5]);
  }
}

TEST(SiaReview, ValueThatEqualsTheMaximumCannotBeEdited) {
  const std::string refused = "10710/10711/0 false";
  ExpectEach({kReview, "answer 1;doubleclick vsFlexArray1;dump", "messages vsFlexArray1.editing"},
             {"[7]|[1]|" + refused, "[65]|[1]|" + refused, "[17]|[1]|" + refused, "[10]|[1]|" + refused,
              "[99]|[1]|" + refused});
  // Also one that the operator has set there; other rows can still be edited. Escape restores the old text.
  const std::string edit = "edit vsFlexArray1 1 5 '2';", accept = "click OptAccept;click btnAcceptChanges";
  ExpectEach({kReview, "{2};" + accept, "vValue"},
             {"[53,54]|[9,9]|answer 1;answer 1;" + edit +
                  "cell vsFlexArray1 1 5;doubleclick vsFlexArray1;edit vsFlexArray1 2 5 '20'|['2','20']",
              "[29]|[1]|answer 1;doubleclick vsFlexArray1;type vsFlexArray1 '1';key vsFlexArray1 Escape|['60']",
              "[29]|[1]|answer 1;doubleclick vsFlexArray1;type vsFlexArray1 '1';key vsFlexArray1 Escape;"
              "edit vsFlexArray1 1 5 '100'|['100']",
              // Letters are stored as their codes.
              "[37,137,237]|[1,1,1]|answer 1;edit vsFlexArray1 2 5 'b';edit vsFlexArray1 3 5 'C'|['253','254','255']"});
}

TEST(SiaReview, OutcomeIsTheResult) {
  const std::string edit = "edit vsFlexArray1 1 5 '100';", lost = "10728/10699/4", kept = " [29,27] [10,2]";
  const std::string stored = " [29,27] ['100','6']";
  ExpectEach({kReview, "{2}", "result messages vItemNo vValue"},
             {"[29,27]|[10,2]|answer 1;" + edit + "click btnAcceptChanges|1 10698/10699/0" + kept,
              "[29,27]|[10,2]|answer 1;" + edit + "click OptAccept;click OptIgnore;key - Enter|1 10698/10699/0" + kept,
              "[29,27]|[10,2]|answer 1;" + edit + "click OptAccept;key - Enter|2 10700/10699/0" + stored,
              "[29,27]|[10,2]|answer 6;" + edit + "click btnCancel|0 " + lost + kept,
              "[29,27]|[10,2]|answer 6;" + edit + "click OptAccept;key - Escape|0 " + lost + kept,
              "[29,27]|[10,2]|answer 7;answer 1;" + edit + "click OptAccept;key - Escape;key - Enter|2 " + lost +
                  ", 10700/10699/0" + stored,
              "[29,27]|[10,2]|answer 7;answer 6;" + edit + "click btnCancel;key - Enter|0 " + lost + ", " + lost + kept,
              "[29,27]|[10,2]|" + edit + "click OptAccept;close|0 " + kept});
  ExpectEach({kReview + " bThroughComm=true", "answer 6;click btnCancel", "messages"}, {"[]|[]|10730/10699/4"});
}

using SiaReviewFaults = BrokenCatalogueTest;

std::int32_t Display(Value& values) {
  return clsErrorMessageNova().Display(Array({Integer(65), Integer(29), Integer(29)}), values,
                                       std::make_shared<SecurityLevels>(), 49, false);
}

TEST_F(SiaReviewFaults, FailureWhileStoringLeavesWhatIsStored) {
  Host->Answers = {answers::Ok};
  Host->Operate = [this](shown::Dialog& dialog) {
    dialog.Find("OptAccept")->Press(), dialog.Find("btnAcceptChanges")->Press();
    FailsFor = 10707;  // needed for the second row, not for the first
  };
  Value values = Array({Integer(5), Integer(6), Integer(7)});
  EXPECT_EQ(Display(values), 0);
  EXPECT_EQ(values, Array({"1", Integer(6), Integer(7)}));
}

TEST_F(SiaReviewFaults, FailureIsReportedWhereThereIsAFaultObject) {
  ASSERT_EQ(InitApplicationVariables(), 0);
  Host->Answers = {answers::Ok};
  Value values = 5;
  EXPECT_EQ(Display(values), 0);
  EXPECT_EQ(Faults, Log{"frmErrorSIA_Nova Display() 13"});
}

}  // namespace
}  // namespace orlin::testing
