#include "catalogue/languages.h"
#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

Call Zone(const Words& arguments, const Words& levels = {}) { return {"clsZoneFunctionsBirch", arguments, levels}; }

// Function 1 is one whose alarms can be verified, function 2 is not.
const std::string kDescriptions = "vRetVal=[\"" + Text(10553) + "\",\"1: " + Text(1726) + " (hall)\",\"two\"]";
Call Description(Words arguments, const Words& levels = {}) {
  if (arguments.empty() || arguments[0].rfind("vRetVal", 0) != 0) arguments.push_back(kDescriptions);
  return {"clsZoneFuncDescBirch", arguments, levels};
}

Call Type(const std::string& zone, const std::string& rf, const std::string& type,
          const Words& levels = {"AuthorityLevel=2,2", "Type=2,2"}) {
  return {
      "clsZoneTypeBirch", {"iZoneNum=" + zone, "iOrlinRF=" + rf, "iZoneType=" + type, "iMultiZoneType=\"7\""}, levels};
}

TEST(BirchZone, ListsStayAsTheyAreWhenTheTypeChanges) {
  const auto run = Zone({"vName=Zone 5", "vOption=3", "vTroubleOn=2"}, {"AuthorityLevel=2,2", "Trouble On=3,2"})
                       .Play("select cmbType 9\nselect cmbType 0\ndump");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(1192, "ITEM", "Zone 5"));
  ExpectTexts(
      run,
      {{"lblType", {234}},
       {"cmbOption", {1743, 1744, 1745, 1746}},
       {"cmbTroubleOn", {395, 10560, 1747}},
       {"cmbType", {1723, 1724, 1725, 1726, 1727, 1728, 1729, 1730, 1731, 1732, 1733, 1734, 1735, 1234, 1736, 1737}}});
  EXPECT_EQ(run.Control("cmbOption").at("listIndex"), 3);
  EXPECT_EQ(run.Control("cmbTroubleOn").at("listIndex"), 2);
  EXPECT_EQ(run.Control("cmbTroubleOn").at("visible"), false) << "filling the list again would show it";
}

TEST(BirchZone, EveryCombinationPassesAndComesBackAsIntegers) {
  for (int i = 0; i < 16 * 4 * 3; ++i) {
    const auto run = Zone({"vType=\"" + std::to_string(i / 12) + "\"", "vOption=" + std::to_string(i / 3 % 4),
                           "vTroubleOn=" + std::to_string(i % 3) + "L"})
                         .Play("click cmdOK");
    EXPECT_EQ((std::vector{run.Argument("vType"), run.Argument("vOption"), run.Argument("vTroubleOn")}),
              (std::vector{Integer(i / 12), Integer(i / 3 % 4), Integer(i % 3)}));
  }
}

TEST(BirchDescription, ShowsTheDescriptionsOfTheHostAndReplacesTheFirst) {
  const auto run = Description({"vRetVal=[\"old\",\"b\"]", "vName="}).Play("dump\nkey - Escape\nkey - Enter");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), "Edit ");
  EXPECT_EQ(run.Control("cmbZoneFunc").at("list"), (Json{Text(10553), "b"}));
  ExpectTexts(run, {{"lblZoneFuncDesc", {10551}}, {"ChkAlarmVerified", {10552}}});
  EXPECT_EQ(run.Result, 0) << "Escape does nothing, Enter confirms";
  const auto cancelled = Description({"vRetVal=[\"old\",\"b\"]", "iFunction=1"}).Play("click cmdCancel");
  EXPECT_EQ(cancelled.Argument("vRetVal"), (Array{{Text(10553), "b"}}));
}

TEST(BirchDescription, NameOfATypeAnywhereInTheDescriptionAllowsVerification) {
  const auto allows = [](const std::string& description) {
    const auto run = Description({"vRetVal=[0,\"" + description + "\"]", "iFunction=1"}).Play("dump");
    return run.Control("ChkAlarmVerified").at("enabled");
  };
  for (std::int16_t type = 1723; type <= 1730; ++type) {
    EXPECT_EQ(allows("x" + Text(type) + "y"), true) << Text(type);
    EXPECT_EQ(allows(std::string(LanguageOf("de").Find(type))), true) << Text(type) << " in another language";
    EXPECT_EQ(allows("x" + Text(type).substr(1)), false) << Text(type) << " with another first letter";
  }
  EXPECT_EQ(allows(Text(1731)), false);
}

