#include "OrlinCustomDialogs/zones.h"

#include "support/broken_catalogue.h"
#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

using Words = std::vector<std::string>;

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

TEST(BirchZone, ShowsTheListsAndNamesTheZone) {
  const auto run = Zone({"vName=Zone 5", "vType=13", "vOption=2", "vTroubleOn=1"}).Play("dump");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(1192, "ITEM", "Zone 5"));
  ExpectTexts(
      run,
      {{"lblType", {234}},
       {"lblOption", {1722}},
       {"cmbOption", {1743, 1744, 1745, 1746}},
       {"lblTroubleOn", {1721}},
       {"cmbTroubleOn", {395, 10560, 1747}},
       {"cmbType", {1723, 1724, 1725, 1726, 1727, 1728, 1729, 1730, 1731, 1732, 1733, 1734, 1735, 1234, 1736, 1737}}});
}

TEST(BirchZone, EveryCombinationPassesAndComesBackAsIntegers) {
  for (int i = 0; i < 16 * 4 * 3; ++i) {
    const int type = i / 12;
    const int option = i / 3 % 4;
    const int trouble = i % 3;
    const auto run = Zone({"vType=\"" + std::to_string(type) + "\"", "vOption=" + std::to_string(option),
                           "vTroubleOn=" + std::to_string(trouble) + "L"})
                         .Play("click cmdOK");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("vType"), Integer(type));
    EXPECT_EQ(run.Argument("vOption"), Integer(option));
    EXPECT_EQ(run.Argument("vTroubleOn"), Integer(trouble));
  }
}

TEST(BirchZone, ChangeOfTypeLeavesTheOtherListsAlone) {
  const auto run = Zone({"vType=0", "vOption=3", "vTroubleOn=2"}, {"AuthorityLevel=2,2", "Trouble On=3,2"})
                       .Play("select cmbType 9\nselect cmbType 0\ndump");
  for (const auto& [list, last] : {std::pair{"cmbOption", 3}, {"cmbTroubleOn", 2}}) {
    EXPECT_EQ(run.Control(list).at("listIndex"), last);
    EXPECT_EQ(run.Control(list).at("list").size(), last + 1);
  }
  EXPECT_EQ(run.Control("cmbTroubleOn").at("visible"), false) << "filling the list again would show it";
}

TEST(BirchDescription, ShowsTheDescriptionsOfTheHost) {
  const auto run = Description({"vName=", "iFunction=2"}).Play("dump\nkey - Escape\nkey - Enter");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), "Edit ");
  EXPECT_EQ(run.Control("cmbZoneFunc").at("list"), (Json{Text(10553), "1: " + Text(1726) + " (hall)", "two"}));
  ExpectTexts(run,
              {{"lblZoneFuncDesc", {10551}}, {"ChkAlarmVerified", {10552}}, {"cmdOK", {101}}, {"cmdCancel", {119}}});
  EXPECT_EQ(run.Result, 0) << "Escape does nothing, Enter confirms";
}

TEST(BirchDescription, NameOfATypeAnywhereInTheDescriptionAllowsVerification) {
  const auto allows = [](const std::string& description, const std::string& verify = "0") {
    return Description({"vRetVal=[0,\"" + description + "\"]", "iFunction=1", "iZoneAlarmVerify=" + verify})
        .Play("dump")
        .Control("ChkAlarmVerified")
        .at("enabled");
  };
  for (std::int16_t type = 1723; type <= 1730; ++type) {
    EXPECT_EQ(allows("x" + Text(type) + "y"), true) << Text(type);
    EXPECT_EQ(allows("x" + Text(type).substr(1)), false) << Text(type) << " with another first letter";
  }
  for (std::int16_t type = 1731; type <= 1737; ++type) EXPECT_EQ(allows(Text(type)), false) << Text(type);
  EXPECT_EQ(allows(Text(1723), "10"), false) << "the zone has no choice";
}

