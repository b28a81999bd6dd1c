#include "outputs_test.h"

namespace orlin::testing {
namespace {

const std::string kGrand = "OakGrand", kMid = "OakMid", kBase = "OakBase";

DialogRun Open(const std::string& model, const std::string& code, const std::string& bits, const std::string& script,
               const Strings& levels = {}) {
  return Play("clsRelayParam_" + model, {"RelayNo=4", "FunctionNo=2", "FunctionCode=" + code, "ParameterCode=" + bits},
              script, {.Levels = levels});
}

/// Elements of 1 and 0 as they come back.
Value Bits(const std::string& bits) {
  Values elements;
  for (const char bit : bits) elements.push_back(Integer(bit - '0'));
  return Array(elements);
}

Json Items(std::size_t count, std::int16_t text, const std::string& variable, const std::string& names = "") {
  Json items = Json::array();
  for (std::size_t i = 0; i < count; ++i) {
    items.push_back(Text(text, variable, names.empty() ? std::to_string(i + 1) : names.substr(i, 1)));
  }
  return items;
}

TEST(RelayParamsOak, FunctionsAndCheckItemsFollowTheModel) {
  auto common = Then({}, 1494, 1511);
  common.push_back(1216);
  const struct {
    std::string Model;
    Numbers Functions;
    std::size_t Points;
  } models[] = {{kGrand, Then(common, 1512, 1516), 24}, {kMid, common, 8}, {kBase, Then(common, 1512, 1515), 6}};
  for (const auto& [model, functions, points] : models) {
    auto names = Texts(functions);
    if (model != kMid) names.push_back(Text(1317));
    for (int code = 0; code <= 18; ++code) {
      SCOPED_TRACE(model + " " + std::to_string(code));
      const auto items = code >= 1 && code <= 5   ? Items(points, 400, "POINT")
                         : code >= 6 && code <= 8 ? Items(3, 1517, "KEY", "ABC")
                         : code == 9              ? Items(8, 1518, "USER")
                                                  : Json::array();
      const auto run = Open(model, "\"" + std::to_string(code) + "\"", "[0*24]", "dump\nclick cmdOK");
      EXPECT_EQ(Seen(run, "cmbFunction", {"list", "listIndex"}), (Json{names, code}));
      EXPECT_EQ(Seen(run, "lstMSParam", {"list", "enabled"}), (Json{items, !items.empty()}));
      EXPECT_EQ(run.Argument("FunctionCode"), Integer(code));
    }
  }
  auto caption = Text(1493, "RELAY", "4");
  caption.replace(caption.find("%FUNCTION%"), 10, "2");
  EXPECT_EQ(Open(kMid, "0", "[]", "dump").Events("state")[0]["caption"], caption);
}

TEST(RelayParamsOak, OakBaseLacksTheCode23) {
  for (const auto* code : {"23", "24"}) {
    const auto run = Open(kBase, code, "[0*8]", "dump\nclick cmdOK");
    EXPECT_EQ(run.Control("cmbFunction")["text"], Text(1317));
    EXPECT_EQ(run.Argument("FunctionCode"), Integer(24));
  }
  EXPECT_EQ(Open(kBase, "22", "[0*8]", "click cmdOK").Argument("FunctionCode"), Integer(22));
  EXPECT_EQ(Open(kGrand, "23", "[0*24]", "click cmdOK").Argument("FunctionCode"), Integer(23));
}

TEST(RelayParamsOak, OkStoresTheBitsOfTheItemsAndClearsTheRest) {
  const std::string ones(24, '1'), zeros(24, '0');
  const struct {
    std::string Model, Code, Given, Script, Stored;
  } cases[] = {
      {kGrand, "6", "[1,0,1,0,1,1*19]", "", "101" + zeros.substr(3)},
      {kGrand, "1", "[1,0,\"1\",0,1*20]", "", "1010" + ones.substr(4)},
      {kGrand, "0", "[1*24]", "", zeros},
      {kGrand, "1", "[1,0*22,2]", "select lstMSParam 0 off\nselect lstMSParam 22 on", zeros.substr(2) + "10"},
      // A change of code keeps the bits by position, also those that are out of sight for a while.
      {kGrand, "1", "[1*24]", "select cmbFunction 6\nselect lstMSParam 1 off\nselect cmbFunction 1",
       "10" + ones.substr(2)},
      {kGrand, "1", "[1*24]", "select cmbFunction 6", "111" + zeros.substr(3)},
      {kBase, "1", "[1*8]", "", "11111100"},
      {kBase, "9", "[1*10]", "", "1111111100"},
  };
  for (const auto& expected : cases) {
    const auto run = Open(expected.Model, expected.Code, expected.Given, expected.Script + "\nclick cmdOK");
    EXPECT_EQ(run.Argument("ParameterCode"), Bits(expected.Stored)) << expected.Given << "\n" << expected.Script;
  }
  const auto cancelled = Open(kGrand, "1", "[1,0*23]", "select lstMSParam 0 off\nclick cmdCancel");
  EXPECT_EQ(cancelled.Argument("ParameterCode"), Bits("1" + zeros.substr(1)));
  // An array that is too short fails when the missing element is due.
  EXPECT_EQ(Open(kGrand, "1", "[1*23]", "click cmdOK").Result, 9);
}

TEST(RelayParamsOak, RightsHoldOnEveryCode) {
  const auto run =
      Open(kMid, "1", "[1*8]", "select cmbFunction 6\ndump", {"AuthorityLevel=1,1", "----Parameter 2=1,2"});
  EXPECT_EQ(Seen(run, "lstMSParam", {"list", "enabled"}), (Json{Items(3, 1517, "KEY", "ABC"), false}));
  // Without a record of its own the list is usable, also behind a code without items.
  const auto free =
      Open(kMid, "1", "[1*8]", "select cmbFunction 0\nselect cmbFunction 6\ndump", {"AuthorityLevel=1,1"});
  EXPECT_EQ(free.Control("lstMSParam")["enabled"], true);
}

}  // namespace
}  // namespace orlin::testing
