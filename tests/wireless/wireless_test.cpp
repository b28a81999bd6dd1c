#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

std::string Assign(const char* name, int number) { return std::string(name) + "=" + std::to_string(number); }

/// Device type, mapped output and option.
using Device = std::vector<int>;

Device After(const DialogRun& run) {
  const auto number = [&](const char* name) { return *run.Argument(name).Get<std::int16_t>(); };
  return {number("vDeviceType"), number("vMappedOutput"), number("vOption")};
}

DialogRun PlayDevice(const char* publicClass, const Device& device, const std::string& free,
                     const std::string& script) {
  return Play(
      publicClass,
      {Assign("vDeviceType", device[0]), Assign("vMappedOutput", device[1]), Assign("vOption", device[2]), free},
      script);
}

DialogRun PlayInput(const Device& device, const std::string& free, const std::string& script) {
  return PlayDevice("clsWSNDeviceTypeInput", device, "vfreeOutputs=" + free, script);
}

constexpr const char* kAllFree = "[true*4]";

TEST(WSNDeviceTypeInput, NumbersOfDeviceTypesHaveGaps) {
  const struct {
    int Type, Position, After;
  } cases[] = {{0, 0, 0},   {4, 4, 4},  {5, 3, 3},    {6, 4, 4},    {7, 5, 7},   {9, 7, 9},
               {11, 9, 11}, {12, 0, 0}, {13, 10, 13}, {20, 17, 20}, {30, 27, 30}};
  for (const auto& [type, position, after] : cases) {
    const auto run = PlayInput({type, 0, 0}, kAllFree, "dump\nclick btnOK");
    EXPECT_EQ(run.Control("cmbDeviceType").at("listIndex"), position) << type;
    EXPECT_EQ(After(run), (Device{after, 0, 0})) << type;
  }
  for (const int none : {31, -1}) {
    EXPECT_EQ(PlayInput({none, 0, 0}, kAllFree, "").Result, failures::InvalidPropertyValue) << none;
  }
}

TEST(WSNDeviceTypeInput, RelayControlsFollowTheDeviceAndTheOptions) {
  const std::string toRelay = "select cmbDeviceType 6\n", toFirst = "select cmbDeviceType 1\n";
  const struct {
    Device Before;
    std::string Free, Script;
    Device AfterOK;
    int MappedRow;
    bool MappedShown = true;
  } cases[] = {{{8, 2, 2}, kAllFree, "", {8, 2, 2}, 2},
               {{8, 3, 2}, "[false,true,false,true]", "", {8, 3, 2}, 1},
               {{8, 2, 2}, "[true,true,false,true]", "", {8, 0, 2}, 0},
               {{8, 0, 1}, kAllFree, "", {8, 0, 1}, 0, false},
               {{8, 1, 0}, kAllFree, "", {8, 1, 0}, 1, false},
               {{8, 1, 0}, kAllFree, "click optInputOutput\n", {8, 1, 2}, 1},
               {{8, 1, 2}, kAllFree, "select cmbMappedOutput 3\n", {8, 3, 2}, 3},
               {{8, 1, 2}, kAllFree, "click optInput\n", {8, 1, 1}, 1, false},
               {{8, 1, 2}, kAllFree, toFirst, {1, 0, 0}, 1},
               {{8, 1, 2}, kAllFree, toFirst + toRelay, {8, 1, 2}, 1},
               // A device keeps an option that came along, until it changes.
               {{1, 0, 1}, kAllFree, "", {1, 0, 1}, 0, false},
               {{1, 0, 1}, kAllFree, "select cmbDeviceType 2\n", {2, 0, 0}, 0, false},
               {{0, 0, 0}, kAllFree, toRelay, {8, 0, 1}, 0, false}};
  for (const auto& [before, free, script, after, row, shown] : cases) {
    SCOPED_TRACE(Json(before).dump() + free + script);
    const auto run = PlayInput(before, free, script + "dump\nclick btnOK");
    EXPECT_EQ(After(run), after);
    EXPECT_EQ(run.Control("grpMappedOutput").at("visible"), shown);
    EXPECT_EQ(run.Control("cmbMappedOutput").at("listIndex"), row);
    for (const char* relay : {"grpRelayType", "optInput", "optInputOutput", "cmbMappedOutput"}) {
      EXPECT_EQ(run.Control(relay).at("enabled"), after[0] == 8) << relay;
    }
  }
}