TEST(BirchDescription, VerificationComesBackAsOneOrZero) {
  const std::string one = "select cmbZoneFunc 1\n";
  const std::string two = "select cmbZoneFunc 2\n";
  const std::string tick = "click ChkAlarmVerified\n";
  const struct {
    std::string Function, Verify, Script;
    int FunctionOut, VerifyOut;
  } cases[] = {{"\"1\"", "0", "", 1, 0},
               {"1", "1", "", 1, 1},
               {"1", "-3", "", 1, 1},
               {"1", "1", tick, 1, 0},
               {"2", "1", "", 2, 0},
               {"2L", "0", one + tick, 1, 1},
               {"1", "1", two, 2, 0},
               {"1", "1", two + one, 1, 1},
               {"1", "10", "", 1, 0},
               {"1", "10", two + one, 1, 0},
               {"1", "10", two + one + tick, 1, 1},
               {"2", "10", one + tick, 1, 1}};
  for (const auto& row : cases) {
    const auto run =
        Description({"iFunction=" + row.Function, "iZoneAlarmVerify=" + row.Verify}).Play(row.Script + "click cmdOK");
    EXPECT_EQ(run.Argument("iFunction"), Integer(row.FunctionOut)) << row.Function << row.Verify << row.Script;
    EXPECT_EQ(run.Argument("iZoneAlarmVerify"), Integer(row.VerifyOut)) << row.Function << row.Verify << row.Script;
  }
}

TEST(BirchDescription, FirstDescriptionIsReplacedOnEveryOutcome) {
  for (const auto* function : {"iFunction=1", "iFunction=9"}) {
    const auto run = Description({"vRetVal=[\"old\",\"b\"]", function}).Play("click cmdCancel");
    EXPECT_EQ(run.Argument("vRetVal"), (Array{{Text(10553), "b"}})) << function;
  }
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
      ExpectTexts(Type(zone, "0", "0").Play("dump"), {{"cmbZoneType", row.WithoutRadio}});
      ExpectTexts(Type(zone, "2", "0").Play("dump"), {{"cmbZoneType", row.WithRadio}});
    }
  }
}

TEST(BirchType, StoredTypeSelectsAPositionAndThePositionIsStored) {
  const std::string pick = "select cmbZoneType ";
  const struct {
    Call Given;
    int Position;
    std::string Script;
    int TypeOut;
  } cases[] = {{Type("5", "1", "0"), 0, "", 0},
               {Type("5", "1", "3"), 0, "", 0},
               {Type("9", "1", "\"4\""), 4, "", 4},
               {Type("128", "1", "4L"), 4, pick + "2\n", 2},
               {Type("132", "0", "1"), 1, "", 1},
               {Type("132", "1", "4"), 0, "", 0},
               {Type("140", "0", "5"), 5, "", 5},
               {Type("140", "0", "2"), 2, pick + "5\n", 5},
               {Type("140", "1", "3"), 0, "", 0},
               {Type("140", "-1", "5"), 1, "", 5},
               {Type("140", "1", "\"5\""), 1, pick + "0\n", 0},
               {Type("140", "1", "0"), 0, pick + "1\n", 5}};
  for (const auto& one : cases) {
    const auto run = one.Given.Play("key - Escape\ndump\n" + one.Script + "click cmdOK");
    ExpectTexts(run, {{"Label1", {10318}}, {"cmdCancel", {119}}});
    EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(10318));
    EXPECT_EQ(run.Control("cmdOK").at("caption"), "&OK");
    EXPECT_EQ(run.Control("cmbZoneType").at("listIndex"), one.Position) << Json(one.Given.Arguments);
    EXPECT_EQ(run.Argument("iZoneType"), Integer(one.TypeOut)) << Json(one.Given.Arguments);
    EXPECT_EQ(run.Argument("iMultiZoneType"), "7");
  }
}

