#include "outputs_test.h"

namespace orlin::testing {
namespace {

struct Relay {
  std::string Type, Data, Option = "0";
};

DialogRun Open(const Relay& relay, const std::string& script) {
  return Play("clsOctalRelaysBirch",
              {"vName=Relay 3", "vType=" + relay.Type, "vOption=" + relay.Option, "vData=\"" + relay.Data + "\""},
              script);
}

TEST(OctalRelays, OkStoresTwoDigitsOfTheData) {
  const std::pair<Relay, std::string> cases[] = {
      {{"0", "0"}, "00"},  {{"0", ""}, "00"},   {{"1", "09"}, "09"}, {{"1", "0A"}, "09"}, {{"1", "0B"}, "0B"},
      {{"1", "0d"}, "0D"}, {{"2", "0D"}, "0D"}, {{"2", "0A"}, "0A"}, {{"3", "18"}, "18"}, {{"3", "00"}, "00"},
      {{"3", "FF"}, "FF"}, {{"4", "F8"}, "F8"}, {{"4", "5"}, "05"},  {{"4", "00"}, "00"}, {{"4", "12C"}, "12C"},
  };
  for (const auto& [given, stored] : cases) {
    const auto run = Open({"\"" + given.Type + "\"", given.Data, "\"0\""}, "click cmdOK");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(Back(run, {"vType", "vOption", "vData"}), (Values{Integer(std::stoi(given.Type)), Integer(0), stored}));
  }
}

TEST(OctalRelays, ListsCaptionsAndInputFollowTheType) {
  const auto arming = Then({513}, 1196, 1198);
  const struct {
    std::string Type, Input;
    std::int16_t OptionCaption, FunctionCaption;
    Numbers Options, Functions;
  } cases[] = {{"0", "cmbFunction", 1190, 1238, {513}, {513}},
               {"1", "cmbFunction", 1190, 1238, arming, Then({}, 1212, 1224)},
               {"2", "cmbFunction", 1190, 1238, arming, Then({513}, 1225, 1237)},
               {"3", "txtFunction udFunction chkDisabled", 1190, 1239, arming, {513}},
               {"4", "txtFollowZone", 1199, 1240, Then({513}, 1200, 1211), {513}}};
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.Type);
    const auto run = Open({expected.Type, "0"}, "dump");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Relay 3"));
    EXPECT_EQ(run.Control("cmbType")["list"], Texts({513, 1193, 1046, 1194, 1195}));
    EXPECT_EQ(run.Control("cmbOption")["list"], Texts(expected.Options));
    EXPECT_EQ(run.Control("cmbFunction")["list"], Texts(expected.Functions));
    EXPECT_EQ(run.Control("lblOption")["caption"], Text(expected.OptionCaption));
    EXPECT_EQ(run.Control("lblFunction")["caption"], Text(expected.FunctionCaption));
    for (const std::string input : {"cmbFunction", "txtFunction", "udFunction", "chkDisabled", "txtFollowZone"}) {
      EXPECT_EQ(run.Control(input)["visible"], expected.Input.find(input) != std::string::npos) << input;
    }
  }
}

TEST(OctalRelays, RowsStayWithinTheListsOfANewType) {
  auto run = Open({"4", "5", "9"}, "select cmbType 1\ndump\nselect cmbType 4\nselect cmbType 0\ndump");
  EXPECT_EQ(run.Control("cmbOption", 0)["listIndex"], 3);
  EXPECT_EQ(run.Control("lblOption")["caption"], Text(1199));
  run = Open({"2", "0D"}, "select cmbType 1\nclick cmdOK");
  EXPECT_EQ(Back(run, {"vType", "vData"}), (Values{Integer(1), "0D"}));
}