TEST(WSNDeviceTypeInput, WithNothingFreeARelayIsInputOnly) {
  const auto run = PlayInput({8, 0, 0}, "[false*4]", "dump\nclick optInput\nclick btnOK");
  EXPECT_EQ(run.Control("optInputOutput").at("enabled"), false);
  EXPECT_EQ(run.Control("lblInputOutput").at("enabled"), false);
  EXPECT_EQ(After(run), (Device{8, 0, 1}));
}

TEST(WSNDeviceTypeInput, NeedsItsArrayAndWritesOnOkOnly) {
  EXPECT_EQ(PlayInput({0, 0, 0}, "[true]", "").Result, failures::SubscriptOutOfRange);
  EXPECT_EQ(PlayInput({0, 0, 0}, "5", "").Result, failures::TypeMismatch);
  EXPECT_EQ(After(PlayInput({8, 1, 2}, kAllFree, "select cmbDeviceType 0\nclick btnCancel")), (Device{8, 1, 2}));
}

TEST(WSNDeviceTypeOutput, DiffersInItsTypesAndItsMapping) {
  const std::string all = "[true*32]", none = "[false*32]", fifth = "[false*4,true,false*27]";
  const struct {
    Device Before;
    std::string Free;
    int Position;
    Device AfterOK;
  } cases[] = {{{0, 0, 0}, none, 0, {0, 0, 0}},    {{3, 0, 0}, none, 0, {0, 0, 0}},  {{15, 0, 0}, none, 3, {15, 0, 0}},
               {{18, 0, 0}, none, 4, {18, 0, 0}},  {{19, 0, 0}, none, 0, {0, 0, 0}}, {{20, 0, 0}, none, 5, {20, 0, 0}},
               {{30, 0, 0}, none, 15, {30, 0, 0}}, {{5, 9, 2}, all, 1, {5, 35, 1}},  {{5, 0, 0}, none, 1, {5, 35, 1}},
               {{8, 7, 2}, all, 2, {8, 7, 2}},     {{8, 7, 3}, all, 2, {8, 7, 0}},   {{8, 7, 0}, all, 2, {8, 7, 0}},
               {{8, 0, 2}, fifth, 2, {8, 4, 2}},   {{8, 33, 2}, fifth, 2, {8, 4, 2}}};
  for (const auto& [before, free, position, after] : cases) {
    const auto run = PlayDevice("clsWSNDeviceTypeOutput", before, "vFreeInputs=" + free, "dump\nclick btnOK");
    EXPECT_EQ(run.Control("cmbDeviceType").at("listIndex"), position) << Json(before);
    EXPECT_EQ(After(run), after) << Json(before);
    EXPECT_EQ(run.Control("lblInput").at("caption"), Text(10674));
    EXPECT_EQ(run.Control("lblMappedPoint").at("caption"), Text(10635));
    if (free != all) continue;
    EXPECT_EQ(run.Control("cmbMappedPoint").at("list").at(31), Text(10629));
    EXPECT_EQ(run.Control("grpMappedPoint").at("visible"), after[2] != 0) << Json(before);
  }
}

TEST(WSNSensorSensitivity, KindsHaveTheirListsAndRawValues) {
  const std::string second = "select cmbMotionSensor 1\n", fifth = "select cmbInertiaSensor 4\n";
  const struct {
    int Kind, Raw;
    std::string Script;
    int Result, After;
  } cases[] = {{1, 0, "", 0, 0},    {1, 4, "", 0, 4},   {2, 0, second, 0, 4},  {10, 3, "", 0, 3},    {10, 8, "", 0, 8},
               {10, 15, "", 0, 15}, {10, 4, "", 0, 8},  {10, 0, fifth, 0, 8},  {5, 3, "", 0, 3},     {1, 8, "", 0, 8},
               {1, 2, "", 380, 2},  {1, 3, "", 380, 3}, {10, 16, "", 380, 16}, {10, -1, "", 380, -1}};
  for (const auto& [kind, raw, script, result, after] : cases) {
    SCOPED_TRACE(std::to_string(kind) + " " + std::to_string(raw));
    const auto run = Play("clsWSNSensorSensitivity", {Assign("vOption", kind), Assign("res", raw)},
                          (result == 0 ? "dump\n" : "") + script + "click cmdOK");
    EXPECT_EQ(run.Result, result);
    EXPECT_EQ(run.Argument("res"), Integer(after));
    if (result != 0) continue;
    for (const char* field : {"visible", "enabled"}) {
      EXPECT_EQ(run.Control("fraMotionSensor").at(field), kind == 1 || kind == 2);
      EXPECT_EQ(run.Control("fraInertiaSensor").at(field), kind == 10);
    }
  }
}

