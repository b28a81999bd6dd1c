#include "outputs_test.h"

namespace orlin::testing {
namespace {

TEST(OctalRelays, OkStoresTwoDigitsOfTheData) {
  const struct {
    std::string Type, Data, Stored;
  } cases[] = {{"0", "", "00"},   {"1", "09", "09"}, {"1", "0A", "09"}, {"1", "0B", "0B"},  {"1", "0d", "0D"},
               {"2", "0D", "0D"}, {"2", "0A", "0A"}, {"3", "18", "18"}, {"3", "00", "00"},  {"3", "FF", "FF"},
               {"4", "F8", "F8"}, {"4", "5", "05"},  {"4", "00", "00"}, {"4", "12C", "12C"}};
  for (const auto& [type, data, stored] : cases) {
    const auto run = Open(Octal("\"" + type + "\"", data, "\"0\""), "click cmdOK");
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(Back(run, {"vType", "vOption", "vData"}), (Values{Integer(std::stoi(type)), Integer(0), stored}));
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
    const auto run = Open(Octal(expected.Type, "0"), "dump");
    EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Relay 3"));
    EXPECT_EQ(run.Control("cmbType")["list"], Texts({513, 1193, 1046, 1194, 1195}));
    EXPECT_EQ(run.Control("cmbOption")["list"], Texts(expected.Options));
    EXPECT_EQ(run.Control("cmbFunction")["list"], Texts(expected.Functions));
    EXPECT_EQ((Json{run.Control("lblOption")["caption"], run.Control("lblFunction")["caption"]}),
              Texts({expected.OptionCaption, expected.FunctionCaption}));
    for (const std::string input : {"cmbFunction", "txtFunction", "udFunction", "chkDisabled", "txtFollowZone"}) {
      EXPECT_EQ(run.Control(input)["visible"], expected.Input.find(input) != std::string::npos) << input;
    }
  }
}

TEST(OctalRelays, RowsStayWithinTheListsOfANewType) {
  const auto run = Open(Octal("4", "5", "9"), "select cmbType 1\ndump\nselect cmbType 4\nselect cmbType 0\ndump");
  EXPECT_EQ(run.Control("cmbOption", 0)["listIndex"], 3);
  EXPECT_EQ(run.Control("lblOption")["caption"], Text(1199));
  EXPECT_EQ(Open(Octal("2", "0D"), "select cmbType 1\nclick cmdOK").Argument("vData"), "0D");
}

TEST(OctalRelays, BoxesTakeStepsAndDigits) {
  const std::string overtype = "caret txtFollowZone 0 3\ntype txtFollowZone ";
  const std::string toggle = "click chkDisabled\n";
  const struct {
    Call Given;
    std::string Script, Function, Zone = "";
    std::size_t Beeps = 0;
  } cases[] = {
      {Octal("3", "18"), "type txtFunction \"7\"\nstep udFunction down 30", "1"},
      {Octal("3", "05"), "key txtFunction Up\nkey txtFunction Right\nkey txtFunction Home", "7"},
      {Octal("3", "05"), toggle + "step udFunction up\nstep udFunction up", "6"},
      {Octal("1", "05"), "select cmbType 3\nkey txtFunction Up", "1"},
      {Octal("3", "05"), "select cmbType 2\nselect cmbFunction 6\nselect cmbType 3", "5"},
      {Octal("3", "05"), toggle + "select cmbType 2\nselect cmbType 3\n" + toggle, "1"},
      // A number too large to remember leaves what cmbFunction left.
      {Octal("3", "10000"), toggle + toggle, "1"},
      {Octal("4", "12C"), "", "", "300"},
      {Octal("4", "00"), overtype + "\"9x\"", "", "9", 1},
      // A bad character brings back what was typed last, and that is cut again.
      {Octal("4", "00"), overtype + "\"300\"\n" + overtype + "\"x\"", "", "248", 1},
      // The stored text has not been through the filter, so it is not what comes back.
      {Octal("4", "05"), "type txtFollowZone \"x\"", "", "", 1},
      {Octal("3", "05"), "select cmbType 4\ntype txtFollowZone \"9x\"", "5", "9x"},
      {Octal("3", "05"), toggle + "select cmbType 4\ntype txtFollowZone \"9x\"", "", "9", 1},
  };
  for (const auto& [given, script, function, zone, beeps] : cases) {
    SCOPED_TRACE(Json(given.Arguments).dump() + "\n" + script);
    const auto run = Open(given, script + "\ndump");
    EXPECT_EQ(run.Control("txtFunction")["text"], function);
    EXPECT_EQ(run.Control("txtFollowZone")["text"], zone);
    EXPECT_EQ(run.Control("chkDisabled")["value"], function.empty() ? 1 : 0);
    EXPECT_EQ(run.Events("beep").size(), beeps);
  }
  EXPECT_EQ(Open(Octal("4", "05"), "key txtFollowZone Delete\nclick cmdOK").Argument("vData"), "00");
  const auto none = Open(Octal("3", "00"), "dump\nclick chkDisabled\ndump");
  EXPECT_EQ(Seen(none, "txtFunction", {"enabled", "text"}, 0), (Json{false, ""}));
  EXPECT_EQ(Seen(none, "txtFunction", {"enabled", "text"}), (Json{true, "1"}));
}

TEST(OctalRelays, NothingHappensAtALimitWhileTheNumberIsEmpty) {
  const std::string again = "click chkDisabled\nselect cmbType 0\nselect cmbType 3\n";
  const struct {
    Call Given;
    std::string Script;
    int Value;
  } cases[] = {{Octal("1", "05"), "select cmbType 3\nkey txtFunction Left\nkey txtFunction Down", 1},
               {Octal("3", "00"), "step udFunction down", 1},
               {Octal("3", "18"), again + "key txtFunction Up\nkey txtFunction Right\nstep udFunction up 2", 24},
               {Octal("3", "FF"), again + "step udFunction up", 24},
               {Octal("3", "05"), again, 5}};
  for (const auto& [given, script, value] : cases) {
    const auto run = Open(given, script + "\ndump\nclick cmdOK");
    EXPECT_EQ(Seen(run, "udFunction", {"value"}), Json{value}) << script;
    EXPECT_EQ(run.Control("txtFunction")["text"], "") << script;
    EXPECT_EQ(run.Argument("vData"), "00") << script;
  }
}

TEST(OctalRelays, OkReadsADecimalZoneAndKeepsWhatItWroteBeforeAFailure) {
  const struct {
    std::string Typed;
    int Result;
    Value Data;
  } cases[] = {{"&HF", 0, "00"}, {"9x", 0, "09"}, {"9E9", 6, 9e9}};
  for (const auto& [typed, result, data] : cases) {
    const auto run = Open(Octal("3", "05"), "select cmbType 4\ntype txtFollowZone \"" + typed + "\"\nclick cmdOK");
    EXPECT_EQ(run.Result, result) << typed;
    EXPECT_EQ(Back(run, {"vType", "vData"}), (Values{Integer(4), data})) << typed;
  }
}

TEST(OctalRelays, RightsFollowTheInputOfANewType) {
  const auto run = Open(Octal("3", "1"), "select cmbType 1\ndump\nselect cmbType 3\ndump",
                        {"AuthorityLevel=1,1", "Function=2,2", "Output Follows=1,1"});
  EXPECT_EQ(Seen(run, "cmbFunction", {"visible", "enabled"}, 0), (Json{true, true}));
  for (const auto* control : {"lblFunction", "txtFunction", "udFunction", "chkDisabled"}) {
    EXPECT_EQ(Seen(run, control, {"visible", "enabled"}), (Json{false, false})) << control;
  }
}

}  // namespace
}  // namespace orlin::testing
