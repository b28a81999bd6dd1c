#include <string>
#include <tuple>
#include <vector>

#include "OrlinCustomDialogs/verification.h"

#include "frame/services/modGeneral.h"
#include "support/broken_catalogue.h"
#include "verification/texts.h"

namespace orlin::testing {
namespace {

DialogRun Review(const std::string& items, const std::string& values, const std::string& script, int panelType = 49,
                 const PlayOptions& options = {}) {
  return Play("clsErrorMessageNova", {"vItemNo=" + items, "vValue=" + values, "PanelType=" + std::to_string(panelType)},
              script, options);
}

/// A column of the grid of a review of some items, without its title.
Json Column(std::size_t column, const std::string& items, const std::string& values, int panelType = 49) {
  Json cells = Json::array();
  const auto grid = Review(items, values, "dump", panelType).Control("vsFlexArray1").at("cells");
  for (std::size_t row = 1; row < grid.size(); ++row) cells.push_back(grid[row][column]);
  return cells;
}

TEST(SiaReview, ShowsAndStoresEveryKindOfParameter) {
  const auto yes = Text(10697);
  const auto no = Text(10707);
  const std::string byFives = " (Increments of 5 only)";
  const struct {
    int Item;
    std::string Present;
    Json Cells;
    std::string Stored;
  } kinds[] = {{29, "10", {Text(10686), "1", "10", "45", "255" + byFives, "60"}, "60"},
               {27, "\"2\"", {Text(10687), "1", "2", "6", "90", "6"}, "6"},
               {7, "5", {Text(10688), "N/A", "5", "3", "3", "3"}, "3"},
               {37, "7", {Text(10689), "1", "7", "1", "128 A,B,C", "A"}, "253"},
               {22, "3", {Text(10690), "N/A", "3", "30", "240" + byFives, "30"}, "30"},
               {54, "9", {Text(10691), "N/A", "9", "15", "45", "30"}, "30"},
               {53, "9", {Text(10692), "N/A", "9", "1", "2", "1"}, "1"},
               {65, "0", {Text(10693), "1", no, yes, yes, yes}, "1"},
               {52, "0", {Text(10695), "N/A", Text(10712), "3", "6", "4"}, "4"},
               {17, "1", {Text(10739), "N/A", "E", "-", "-", "-"}, "0"},
               {19, "\"2\"", {Text(10740), "N/A", "P", "-", "-", "-"}, "0"},
               {10, "1", {Text(10743), "1", yes, no, no, no}, "0"},
               {8, "1", {Text(10742), "1", yes, no, no, no}, "0"},
               {17, "\"x\"", {Text(10739), "N/A", "x", "-", "-", "-"}, "0"},
               {99, "5", {"", "", "", "", "", ""}, ""},  // of no kind: the row stays blank
               {54, "empty", {Text(10691), "N/A", "", "15", "45", "30"}, "30"}};
  std::string items, values;
  Json cells = {{Text(10701), Text(10702), Text(10703), Text(10704), Text(10705), Text(10706)}};
  std::vector<Value> stored;
  for (const auto& kind : kinds) {
    items += (stored.empty() ? "[" : ",") + std::to_string(kind.Item);
    values += (stored.empty() ? "[" : ",") + kind.Present;
    cells.push_back(kind.Cells);
    stored.emplace_back(kind.Stored);
  }
  const auto run = Review(items + "]", values + "]", "answer 1\ndump\nclick OptAccept\nclick btnAcceptChanges");
  EXPECT_EQ(run.Control("vsFlexArray1").at("cells"), cells);
  EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(10681));
  EXPECT_EQ(run.Control("OptIgnore").at("caption"), Text(10684));
  EXPECT_EQ(run.Fields("message", "title"), Texts({10699}));
  EXPECT_EQ(run.Argument("vValue"), Array(stored));
}

TEST(SiaReview, ItemNumberTellsTheAreaOrPointAndPanelTypeTheLimitOfPoints) {
  EXPECT_EQ(Column(1, "[129,929,127,137,122,222,165,166,110,108,107,154,152]", "[1*13]"),
            (Json{"2", "10", "2", "2", "1", "2", "2", "2", "2", "2", "N/A", "N/A", "N/A"}));
  for (const auto& [panelType, limit] : {std::pair{49, "128"}, {50, "64"}, {51, "24"}, {1, ""}}) {
    EXPECT_EQ(Column(4, "[37]", "[1]", panelType)[0], limit + std::string(" A,B,C")) << panelType;
  }
}

TEST(SiaReview, GridHasARowForEachValue) {
  EXPECT_EQ(Column(0, "[29*60]", "[1*60]").size(), 60U);
  EXPECT_EQ(Column(0, "[29,27]", "[1]").size(), 1U);
  EXPECT_EQ(Column(0, "[]", "[]").size(), 0U);
  EXPECT_EQ(Review("[]", "[]", "answer 1\nclick btnAcceptChanges").Result, 1);
  EXPECT_EQ(Review("[]", "[]", "answer 1\nclick OptAccept\nclick btnAcceptChanges").Result, 2);
}

TEST(SiaReview, DesiredValueHasToComply) {
  const struct {
    int Item;
    std::string Typed;
    int Message;  // 0: it is accepted
    std::string Left;
    int PanelType = 49;
    std::size_t Beeps = 0;
  } cases[] = {
      {29, "45", 0, "45"},      {29, "255", 0, "255"},   {29, "40", 10708, "60"},    {29, "260", 10708, "60"},
      {29, "62", 1151, "60"},   {29, "", 1151, "60"},    {29, "40000", 1151, "60"},  {22, "240", 0, "240"},
      {22, "31", 1151, "30"},   {22, "25", 10708, "30"}, {27, "90", 0, "90"},        {27, "91", 10708, "6"},
      {27, "5", 10708, "6"},    {27, "", 10708, "6"},    {27, "x7-", 0, "7", 49, 2}, {54, "44", 0, "44"},
      {52, "7", 10708, "4"},    {37, "b", 0, "B"},       {37, "C", 0, "C"},          {37, "AB", 1151, "A"},
      {37, "1a", 1151, "A"},    {37, "", 1151, "A"},     {37, "d2", 0, "2", 49, 1},  {37, "128", 0, "128"},
      {37, "129", 10708, "A"},  {37, "0", 10708, "A"},   {37, "24", 0, "24", 51},    {37, "25", 10708, "A", 51},
      {37, "1", 10708, "A", 1}, {37, "c", 0, "C", 1}};
  for (const auto& row : cases) {
    const auto item = "[" + std::to_string(row.Item) + "]";
    SCOPED_TRACE(item + row.Typed);
    const auto edit = "edit vsFlexArray1 1 5 \"" + row.Typed + "\"\ndump";
    const auto run = Review(item, "[1]", (row.Message == 0 ? "" : "answer 1\n") + edit, row.PanelType);
    EXPECT_EQ(run.Control("vsFlexArray1").at("cells")[1][5], row.Left);
    EXPECT_EQ(run.Events("beep").size(), row.Beeps);
    EXPECT_EQ(run.Fields("message", "text"), Texts({row.Message}));
    const int title = row.Message == 1151 ? 262 : row.Message == 10708 ? 10709 : 0;
    EXPECT_EQ(run.Fields("message", "title"), Texts({title}));
  }
}

TEST(SiaReview, ValueThatEqualsTheMaximumCannotBeEdited) {
  for (const int item : {7, 65, 17, 10, 99}) {
    const auto run = Review("[" + std::to_string(item) + "]", "[1]", "answer 1\ndoubleclick vsFlexArray1\ndump");
    EXPECT_EQ(run.Fields("message", "text"), Texts({10710})) << item;
    EXPECT_EQ(run.Fields("message", "title"), Texts({10711}));
    EXPECT_EQ(run.Control("vsFlexArray1").at("editing"), false);
  }
  // Also one that the operator has set there; other rows can still be edited.
  const auto run = Review("[53,54]", "[9,9]",
                          "answer 1\nedit vsFlexArray1 1 5 \"2\"\ncell vsFlexArray1 1 5\ndoubleclick vsFlexArray1\n"
                          "edit vsFlexArray1 2 5 \"20\"\ndump");
  EXPECT_EQ(run.Control("vsFlexArray1").at("cells")[2][5], "20");
}

TEST(SiaReview, EscapeRestoresOldTextAndAllowsAnotherEdit) {
  const auto run = Review("[29]", "[1]",
                          "doubleclick vsFlexArray1\ntype vsFlexArray1 \"1\"\nkey vsFlexArray1 Escape\ndump\n"
                          "edit vsFlexArray1 1 5 \"100\"\ndump");
  EXPECT_EQ(run.Control("vsFlexArray1", 0).at("cells")[1][5], "60");
  EXPECT_EQ(run.Control("vsFlexArray1", 1).at("cells")[1][5], "100");
}

TEST(SiaReview, OutcomeIsTheResult) {
  const std::string edit = "edit vsFlexArray1 1 5 \"100\"\n";
  const struct {
    std::string Script;
    int Result;
    std::vector<int> Messages;
    const char* Stored;  // null: the values stay as they came
  } cases[] = {{"answer 1\n" + edit + "click btnAcceptChanges", 1, {10698}, nullptr},
               {"answer 1\n" + edit + "click OptAccept\nclick OptIgnore\nkey - Enter", 1, {10698}, nullptr},
               {"answer 1\n" + edit + "click OptAccept\nkey - Enter", 2, {10700}, "100"},
               {"answer 6\n" + edit + "click btnCancel", 0, {10728}, nullptr},
               {"answer 6\n" + edit + "click OptAccept\nkey - Escape", 0, {10728}, nullptr},
               {"answer 7\nanswer 1\n" + edit + "click OptAccept\nkey - Escape\nkey - Enter", 2, {10728, 10700}, "100"},
               {"answer 7\nanswer 6\n" + edit + "click btnCancel\nkey - Enter", 0, {10728, 10728}, nullptr},
               {edit + "click OptAccept\nclose", 0, {}, nullptr}};
  for (const auto& row : cases) {
    const auto run = Review("[29,27]", "[10,2]", row.Script);
    EXPECT_EQ(run.Result, row.Result) << row.Script;
    EXPECT_EQ(run.Fields("message", "text"), Texts(row.Messages)) << row.Script;
    const auto expected = row.Stored != nullptr ? Array({row.Stored, "6"}) : Array({Integer(10), Integer(2)});
    EXPECT_EQ(run.Argument("vValue"), expected) << row.Script;
    EXPECT_EQ(run.Argument("vItemNo"), Array({Integer(29), Integer(27)}));
  }
}

TEST(SiaReview, LettersAreStoredAsTheirCodes) {
  const std::string edits = "edit vsFlexArray1 2 5 \"b\"\nedit vsFlexArray1 3 5 \"C\"\n";
  const auto run = Review("[37,137,237]", "[1,1,1]", "answer 1\n" + edits + "click OptAccept\nclick btnAcceptChanges");
  EXPECT_EQ(run.Argument("vValue"), Array({"253", "254", "255"}));
}

TEST(SiaReview, QuestionBeforeCancelNamesTheConnection) {
  const auto run =
      Play("clsErrorMessageNova", {"vItemNo=[]", "vValue=[]", "bThroughComm=true"}, "answer 6\nclick btnCancel");
  EXPECT_EQ(run.Fields("message", "text"), Texts({10730}));
}

TEST(SiaReview, AnyRecordAboveTheOperatorLeavesCancelAlone) {
  const std::tuple<Strings, bool, bool> cases[] = {{{"AuthorityLevel=2,2", "Any=2,2"}, true, true},
                                                   {{"AuthorityLevel=2,2", "Any=3,2"}, false, true},
                                                   {{"Any=0,3", "AuthorityLevel=2,2"}, true, false}};
  for (const auto& [levels, visible, enabled] : cases) {
    const auto run = Review("[29]", "[1]", "dump", 49, {.Levels = levels});
    for (const auto* name : {"grpErrorDetails", "btnAcceptChanges", "lblUserWarning", "OptAccept", "OptIgnore",
                             "vsFlexArray1", "btnCancel"}) {
      const bool cancel = name == std::string("btnCancel");
      EXPECT_EQ(run.Control(name).at("visible"), visible || cancel) << name;
      EXPECT_EQ(run.Control(name).at("enabled"), enabled || cancel) << name;
    }
  }
}

TEST(SiaReview, FailureBeforeTheShowGivesZero) {
  const std::vector<Strings> cases = {{"vItemNo=[29]", "vValue=[1,2]"},
                                      {"vItemNo=29", "vValue=[1]"},
                                      {"vItemNo=[29]", "vValue=1"},
                                      {"vItemNo=[\"x\"]", "vValue=[1]"},
                                      {"vItemNo=[]", "vValue=[]", "SecurityLevels=5"}};
  for (const auto& arguments : cases) {
    const auto run = Play("clsErrorMessageNova", arguments, "click OptAccept\nclick btnAcceptChanges");
    EXPECT_EQ(run.Result, 0) << arguments[0];
    EXPECT_TRUE(run.Events("show").empty()) << arguments[0];
  }
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