TEST(BirchDescription, VerificationComesBackAsOneOrZero) {
  const std::string one = "select cmbZoneFunc 1\n", two = "select cmbZoneFunc 2\n", tick = "click ChkAlarmVerified\n";
  const struct {
    std::string Function, Verify, Script;
    int FunctionOut, VerifyOut;
  } cases[] = {{"\"1\"", "0", "", 1, 0},      {"1", "-3", "", 1, 1},
               {"1", "1", tick, 1, 0},        {"2", "1", "", 2, 0},
               {"2L", "0", one + tick, 1, 1}, {"1", "1", two, 2, 0},
               {"1", "1", two + one, 1, 1},   {"1", "10", "", 1, 0},
               {"1", "10", two + one, 1, 0},  {"1", "10", two + one + tick, 1, 1}};
  for (const auto& [function, verify, script, functionOut, verifyOut] : cases) {
    const auto run = Description({"iFunction=" + function, "iZoneAlarmVerify=" + verify}).Play(script + "click cmdOK");
    EXPECT_EQ(run.Argument("iFunction"), Integer(functionOut)) << function << verify << script;
    EXPECT_EQ(run.Argument("iZoneAlarmVerify"), Integer(verifyOut)) << function << verify << script;
  }
  const auto closed = Description({"iFunction=1", "iZoneAlarmVerify=10"}).Play("dump");
  EXPECT_EQ(closed.Control("ChkAlarmVerified").at("enabled"), false) << "the zone has no choice";
}

TEST(BirchType, ListDependsOnTheZoneAndItsRadio) {
  const std::vector<std::int16_t> five = {10540, 10542, 10543, 10544, 10545};
  const struct {
    Words Zones;
    std::vector<std::int16_t> WithoutRadio, WithRadio;
  } cases[] = {{{"1", "8", "\"5\""}, {10540}, {10540}},
               {{"9", "128"}, five, five},
               {{"129", "135", "136"}, five, {10311}},
               {{"130", "134"}, {10546, 10542, 10543, 10544, 10545}, {10311}},
               {{"137", "40000"}, {10554, 10542, 10543, 10544, 10545, 10548}, {10547, 10548}}};
  for (const auto& row : cases) {
    for (const auto& zone : row.Zones) {
      ExpectTexts(Type(zone, "0", "0").Play("dump"), {{"cmbZoneType", row.WithoutRadio}, {"Label1", {10318}}});
      ExpectTexts(Type(zone, "2", "0").Play("dump"), {{"cmbZoneType", row.WithRadio}});
    }
  }
}

TEST(BirchType, StoredTypeSelectsAPositionAndThePositionIsStored) {
  const struct {
    std::string Zone, Radio, Type;
    int Position, Picked, TypeOut;
  } cases[] = {{"5", "1", "0", 0, 0, 0},    {"5", "1", "3", 0, 0, 0},       {"9", "1", "\"4\"", 4, 4, 4},
               {"128", "1", "4L", 4, 2, 2}, {"132", "0", "1", 1, 1, 1},     {"132", "1", "4", 0, 0, 0},
               {"140", "0", "5", 5, 5, 5},  {"140", "0", "2", 2, 5, 5},     {"140", "1", "3", 0, 0, 0},
               {"140", "-1", "5", 1, 1, 5}, {"140", "1", "\"5\"", 1, 0, 0}, {"140", "1", "0", 0, 1, 5}};
  for (const auto& one : cases) {
    const auto pick = "key - Escape\ndump\nselect cmbZoneType " + std::to_string(one.Picked);
    const auto run = Type(one.Zone, one.Radio, one.Type).Play(pick + "\nclick cmdOK");
    EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(10318));
    EXPECT_EQ(run.Control("cmbZoneType").at("listIndex"), one.Position) << one.Zone << " " << one.Type;
    EXPECT_EQ(run.Argument("iZoneType"), Integer(one.TypeOut)) << one.Zone << " " << one.Type;
    EXPECT_EQ(run.Argument("iMultiZoneType"), "7");
  }
}