// ---------------------------------------------------------------------------------------------- all three

TEST(BirchZones, OnlyOkWrites) {
  ExpectOnlyOkWrites(Zone({"vType=\"5\"", "vOption=1L", "vTroubleOn=2"}),
                     "select cmbType 9\nselect cmbOption 0\nselect cmbTroubleOn 0",
                     {"click cmdCancel", "key - Escape", "close"});
  ExpectOnlyOkWrites(Description({"iFunction=\"1\"", "iZoneAlarmVerify=10"}), "select cmbZoneFunc 2",
                     {"click cmdCancel", "close"});
  ExpectOnlyOkWrites(Type("50", "0", "\"3\""), "select cmbZoneType 1", {"click cmdCancel", "close"});
}

TEST(BirchZones, RightsHideAndDisableAPartThatKeepsItsValue) {
  const Words zone = {"vType=5", "vOption=1", "vTroubleOn=2"};
  const struct {
    Call Given;
    Words Parts;
    bool Visible, Enabled;
  } cases[] = {
      {Zone(zone, {"AuthorityLevel=2,2", "Type=2,2"}), {"cmbType", "lblType"}, true, true},
      {Zone(zone, {"AuthorityLevel=2,2", "Type=3,2"}), {"cmbType", "lblType"}, false, true},
      {Zone(zone, {"AuthorityLevel=2,2", "Output Response=3,2"}), {"cmbOption", "lblOption"}, false, true},
      {Zone(zone, {"AuthorityLevel=2,2", "Output Response=2,3"}), {"cmbOption", "lblOption"}, true, false},
      {Zone(zone, {"AuthorityLevel=2,2", "Type=3,3", "output response=3,3"}),
       {"cmbOption", "cmbTroubleOn"},
       true,
       true},
      {Zone(zone, {"Trouble On=3,2", "AuthorityLevel=2,2"}), {"cmbTroubleOn", "lblTroubleOn"}, false, true},
      {Zone(zone, {"Trouble On=2,3", "AuthorityLevel=2,2"}), {"cmbTroubleOn", "lblTroubleOn"}, true, false},
      {Description({"iFunction=1"}, {"AuthorityLevel=1,1", "Any=1,1"}), {"cmbZoneFunc", "lblZoneFuncDesc"}, true, true},
      {Description({"iFunction=1"}, {"AuthorityLevel=1,1", "Any=2,1", "Other=0,0"}),
       {"cmbZoneFunc", "lblZoneFuncDesc"},
       false,
       true},
      {Description({"iFunction=1"}, {"AuthorityLevel=1,1", "Any=0,2"}),
       {"cmbZoneFunc", "lblZoneFuncDesc"},
       true,
       false},
      {Description({"iFunction=1"}, {"Any=2,2", "AuthorityLevel=1,1"}), {"ChkAlarmVerified"}, true, true},
      {Type("50", "0", "3", {"AuthorityLevel=2,0", "Type=2,9", "Other=9,9"}), {"cmbZoneType"}, true, true},
      {Type("50", "0", "3", {"AuthorityLevel=1,9", "Type=2,0"}), {"cmbZoneType"}, true, false}};
  for (const auto& one : cases) {
    const auto run = one.Given.Play("dump\nclick cmdOK");
    for (const auto& part : one.Parts) {
      EXPECT_EQ(run.Control(part).at("visible"), one.Visible) << part << Json(one.Given.Levels);
      EXPECT_EQ(run.Control(part).at("enabled"), one.Enabled) << part << Json(one.Given.Levels);
    }
    EXPECT_EQ(run.Result, 0);
    ExpectUntouched(one.Given, run);
  }
}