TEST(WSNSensorSensitivity, FailsWhereTheServicesFail) {
  const PlayOptions options{.Settings = "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Setup]\n"};
  EXPECT_EQ(Play("clsWSNSensorSensitivity", {"vOption=1"}, "", options).Result, failures::TypeMismatch);
}

TEST(WirelessPointID, AcceptsWholeNumbersOf48Bits) {
  const std::pair<std::string, bool> cases[] = {{"0", true},
                                                {"281474976710655", true},
                                                {"281474976710656", false},
                                                {"", false},
                                                {"-1", false},
                                                {"1.5", false},
                                                {"1,5", false},
                                                {"1 5", false},
                                                {" 15", false},
                                                {"2e14", false},
                                                {"2E14", true},
                                                {"3E14", false},
                                                {"&H10", false},
                                                {"x", false}};
  for (const auto& [text, accepted] : cases) {
    const auto run = Play("clsWirelessPointID", {"vType=\"" + text + "\""},
                          accepted ? "click cmdOK" : "answer 1\nclick cmdOK\ndump");
    EXPECT_EQ(run.Result, accepted ? 0 : 1) << text;
    EXPECT_EQ(run.Argument("vType"), text);
    if (accepted) continue;
    EXPECT_EQ(run.Fields("message", "text"), std::vector<Json>{Text(1151)}) << text;
    EXPECT_EQ(run.Fields("message", "title"), std::vector<Json>{Text(262)});
    EXPECT_EQ(run.Focus(), "txtValue");
  }
  const auto typed = Play("clsWirelessPointID", {"vType=\"\""}, "type txtValue \"1234567890123456\"\nclick cmdOK");
  EXPECT_EQ(typed.Argument("vType"), Value("123456789012345"));
}

TEST(WirelessPointID, TitleAndRangesAreShown) {
  const struct {
    int Option1, Option2, Title;
  } cases[] = {{8, 18, 10675}, {8, 17, 10676}, {4, 18, 10673}, {9, 0, 10677}, {0, 0, 10676}};
  for (const auto& [option1, option2, title] : cases) {
    const auto run = Play("clsWirelessPointID", {Assign("iOption1", option1), Assign("iOption2", option2)},
                          "key txtRanges PageDown\ndump");
    EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(title)) << option1;
    EXPECT_EQ(run.Control("txtRanges").at("selStart"), 0);
    EXPECT_EQ(run.Control("txtRanges").at("text"), Text(1172) + "\t\t" + Text(1173) + "\r\n0\t\t281474976710655\r\n");
  }
}

TEST(WirelessPointID, EitherLevelHidesAPart) {
  for (const std::string record : {"Data Value=2,1", "Data Value=1,2", "Ranges=2,1", "Ranges=1,2"}) {
    const auto run =
        Play("clsWirelessPointID", {"vType=\"12\""}, "dump\nclick cmdOK", {.Levels = {"AuthorityLevel=1,1", record}});
    const bool ranges = record[0] == 'R';
    EXPECT_EQ(run.Control("Frame1").at("visible"), ranges) << record;
    EXPECT_EQ(run.Control("Label2").at("visible"), !ranges) << record;
    EXPECT_EQ(run.Control("txtRanges").at("visible"), !ranges) << record;
    EXPECT_EQ(run.Control("txtRanges").at("enabled"), true) << record;
    EXPECT_EQ(run.Argument("vType"), "12");
  }
}

}  // namespace
}  // namespace orlin::testing
