#include <gtest/gtest.h>

#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

std::string Assign(const char* name, int number) { return std::string(name) + "=" + std::to_string(number); }

/// Device type, mapped output and option, as they come back.
struct Device {
  int Type;
  int Mapped;
  int Option;
  bool operator==(const Device&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Device& device) {
  return out << device.Type << ' ' << device.Mapped << ' ' << device.Option;
}

Device After(const DialogRun& run) {
  const auto number = [&](const char* name) { return *run.Argument(name).Get<std::int16_t>(); };
  return {number("vDeviceType"), number("vMappedOutput"), number("vOption")};
}

DialogRun PlayInput(const Device& device, const char* free, const std::string& script) {
  return Play("clsWSNDeviceTypeInput",
              {Assign("vDeviceType", device.Type), Assign("vMappedOutput", device.Mapped),
               Assign("vOption", device.Option), std::string("vfreeOutputs=") + free},
              script);
}

DialogRun PlayOutput(const Device& device, const std::string& free, const std::string& script) {
  return Play("clsWSNDeviceTypeOutput",
              {Assign("vDeviceType", device.Type), Assign("vMappedOutput", device.Mapped),
               Assign("vOption", device.Option), "vFreeInputs=" + free},
              script);
}

constexpr const char* kAllFree = "[true*4]";
constexpr const char* kNoneFree = "[false*4]";

TEST(WSNDeviceTypeInput, NumbersOfDeviceTypesHaveGaps) {
  const struct {
    int Type;
    int Position;
    int After;
  } cases[] = {{0, 0, 0},   {4, 4, 4},  {5, 3, 3},    {6, 4, 4},    {7, 5, 7},   {9, 7, 9},
               {11, 9, 11}, {12, 0, 0}, {13, 10, 13}, {20, 17, 20}, {30, 27, 30}};
  for (const auto& one : cases) {
    const auto run = PlayInput({one.Type, 0, 0}, kAllFree, "dump\nclick btnOK");
    EXPECT_EQ(run.Control("cmbDeviceType").at("listIndex"), one.Position) << one.Type;
    EXPECT_EQ(After(run), (Device{one.After, 0, 0})) << one.Type;
  }
  for (const int none : {31, -1}) {
    EXPECT_EQ(PlayInput({none, 0, 0}, kAllFree, "").Result, failures::InvalidPropertyValue) << none;
  }
}

TEST(WSNDeviceTypeInput, RelayControlsFollowTheDeviceAndTheOptions) {
  const struct {
    const char* Name;
    Device Before;
    const char* Free;
    const char* Script;
    Device AfterOK;
    bool MappedShown;
    int MappedRow;
  } cases[] = {
      {"a relay that maps", {8, 2, 2}, kAllFree, "", {8, 2, 2}, true, 2},
      {"free outputs only", {8, 3, 2}, "[false,true,false,true]", "", {8, 3, 2}, true, 1},
      {"a mapped output that is not free", {8, 2, 2}, "[true,true,false,true]", "", {8, 0, 2}, true, 0},
      {"input only", {8, 0, 1}, kAllFree, "", {8, 0, 1}, false, 0},
      {"a relay without an option", {8, 1, 0}, kAllFree, "", {8, 1, 0}, false, 1},
      {"then with one", {8, 1, 0}, kAllFree, "click optInputOutput\n", {8, 1, 2}, true, 1},
      {"another output", {8, 1, 2}, kAllFree, "select cmbMappedOutput 3\n", {8, 3, 2}, true, 3},
      {"back to input only", {8, 1, 2}, kAllFree, "click optInput\n", {8, 1, 1}, false, 1},
      {"another device", {8, 1, 2}, kAllFree, "select cmbDeviceType 1\n", {1, 0, 0}, true, 1},
      {"and the relay again",
       {8, 1, 2},
       kAllFree,
       "select cmbDeviceType 1\nselect cmbDeviceType 6\n",
       {8, 1, 2},
       true,
       1},
      {"a device that brings an option along", {1, 0, 1}, kAllFree, "", {1, 0, 1}, false, 0},
      {"until the device changes", {1, 0, 1}, kAllFree, "select cmbDeviceType 2\n", {2, 0, 0}, false, 0},
      {"a relay chosen afresh", {0, 0, 0}, kAllFree, "select cmbDeviceType 6\n", {8, 0, 1}, false, 0},
  };
  for (const auto& one : cases) {
    const auto run = PlayInput(one.Before, one.Free, std::string(one.Script) + "dump\nclick btnOK");
    EXPECT_EQ(run.Result, 0) << one.Name;
    EXPECT_EQ(After(run), one.AfterOK) << one.Name;
    EXPECT_EQ(run.Control("grpMappedOutput").at("visible"), one.MappedShown) << one.Name;
    if (one.MappedShown) {
      EXPECT_EQ(run.Control("cmbMappedOutput").at("listIndex"), one.MappedRow) << one.Name;
    }
    for (const char* relay : {"grpRelayType", "optInput", "optInputOutput", "cmbMappedOutput"}) {
      EXPECT_EQ(run.Control(relay).at("enabled"), one.AfterOK.Type == 8) << one.Name << relay;
    }
  }
}

TEST(WSNDeviceTypeInput, WithNothingFreeARelayIsInputOnly) {
  const auto run = PlayInput({8, 0, 0}, kNoneFree, "dump\nclick optInput\nclick btnOK");
  EXPECT_EQ(run.Control("optInputOutput").at("enabled"), false);
  EXPECT_EQ(run.Control("lblInputOutput").at("enabled"), false);
  EXPECT_EQ(run.Control("optInput").at("enabled"), true);
  EXPECT_EQ(After(run), (Device{8, 0, 1}));
}

TEST(WSNDeviceTypeInput, NeedsItsArrayAndItsRights) {
  EXPECT_EQ(PlayInput({0, 0, 0}, "[true]", "").Result, failures::SubscriptOutOfRange);
  EXPECT_EQ(PlayInput({0, 0, 0}, "5", "").Result, failures::TypeMismatch);
  EXPECT_EQ(Play("clsWSNDeviceTypeInput", {"vfreeOutputs=[true*4]", "SecurityLevels=5"}, "").Result,
            failures::ObjectRequired);
  EXPECT_EQ(PlayInput({8, 1, 2}, kAllFree, "select cmbDeviceType 0\nclick btnCancel").Argument("vDeviceType"),
            Integer(8));
}

TEST(WSNDeviceTypeOutput, DiffersInItsTypesAndItsMapping) {
  const std::string all = "[true*32]";
  const std::string none = "[false*32]";
  const struct {
    Device Before;
    std::string Free;
    int Position;
    Device AfterOK;
  } cases[] = {
      {{0, 0, 0}, none, 0, {0, 0, 0}},
      {{3, 0, 0}, none, 0, {0, 0, 0}},
      {{15, 0, 0}, none, 3, {15, 0, 0}},
      {{18, 0, 0}, none, 4, {18, 0, 0}},
      {{19, 0, 0}, none, 0, {0, 0, 0}},
      {{20, 0, 0}, none, 5, {20, 0, 0}},
      {{30, 0, 0}, none, 15, {30, 0, 0}},
      {{5, 9, 2}, all, 1, {5, 35, 1}},
      {{5, 0, 0}, none, 1, {5, 35, 1}},
      {{8, 7, 2}, all, 2, {8, 7, 2}},
      {{8, 7, 3}, all, 2, {8, 7, 0}},
      {{8, 7, 0}, all, 2, {8, 7, 0}},
      {{8, 0, 2}, "[false*4,true,false*27]", 2, {8, 4, 2}},
      {{8, 33, 2}, "[false*4,true,false*27]", 2, {8, 4, 2}},
  };
  for (const auto& one : cases) {
    const auto run = PlayOutput(one.Before, one.Free, "dump\nclick btnOK");
    EXPECT_EQ(run.Result, 0) << one.Before;
    EXPECT_EQ(run.Control("cmbDeviceType").at("listIndex"), one.Position) << one.Before;
    EXPECT_EQ(After(run), one.AfterOK) << one.Before;
  }
  const auto run = PlayOutput({8, 7, 2}, all, "dump");
  EXPECT_EQ(run.Control("lblInput").at("caption"), Text(10674));
  EXPECT_EQ(run.Control("lblMappedPoint").at("caption"), Text(10635));
  EXPECT_EQ(run.Control("cmbMappedPoint").at("list").at(31), Text(10629));
  EXPECT_EQ(run.Control("grpMappedPoint").at("visible"), true);
}

TEST(WSNSensorSensitivity, KindsHaveTheirListsAndRawValues) {
  const struct {
    int Kind;
    int Raw;
    const char* Script;
    int Result;
    int After;
  } cases[] = {
      {1, 0, "", 0, 0},
      {1, 4, "", 0, 4},
      {2, 0, "select cmbMotionSensor 1\n", 0, 4},
      {10, 3, "", 0, 3},
      {10, 8, "", 0, 8},
      {10, 15, "", 0, 15},
      {10, 4, "", 0, 8},
      {10, 0, "select cmbInertiaSensor 4\n", 0, 8},
      {5, 3, "", 0, 3},
      {1, 8, "", 0, 8},
      {1, 2, "", 380, 2},
      {1, 3, "", 380, 3},
      {10, 16, "", 380, 16},
      {10, -1, "", 380, -1},
  };
  for (const auto& one : cases) {
    const auto run = Play("clsWSNSensorSensitivity", {Assign("vOption", one.Kind), Assign("res", one.Raw)},
                          std::string(one.Result == 0 ? "dump\n" : "") + one.Script + "click cmdOK");
    EXPECT_EQ(run.Result, one.Result) << one.Kind << " " << one.Raw;
    EXPECT_EQ(run.Argument("res"), Integer(one.After)) << one.Kind << " " << one.Raw;
    if (one.Result != 0) continue;
    const bool motion = one.Kind == 1 || one.Kind == 2;
    EXPECT_EQ(run.Control("fraMotionSensor").at("visible"), motion);
    EXPECT_EQ(run.Control("fraMotionSensor").at("enabled"), motion);
    EXPECT_EQ(run.Control("fraInertiaSensor").at("visible"), one.Kind == 10);
    EXPECT_EQ(run.Control("fraInertiaSensor").at("enabled"), one.Kind == 10);
  }
}

TEST(WSNSensorSensitivity, FailsWhereTheServicesFail) {
  PlayOptions options;
  options.Settings = "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Setup]\n";
  EXPECT_EQ(Play("clsWSNSensorSensitivity", {"vOption=1"}, "", options).Result, failures::TypeMismatch);
}

TEST(WirelessPointID, AcceptsWholeNumbersOf48Bits) {
  const struct {
    const char* Text;
    bool Accepted;
  } cases[] = {{"0", true},
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
  for (const auto& one : cases) {
    const auto run = Play("clsWirelessPointID", {"vType=\"" + std::string(one.Text) + "\""},
                          one.Accepted ? "click cmdOK" : "answer 1\nclick cmdOK\ndump");
    EXPECT_EQ(run.Result, one.Accepted ? 0 : 1) << one.Text;
    EXPECT_EQ(run.Argument("vType"), Value(one.Text));
    if (one.Accepted) continue;
    EXPECT_EQ(run.Fields("message", "text"), std::vector<Json>{Text(1151)}) << one.Text;
    EXPECT_EQ(run.Fields("message", "title"), std::vector<Json>{Text(262)});
    EXPECT_EQ(run.Focus(), "txtValue");
  }
  const auto typed = Play("clsWirelessPointID", {"vType=\"\""}, "type txtValue \"1234567890123456\"\nclick cmdOK");
  EXPECT_EQ(typed.Argument("vType"), Value("123456789012345"));
}

TEST(WirelessPointID, TitleAndRangesAreShown) {
  const struct {
    int Option1;
    int Option2;
    int Title;
  } cases[] = {{8, 18, 10675}, {8, 17, 10676}, {4, 18, 10673}, {9, 0, 10677}, {0, 0, 10676}};
  for (const auto& one : cases) {
    const auto run =
        Play("clsWirelessPointID", {Assign("iOption1", one.Option1), Assign("iOption2", one.Option2)}, "dump");
    EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(one.Title)) << one.Option1;
    EXPECT_EQ(run.Control("txtRanges").at("text"), Text(1172) + "\t\t" + Text(1173) + "\r\n0\t\t281474976710655\r\n");
  }
}

TEST(WirelessPointID, EitherLevelHidesAPart) {
  for (const char* levels : {"=2,1", "=1,2"}) {
    PlayOptions options;
    options.Levels = {"AuthorityLevel=1,1", std::string("Data Value") + levels};
    const auto value = Play("clsWirelessPointID", {"vType=\"12\""}, "dump\nclick cmdOK", options);
    EXPECT_EQ(value.Control("Frame1").at("visible"), false);
    EXPECT_EQ(value.Control("txtRanges").at("visible"), true);
    EXPECT_EQ(value.Argument("vType"), Value("12"));
    options.Levels.back() = std::string("Ranges") + levels;
    const auto ranges = Play("clsWirelessPointID", {"vType=\"12\""}, "dump\nclick cmdOK", options);
    EXPECT_EQ(ranges.Control("Label2").at("visible"), false);
    EXPECT_EQ(ranges.Control("txtRanges").at("visible"), false);
    EXPECT_EQ(ranges.Control("txtRanges").at("enabled"), true);
    EXPECT_EQ(ranges.Control("Frame1").at("visible"), true);
  }
}

}  // namespace
}  // namespace orlin::testing