TEST(BirchZones, FailureBeforeTheShowIsTheResult) {
  const std::pair<std::int32_t, std::vector<Call>> cases[] = {
      {380,
       {Zone({"vType=16"}), Zone({"vType=-1"}), Zone({"vOption=4"}), Zone({"vTroubleOn=3"}),
        Description({"iFunction=3"}), Description({"iFunction=-1"}), Type("50", "0", "5"), Type("50", "1", "-1"),
        Type("8", "0", "1"), Type("8", "1", "5"), Type("130", "1", "5"), Type("140", "0", "6")}},
      {13,
       {Zone({"vType=x"}), Zone({"vName=[1]"}), Description({"iFunction=x"}), Description({"vName=[1]"}),
        Description({"vRetVal=1"}), Type("x", "0", "0"), Type("5", "x", "0"), Type("50", "0", "x"),
        Type("140", "1", "x")}},
      {9, {Description({"vRetVal=[]"}), Type("0", "0", "0"), Type("-5", "1", "0")}},
      {6, {Zone({"vOption=70000"}), Description({"iFunction=70000"}), Type("50", "0", "70000")}},
      {5,
       {Zone({}, {"Type=1,1"}), Description({}, {"Any=1,1"}), Type("50", "0", "0", {}),
        Type("50", "0", "0", {"Type=0,0"}), Type("50", "0", "0", {"AuthorityLevel=0,0"})}},
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

/// A fault log that fails when it is first used.
struct BrokenLog : FaultLog {
  using FaultLog::FaultLog;
  void LogError() override {
    if (std::exchange(Fails, false)) throw Failure(75);
    FaultLog::LogError();
  }
  void Clear() override { ADD_FAILURE() << "cleared"; }
  bool Fails = true;
};

std::int32_t DisplayDescription() {
  Value descriptions = Array({"", Text(1724)});
  Value function = Integer(1);
  std::int16_t verify = 0;
  return clsZoneFuncDescBirch().Display("", descriptions, function, verify, std::make_shared<SecurityLevels>());
}

std::int32_t DisplayType() {
  Value type;
  return clsZoneTypeBirch().Display(Integer(50), {}, type, {}, std::make_shared<SecurityLevels>());
}

class BirchFaults : public BrokenCatalogueTest {};

TEST_F(BirchFaults, FailureOfTheSearchForATypeIsLoggedAndFindsNone) {
  FailsFor = 1725;
  EXPECT_EQ(DisplayDescription(), failures::NoObject) << "there is no fault object";
  EXPECT_TRUE(Host->Happened.empty());

  Log logged;
  FaultLogOptions options;
  options.Host = Host;
  options.File = std::make_shared<FaultFile>(Folder.Path() / "faults");
  options.OnLogged = [&](const LoggedFault& fault) {
    logged = {fault.Module, fault.Procedure, std::to_string(fault.Number), fault.AdditionalText};
  };
  Services().FaultObject = std::make_shared<BrokenLog>(options);
  Host->Operate = [](shown::Dialog& dialog) { EXPECT_FALSE(dialog.Find("ChkAlarmVerified")->Enabled()); };
  EXPECT_EQ(DisplayDescription(), 1);
  EXPECT_EQ(logged, (Log{"frmZoneFuncDescBirch", "GetFunctionDescKeyFob", "75", ""}));
}

TEST_F(BirchFaults, FailureInDisplayIsReturnedAndAnyOtherReachesTheCaller) {
  Platform bare;
  bare.Host = Host;
  UsePlatform(bare);
  EXPECT_EQ(DisplayDescription(), failures::NoObject) << "there is no catalogue";
  EXPECT_EQ(DisplayType(), failures::NoObject);
  UsePlatform({});
  EXPECT_EQ(FailureOf([] { DisplayDescription(); }), failures::NoObject) << "there is nobody to show the dialog";
  EXPECT_EQ(FailureOf([] { DisplayType(); }), failures::NoObject);
  Value other;
  EXPECT_EQ(clsZoneFunctionsBirch().Display("", other, other, other, other), failures::NoObject) << "is returned";
}

}  // namespace
}  // namespace orlin::testing