TEST(OctalRelays, BoxesTakeStepsAndDigits) {
  const std::string overtype = "caret txtFollowZone 0 3\ntype txtFollowZone ";
  const struct {
    Relay Given;
    std::string Script, Function, Zone = "";
    std::size_t Beeps = 0;
  } cases[] = {
      {{"3", "18"}, "type txtFunction \"7\"", "24"},
      {{"3", "18"}, "step udFunction up", "24"},
      {{"3", "18"}, "step udFunction down 30", "1"},
      {{"3", "05"}, "key txtFunction Up\nkey txtFunction Right\nkey txtFunction Home", "7"},
      {{"3", "05"}, "key txtFunction Down\nkey txtFunction Left", "3"},
      // The check box, an empty text behind it.
      {{"3", "05"}, "click chkDisabled", ""},
      {{"3", "05"}, "click chkDisabled\nclick chkDisabled", "5"},
      {{"3", "05"}, "click chkDisabled\nstep udFunction up\nstep udFunction up", "6"},
      {{"3", "00"}, "", ""},
      {{"3", "00"}, "click chkDisabled", "1"},
      {{"3", "00"}, "step udFunction down", "1"},
      {{"1", "05"}, "select cmbType 3", ""},
      {{"1", "05"}, "select cmbType 3\nkey txtFunction Up", "1"},
      {{"3", "05"}, "select cmbType 2\nselect cmbFunction 6\nselect cmbType 3", "5"},
      // The list of another type has been at the memory.
      {{"3", "05"}, "click chkDisabled\nselect cmbType 2\nselect cmbType 3\nclick chkDisabled", "1"},
      // A number too large to remember leaves what cmbFunction left.
      {{"3", "10000"}, "click chkDisabled\nclick chkDisabled", "1"},
      {{"4", "12C"}, "", "", "300"},
      {{"4", "00"}, overtype + "\"9x\"", "", "9", 1},
      {{"4", "00"}, overtype + "\"300\"", "", "248"},
      // A bad character brings back what was typed last, and that is cut again.
      {{"4", "00"}, overtype + "\"300\"\n" + overtype + "\"x\"", "", "248", 1},
      // The stored text has not been through the filter, so it is not what comes back.
      {{"4", "05"}, "type txtFollowZone \"x\"", "", "", 1},
      // The filter sleeps until the check box has been used.
      {{"3", "05"}, "select cmbType 4\ntype txtFollowZone \"9x\"", "5", "9x"},
      {{"3", "05"}, "click chkDisabled\nselect cmbType 4\ntype txtFollowZone \"9x\"", "", "9", 1},
  };
  for (const auto& [given, script, function, zone, beeps] : cases) {
    SCOPED_TRACE(given.Data + "\n" + script);
    const auto run = Open(given, script + "\ndump");
    EXPECT_EQ(run.Control("txtFunction")["text"], function);
    EXPECT_EQ(run.Control("txtFollowZone")["text"], zone);
    EXPECT_EQ(run.Control("chkDisabled")["value"], function.empty() ? 1 : 0);
    EXPECT_EQ(run.Events("beep").size(), beeps);
  }
  EXPECT_EQ(Open({"3", "05"}, "click chkDisabled\nclick cmdOK").Argument("vData"), "00");
  EXPECT_EQ(Open({"4", "05"}, "key txtFollowZone Delete\nclick cmdOK").Argument("vData"), "00");
  EXPECT_EQ(Open({"3", "00"}, "dump").Control("txtFunction")["enabled"], false);
}

TEST(OctalRelays, RightsFollowTheInputOfANewType) {
  const Strings levels{"AuthorityLevel=1,1", "Function=2,2", "Output Follows=1,1"};
  const auto run = Play("clsOctalRelaysBirch", {"vType=3", "vData=1"},
                        "dump\nselect cmbType 1\ndump\nselect cmbType 3\ndump", {.Levels = levels});
  for (const std::size_t dump : {0U, 2U}) {
    for (const auto* control : {"lblFunction", "txtFunction", "udFunction", "chkDisabled"}) {
      EXPECT_EQ(Seen(run, control, {"visible", "enabled"}, dump), (Json{false, false})) << control;
    }
  }
  EXPECT_EQ(Seen(run, "lblFunction", {"visible", "enabled"}, 1), (Json{true, true}));
  EXPECT_EQ(Seen(run, "cmbFunction", {"visible", "enabled"}, 1), (Json{true, true}));
  // Without rights every input can be reached.
  const auto free = Open({"0", "0"}, "select cmbType 3\ndump");
  EXPECT_EQ(Seen(free, "txtFunction", {"visible", "enabled"}), (Json{true, true}));
}

}  // namespace
}  // namespace orlin::testing
