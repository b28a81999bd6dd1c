#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

const std::string kGrand = "Grand", kMid = "Mid", kBase = "Base";

Call Point(const std::string& model, const std::string& code) {
  return {"clsPointCodes_Oak" + model, {"PointNum=17", "PointCode=\"" + code + "\""}};
}

std::string List(int digit) { return "cmbDigit(" + std::to_string(digit) + ")"; }

/// The items that a list shows: each digit with its text, the first one and those from `second` on.
Json Items(const std::string& digits, std::int16_t first, std::int16_t second) {
  Json items = Json::array();
  for (const char digit : digits) items.push_back(digit + (". " + Text(items.empty() ? first : second++)));
  return items;
}

TEST(OakPoint, EachModelHasItsLists) {
  const Json digit2 = Items("0123456789", 1393, 1406);
  const Json digit1 = Items("0123456789ABC", 1393, 1394);
  const Json digit3 = Items("0123456789ABCDEF", 1393, 1415);
  const Json none = Json::array();
  const std::pair<std::string, std::vector<Json>> cases[] = {
      {kGrand, {digit1, digit2, digit3, Items("012345678", 1430, 1431), Items("ABCDEFGHIJKLMNOP", 1439, 1440)}},
      {kMid, {Items("0123456789A", 1393, 1394), digit2, Items("01234567", 1393, 1415), none, none}},
      {kBase, {digit1, digit2, digit3, none, none}}};
  for (const auto& [model, lists] : cases) {
    const auto run = Point(model, "300").Play("dump");
    EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(1386));
    EXPECT_EQ(run.Control("lblPointText").at("caption"), Text(1392, "POINT", "17"));
    for (int digit = 1; digit <= 5; ++digit) {
      const auto& items = lists[static_cast<std::size_t>(digit - 1)];
      const auto label = run.Control("lblDigit(" + std::to_string(digit) + ")");
      EXPECT_EQ(run.Control(List(digit)).at("list"), items) << model << digit;
      EXPECT_EQ(run.Control(List(digit)).at("visible"), items != none) << model << digit;
      EXPECT_EQ((Json{label.at("visible"), label.at("caption")}), (Json{items != none, Text(1392 - digit)}));
    }
  }
}

TEST(OakPoint, CodeOpensDigitByDigit) {
  // A first digit 0 that is picked resets and disables the next two.
  const struct {
    std::string Model, Code, Picks, Shown;
    bool Enabled;
  } cases[] = {
      {kGrand, "10000", "", "1000A", true}, {kGrand, "5987c", "", "5987C", true},  {kGrand, "c9f8P", "", "C9F8P", true},
      {kGrand, "30009", "", "3000J", true}, {kGrand, "0597P", "", "0597P", false}, {kGrand, "", "", "0000A", false},
      {kGrand, "D20A0", "", "20A", true},   {kGrand, "3 x-?", "", "3000A", true},  {kBase, "C9F88", "", "C9F", true},
      {kBase, "3", "", "300", true},        {kBase, "0A5", "", "005", false},      {kMid, "A97", "", "A97", true},
      {kMid, "B29", "", "2", true},         {kMid, "308", "", "30", true},         {kGrand, "354", "0", "0000A", false},
      {kMid, "354", "0", "000", false},     {kBase, "354", "06", "600", true}};
  for (const auto& [model, code, picks, shown, enabled] : cases) {
    std::string script;
    for (const char row : picks) script += std::string("select cmbDigit(1) ") + row + "\n";
    const auto run = Point(model, code).Play(script + "dump\nclick cmdOK");
    EXPECT_EQ(run.Control("lblPointCode").at("caption"), shown) << model << code;
    for (const int digit : {2, 3}) EXPECT_EQ(run.Control(List(digit)).at("enabled"), enabled) << model << code;
    EXPECT_EQ(run.Argument("PointCode"), shown) << model << code;
  }
}

TEST(OakPoint, OkRefusesDigitsThatDoNotGoTogether) {
  const std::string hex = "0123456789ABCDEF";
  const struct {
    std::string Model, First;
    std::size_t Judged;  // the place of the digit that is judged, from 0
    std::string Digits, Accepted;
    std::int16_t Message;
  } cases[] = {{kGrand, "0", 3, "012345678", "078", 1456},   {kGrand, "1", 2, hex, "09D", 1457},
               {kGrand, "3A", 3, "0158", "0158", 0},         {kBase, "1", 2, hex, "09D", 1457},
               {kBase, "2", 2, hex, "012345679ABDEF", 1458}, {kBase, "A", 2, hex, "0123", 1459},
               {kBase, "03456789BC", 2, "4A", "4A", 0},      {kMid, "12", 2, "01234567", "0", 1455},
               {kMid, "03456789A", 2, "17", "17", 0}};
  for (const auto& one : cases) {
    for (std::size_t i = 0; i < one.First.size() * one.Digits.size(); ++i) {
      const char digit = one.Digits[i % one.Digits.size()];
      std::string code = one.Model == kGrand ? "0000B" : "000";
      code[0] = one.First[i / one.Digits.size()];
      code[one.Judged] = digit;
      const bool accepted = one.Accepted.find(digit) != std::string::npos;
      const auto run = Point(one.Model, code).Play((accepted ? "" : "answer 1\n") + std::string("click cmdOK\ndump"));
      EXPECT_EQ(run.Result, accepted ? 0 : 1) << one.Model << code;
      if (accepted) continue;
      ExpectMessage(run, one.Message, 262, 48);
      EXPECT_EQ(run.Focus(), "cmbDigit(3)");
      EXPECT_EQ(run.Control("lblPointCode").at("caption"), code);
    }
  }
}

TEST(OakPoint, OnlyOkWrites) {
  ExpectOnlyOkWrites(Point(kBase, "5a"), "select cmbDigit(1) 3", {"click cmdCancel", "key - Escape", "close"});
}

}  // namespace
}  // namespace orlin::testing
