#include "outputs_test.h"

namespace orlin::testing {
namespace {

struct Function {
  std::string Type, First = "7", Second = "9", Option = "0";
};

DialogRun Open(const Function& function, const std::string& script, const Strings& levels = {}) {
  return Play("clsOutputFunctionsBirch",
              {"vName=Output 2", "vType=" + function.Type, "vOption=" + function.Option,
               "vFirstZone=\"" + function.First + "\"", "vSecondZone=\"" + function.Second + "\""},
              script, {.Levels = levels});
}

TEST(OutputFunctionsBirch, EachCodeShowsItsListsAndComesBack) {
  const auto arming = Then({513}, 1196, 1198);
  const auto zones = Then({513}, 1200, 1211);
  const auto alarms = Then({513, 1225, 1226, 1227, 1228, 1368, 1230, 1369}, 1232, 1236);
  const struct {
    int Code;
    std::int16_t Text, Caption;
    Numbers Options;
    bool First = false, Second = false;
  } functions[] = {{0, 1212, 1358, Then({513}, 1359, 1361)},
                   {1, 1213, 1350, {513}},
                   {3, 1352, 1350, arming},
                   {4, 1915, 1350, arming},
                   {6, 1218, 1350, arming},
                   {7, 1219, 1350, arming},
                   {8, 1220, 1362, Then({513}, 1363, 1366)},
                   {9, 1221, 1350, arming},
                   {10, 1353, 1367, alarms},
                   {11, 1222, 1370, zones},
                   {12, 1354, 1370, zones},
                   {13, 1355, 1370, zones, true},
                   {14, 1356, 1350, arming, true, true},
                   {15, 1357, 1350, arming, true, true}};
  Numbers names;
  for (const auto& function : functions) names.push_back(function.Text);
  int position = 0;
  for (const auto& function : functions) {
    SCOPED_TRACE(function.Code);
    const auto run = Open({"\"" + std::to_string(function.Code) + "\""}, "dump\nclick cmdOK");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Output 2"));
    EXPECT_EQ(Seen(run, "cmbType", {"list", "listIndex"}), (Json{Texts(names), position++}));
    EXPECT_EQ(run.Control("lblOption")["caption"], Text(function.Caption));
    EXPECT_EQ(run.Control("cmbOption")["list"], Texts(function.Options));
    EXPECT_EQ(run.Control("txtFirstZone")["locked"], !function.First);
    EXPECT_EQ(run.Control("txtSecondZone")["locked"], !function.Second);
    EXPECT_EQ(Back(run, {"vType", "vFirstZone", "vSecondZone"}),
              (Values{Integer(function.Code), function.First ? "07" : "00", function.Second ? "09" : "00"}));
  }
}

TEST(OutputFunctionsBirch, CodesOfNoFunctionOpenTheNextOne) {
  EXPECT_EQ(Open({"2"}, "click cmdOK").Argument("vType"), Integer(3));
  EXPECT_EQ(Open({"5"}, "click cmdOK").Argument("vType"), Integer(4));
}

TEST(OutputFunctionsBirch, ZonesAreDecimalInTheBoxes) {
  const auto run = Open({"15", "F8", "A", "\"3\""}, "dump\nclick cmdOK");
  EXPECT_EQ(run.Control("txtFirstZone")["text"], "248");
  EXPECT_EQ(run.Control("txtSecondZone")["text"], "10");
  EXPECT_EQ(Back(run, {"vFirstZone", "vSecondZone", "vOption"}), (Values{"F8", "0A", Integer(3)}));
  EXPECT_EQ(Open({"14", "FF", ""}, "click cmdOK").Argument("vFirstZone"), "FF");
  EXPECT_EQ(Open({"14", "FFFFFFFFF", ""}, "click cmdOK").Result, 6);
}

TEST(OutputFunctionsBirch, BoxesRememberTheirZones) {
  const struct {
    Function Given;
    std::string Script, First, Second;
    std::size_t Beeps = 0;
  } cases[] = {
      {{"14"}, "select cmbType 3\nselect cmbType 12", "7", "9"},
      {{"14"}, "select cmbType 11", "7", ""},
      {{"14", "FF", "F9"}, "", "255", "249"},
      {{"14", "FF", "F9"}, "select cmbType 13", "248", "248"},
      {{"14", "FF", "F9"}, "select cmbType 11\nselect cmbType 3\nselect cmbType 12", "248", "248"},
      {{"14"}, "type txtFirstZone \"1x\"\ntype txtSecondZone \"99\"", "17", "248", 1},
      {{"14", "1", "2"}, "type txtFirstZone \"x\"\ntype txtSecondZone \"x\"", "1", "2", 2},
      // A closed box takes no keys.
      {{"0"}, "type txtFirstZone \"5\"\nselect cmbType 12\ntype txtFirstZone \"6x\"", "6", "", 1},
  };
  for (const auto& expected : cases) {
    const auto run = Open(expected.Given, expected.Script + "\ndump");
    EXPECT_EQ(run.Control("txtFirstZone")["text"], expected.First) << expected.Script;
    EXPECT_EQ(run.Control("txtSecondZone")["text"], expected.Second) << expected.Script;
    EXPECT_EQ(run.Events("beep").size(), expected.Beeps) << expected.Script;
  }
}

TEST(OutputFunctionsBirch, TabPassesAClosedBoxBy) {
  EXPECT_EQ(Open({"12"}, "key cmbOption Tab\ndump").Focus(), "cmdOK");
  EXPECT_EQ(Open({"13"}, "key cmbOption Tab\ndump").Focus(), "txtFirstZone");
  EXPECT_EQ(Open({"13"}, "key txtFirstZone Tab\ndump").Focus(), "cmdOK");
  EXPECT_EQ(Open({"14"}, "key txtFirstZone Tab\ndump").Focus(), "txtSecondZone");
}

TEST(OutputFunctionsBirch, OptionStaysWithinTheListOfANewFunction) {
  for (const auto& [position, option] : {std::pair{"10", 9}, {"6", 4}, {"1", 0}}) {
    const auto run = Open({"11", "", "", "9"}, "select cmbType " + std::string(position) + "\ndump");
    EXPECT_EQ(run.Control("cmbOption")["listIndex"], option);
  }
}

TEST(OutputFunctionsBirch, FrameGoesWithBothZones) {
  for (const auto& [needed, shown] : {std::pair{"2,1", Json{false, true}}, {"1,2", Json{true, false}}}) {
    const std::string levels = needed;
    const auto run =
        Open({"14"}, "dump", {"AuthorityLevel=1,1", "Follows Zone 1=" + levels, "Follows Zone 2=" + levels});
    EXPECT_EQ(Seen(run, "fraZones", {"visible", "enabled"}), shown);
  }
}

}  // namespace
}  // namespace orlin::testing