TEST(BirchZones, OnlyOkWrites) {
  const Words ends = {"click cmdCancel", "close"};
  ExpectOnlyOkWrites(Zone({"vType=\"5\"", "vOption=1L", "vTroubleOn=2"}),
                     "select cmbType 9\nselect cmbOption 0\nselect cmbTroubleOn 0", {"key - Escape", "close"});
  ExpectOnlyOkWrites(Description({"iFunction=\"1\"", "iZoneAlarmVerify=10"}), "select cmbZoneFunc 2", ends);
  ExpectOnlyOkWrites(Type("50", "0", "\"3\""), "select cmbZoneType 1", ends);
}

TEST(BirchZones, RightsHideAndDisableAPartThatKeepsItsValue) {
  const auto zone = [](const std::string& record) {
    return Zone({"vType=5", "vOption=1", "vTroubleOn=2"}, {"AuthorityLevel=2,2", record});
  };
  const Words descriptions = {"cmbZoneFunc", "lblZoneFuncDesc"};
  const struct {
    Call Given;
    Words Parts;
    bool Visible, Enabled;
  } cases[] = {
      {zone("Type=2,3"), {"cmbType", "lblType"}, true, false},
      {zone("Output Response=3,2"), {"cmbOption", "lblOption"}, false, true},
      {zone("Trouble On=3,2"), {"cmbTroubleOn", "lblTroubleOn"}, false, true},
      {zone("Trouble On=2,3"), {"cmbTroubleOn", "lblTroubleOn"}, true, false},
      {Description({"iFunction=1"}, {"AuthorityLevel=1,1", "Any=2,1", "Other=0,0"}), descriptions, false, true},
      {Description({"iFunction=1"}, {"AuthorityLevel=1,1", "Any=0,2"}), descriptions, true, false},
      {Description({"iFunction=1"}, {"Any=2,2", "AuthorityLevel=1,1"}), {"ChkAlarmVerified"}, true, true},
      {Type("50", "0", "3", {"AuthorityLevel=2,0", "Type=2,9", "Other=9,9"}), {"cmbZoneType"}, true, true},
      {Type("50", "0", "3", {"AuthorityLevel=1,9", "Type=2,0"}), {"cmbZoneType"}, true, false}};
  for (const auto& [given, parts, visible, enabled] : cases) {
    const auto run = given.Play("dump\nclick cmdOK");
    for (const auto& part : parts) {
      EXPECT_EQ(run.Control(part).at("visible"), visible) << part << Json(given.Levels);
      EXPECT_EQ(run.Control(part).at("enabled"), enabled) << part << Json(given.Levels);
    }
    EXPECT_EQ(run.Result, 0);
    ExpectUntouched(given, run);
  }
}

TEST(BirchZones, FailureBeforeTheShowIsTheResult) {
  const std::pair<std::int32_t, std::vector<Call>> cases[] = {
      {380,
       {Zone({"vType=16"}), Zone({"vOption=4"}), Zone({"vTroubleOn=3"}), Description({"iFunction=3"}),
        Type("50", "0", "5"), Type("8", "0", "1"), Type("130", "1", "5")}},
      {13, {Zone({"vType=x"}), Description({"iFunction=x"}), Description({"vRetVal=1"}), Type("5", "x", "0")}},
      {9, {Description({"vRetVal=[]"}), Type("0", "0", "0"), Type("-5", "1", "0")}},
      {5, {Zone({}, {"Type=1,1"}), Type("50", "0", "0", {"Type=0,0"}), Type("50", "0", "0", {"AuthorityLevel=0,0"})}},
      {424, {Zone({"SecurityLevels=1"}), Description({"SecurityLevels=1"})}}};
  for (const auto& [failure, calls] : cases) {
    for (const auto& call : calls) {
      const auto run = call.Play("click cmdOK");
      EXPECT_EQ(run.Result, failure) << call.Class << Json(call.Arguments);
      EXPECT_EQ(run.Lines.size(), 1) << "nothing was shown";
      ExpectUntouched(call, run);
    }
  }
}

}  // namespace
}  // namespace orlin::testing
