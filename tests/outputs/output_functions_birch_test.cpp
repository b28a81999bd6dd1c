#include "outputs_test.h"

namespace orlin::testing {
namespace {

TEST(OutputFunctionsBirch, EachCodeOpensItsFunctionOrTheNextOne) {
  const auto names = Texts(Then({1212, 1213, 1352, 1915, 1218, 1219, 1220, 1221, 1353, 1222}, 1354, 1357));
  const std::pair<int, int> codes[] = {{0, 0}, {1, 1}, {2, 2}, {3, 2},  {4, 3},   {5, 3},  {6, 4},
                                       {7, 5}, {8, 6}, {9, 7}, {10, 8}, {13, 11}, {15, 13}};
  for (const auto& [code, position] : codes) {
    const auto run = Open(Function("\"" + std::to_string(code) + "\""), "dump\nclick cmdOK");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Output 2"));
    EXPECT_EQ(Seen(run, "cmbType", {"list", "listIndex"}), (Json{names, position}));
    EXPECT_EQ(run.Argument("vType"), Integer(code == 2 ? 3 : code == 5 ? 4 : code));
  }
}

TEST(OutputFunctionsBirch, OptionsAndZonesFollowTheFunction) {
  const auto arming = Then({513}, 1196, 1198);
  const auto zones = Then({513}, 1200, 1211);
  const struct {
    std::string Code;
    std::int16_t Caption;
    Numbers Options;
    std::string FirstZone = "00", SecondZone = "00";
  } functions[] = {{"0", 1358, Then({513}, 1359, 1361)},
                   {"1", 1350, {513}},
                   {"3", 1350, arming},
                   {"8", 1362, Then({513}, 1363, 1366)},
                   {"10", 1367, Then({513, 1225, 1226, 1227, 1228, 1368, 1230, 1369}, 1232, 1236)},
                   {"12", 1370, zones},
                   {"13", 1370, zones, "07"},
                   {"15", 1350, arming, "07", "09"}};
  for (const auto& [code, caption, options, first, second] : functions) {
    SCOPED_TRACE(code);
    const auto run = Open(Function(code), "dump\nclick cmdOK");
    EXPECT_EQ(run.Control("lblOption")["caption"], Text(caption));
    EXPECT_EQ(run.Control("cmbOption")["list"], Texts(options));
    EXPECT_EQ(run.Control("txtFirstZone")["locked"], first == "00");
    EXPECT_EQ(run.Control("txtSecondZone")["locked"], second == "00");
    EXPECT_EQ(Back(run, {"vFirstZone", "vSecondZone"}), (Values{first, second}));
    const auto focus = Open(Function(code), "key cmbOption Tab\ndump").Focus();
    EXPECT_EQ(focus, first == "00" ? "cmdOK" : "txtFirstZone") << "a closed box is passed by";
  }
  const auto denied = Open(Function("14"), "dump", {"AuthorityLevel=1,1", "Follows Zone 1=2,2", "Follows Zone 2=2,2"});
  EXPECT_EQ(Seen(denied, "fraZones", {"visible", "enabled"}), (Json{false, false}));
}

TEST(OutputFunctionsBirch, BoxesShowAndRememberTheirZones) {
  const struct {
    Call Given;
    std::string Script, First, Second;
    std::size_t Beeps = 0;
  } cases[] = {
      {Function("15", "F8", "A"), "", "248", "10"},
      {Function("14"), "select cmbType 3\nselect cmbType 12", "7", "9"},
      {Function("14"), "select cmbType 11", "7", ""},
      {Function("14", "FF", "F9"), "", "255", "249"},
      {Function("14", "FF", "F9"), "select cmbType 13", "248", "248"},
      {Function("14"), "type txtFirstZone \"1x\"\ntype txtSecondZone \"99\"", "17", "248", 1},
      {Function("14", "1", "2"), "type txtFirstZone \"x\"\ntype txtSecondZone \"x\"", "1", "2", 2},
      // A closed box takes no keys.
      {Function("0"), "type txtFirstZone \"5\"\nselect cmbType 12\ntype txtFirstZone \"6x\"", "6", "", 1},
  };
  for (const auto& expected : cases) {
    const auto run = Open(expected.Given, expected.Script + "\ndump");
    EXPECT_EQ(run.Control("txtFirstZone")["text"], expected.First) << expected.Script;
    EXPECT_EQ(run.Control("txtSecondZone")["text"], expected.Second) << expected.Script;
    EXPECT_EQ(run.Events("beep").size(), expected.Beeps) << expected.Script;
  }
  EXPECT_EQ(Back(Open(Function("15", "F8", "A", "\"3\""), "click cmdOK"), {"vFirstZone", "vSecondZone", "vOption"}),
            (Values{"F8", "0A", Integer(3)}));
  const auto failed = Open(Function("15", "5", "FFFFFFFFFF"), "click cmdOK");
  EXPECT_EQ(failed.Result, 6);
  EXPECT_EQ(Back(failed, {"vType", "vFirstZone", "vSecondZone"}), (Values{Integer(13), "5", "FFFFFFFFFF"}))
      << "what was written before the failure stays, in the form that it had then";
}

TEST(OutputFunctionsBirch, OptionStaysWithinTheListOfANewFunction) {
  for (const auto& [position, option] : {std::pair{"10", 9}, {"6", 4}, {"1", 0}}) {
    const auto run = Open(Function("11", "", "", "9"), "select cmbType " + std::string(position) + "\ndump");
    EXPECT_EQ(run.Control("cmbOption")["listIndex"], option);
  }
}

}  // namespace
}  // namespace orlin::testing
