#include "outputs_test.h"

namespace orlin::testing {
namespace {

const std::string kGrand = "Grand", kMid = "Mid", kBase = "Base";

Json Items(int count, std::int16_t text, const std::string& variable, const std::string& names = "") {
  Json items = Json::array();
  for (int i = 0; i < count; ++i) {
    items.push_back(
        Text(text, variable, names.empty() ? std::to_string(i + 1) : names.substr(static_cast<std::size_t>(i), 1)));
  }
  return items;
}

TEST(RelayParamsOak, FunctionsAndCheckItemsFollowTheModel) {
  for (const auto& [model, last, points] : {std::tuple{kGrand, 1516, 24}, {kMid, 1511, 8}, {kBase, 1515, 6}}) {
    auto names = Texts(Then({}, 1494, 1511));
    names.push_back(Text(1216));
    for (int text = 1512; text <= last; ++text) names.push_back(Text(text));
    if (model != kMid) names.push_back(Text(1317));
    for (const int code : {0, 1, 5, 6, 8, 9, 10, 18}) {
      const auto items = code >= 1 && code <= 5   ? Items(points, 400, "POINT")
                         : code >= 6 && code <= 8 ? Items(3, 1517, "KEY", "ABC")
                         : code == 9              ? Items(8, 1518, "USER")
                                                  : Json::array();
      const auto run = Open(Relay(model, "\"" + std::to_string(code) + "\"", "[0*24]"), "dump\nclick cmdOK");
      EXPECT_EQ(Seen(run, "cmbFunction", {"list", "listIndex"}), (Json{names, code})) << model;
      EXPECT_EQ(Seen(run, "lstMSParam", {"list", "enabled"}), (Json{items, !items.empty()})) << model << code;
      EXPECT_EQ(run.Argument("FunctionCode"), Integer(code));
    }
  }
  auto caption = Text(1493, "RELAY", "4");
  caption.replace(caption.find("%FUNCTION%"), 10, "2");
  EXPECT_EQ(Open(Relay(kMid, "0", "[]"), "dump").Events("state")[0]["caption"], caption);
}

TEST(RelayParamsOak, OakBaseLacksTheCode23) {
  for (const auto& [model, code, after] :
       {std::tuple{kBase, "22", 22}, {kBase, "23", 24}, {kBase, "24", 24}, {kGrand, "23", 23}}) {
    const auto run = Open(Relay(model, code, "[0*24]"), "dump\nclick cmdOK");
    EXPECT_EQ(run.Control("cmbFunction")["text"] == Text(1317), after == 24) << model << code;
    EXPECT_EQ(run.Argument("FunctionCode"), Integer(after)) << model << code;
  }
}

TEST(RelayParamsOak, OkStoresTheBitsOfTheItemsAndClearsTheRest) {
  const std::string ones(24, '1'), zeros(24, '0');
  // A change of code keeps the bits by position, also those that are out of sight for a while.
  const struct {
    std::string Model, Code, Given, Script, Stored;
  } cases[] = {
      {kGrand, "6", "[1,0,1,0,1,1*19]", "", "101" + zeros.substr(3)},
      {kGrand, "1", "[1,0,\"1\",0,1*20]", "", "1010" + ones.substr(4)},
      {kGrand, "0", "[1*24]", "", zeros},
      {kGrand, "1", "[1,0*22,2]", "select lstMSParam 0 off\nselect lstMSParam 22 on", zeros.substr(2) + "10"},
      {kGrand, "1", "[1*24]", "select cmbFunction 6\nselect lstMSParam 1 off\nselect cmbFunction 1",
       "10" + ones.substr(2)},
      {kBase, "1", "[1*8]", "", "11111100"},
      {kBase, "9", "[1*10]", "", "1111111100"},
  };
  for (const auto& expected : cases) {
    const auto run = Open(Relay(expected.Model, expected.Code, expected.Given), expected.Script + "\nclick cmdOK");
    Values bits;
    for (const char bit : expected.Stored) bits.push_back(Integer(bit - '0'));
    EXPECT_EQ(run.Argument("ParameterCode"), Array(bits)) << expected.Given << "\n" << expected.Script;
  }
  EXPECT_EQ(Open(Relay(kGrand, "1", "[1*23]"), "click cmdOK").Result, 9) << "too short";
}

TEST(RelayParamsOak, RightsHoldOnEveryCode) {
  const std::string script = "select cmbFunction 0\nselect cmbFunction 6\ndump";
  const auto run = Open(Relay(kMid, "1", "[1*8]"), script, {"AuthorityLevel=1,1", "----Parameter 2=1,2"});
  EXPECT_EQ(Seen(run, "lstMSParam", {"list", "enabled"}), (Json{Items(3, 1517, "KEY", "ABC"), false}));
  EXPECT_EQ(Seen(Open(Relay(kMid, "1", "[1*8]"), script), "lstMSParam", {"enabled"}), Json::array({true}));
}

}  // namespace
}  // namespace orlin::testing
