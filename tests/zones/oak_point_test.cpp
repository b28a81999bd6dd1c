#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

const std::string kGrand = "clsPointCodes_OakGrand";
const std::string kMid = "clsPointCodes_OakMid";
const std::string kBase = "clsPointCodes_OakBase";

Call Point(const std::string& model, const std::string& code) {
  return {model, {"PointNum=17", "PointCode=\"" + code + "\""}};
}

std::string List(int digit) { return "cmbDigit(" + std::to_string(digit) + ")"; }

/// The items that a list shows: each digit with its text, the first one and those from `second` on.
Json Items(const std::string& digits, std::int16_t first, std::int16_t second) {
  Json items = Json::array();
  for (const char digit : digits) {
    items.push_back(digit + (". " + Text(items.empty() ? first : second++)));
  }
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
      EXPECT_EQ(label.at("visible"), items != none) << model << digit;
      EXPECT_EQ(label.at("caption"), Text(static_cast<std::int16_t>(1392 - digit)));
    }
  }
}

TEST(OakPoint, CodeOpensDigitByDigit) {
  const struct {
    std::string Model;
    std::string Code;
    std::string Shown;
    bool Enabled;
  } cases[] = {{kGrand, "10000", "1000A", true},  {kGrand, "5987C", "5987C", true}, {kGrand, "c9f8p", "C9F8P", true},
               {kGrand, "0597P", "0597P", false}, {kGrand, "", "0000A", false},     {kGrand, "3", "3000A", true},
               {kGrand, "D20A0", "20A", true},    {kGrand, "3 x-?", "3000A", true}, {kBase, "C9F88", "C9F", true},
               {kBase, "3", "300", true},         {kBase, "", "000", false},        {kBase, "0A5", "005", false},
               {kMid, "A97", "A97", true},        {kMid, "B29", "2", true},         {kMid, "308", "30", true}};
  for (const auto& one : cases) {
    const auto run = Point(one.Model, one.Code).Play("dump\nclick cmdOK");
    EXPECT_EQ(run.Control("lblPointCode").at("caption"), one.Shown) << one.Model << one.Code;
    EXPECT_EQ(run.Control(List(2)).at("enabled"), one.Enabled) << one.Model << one.Code;
    EXPECT_EQ(run.Control(List(3)).at("enabled"), one.Enabled) << one.Model << one.Code;
    EXPECT_EQ(run.Argument("PointCode"), one.Shown) << one.Model << one.Code;
  }
}

TEST(OakPoint, FifthDigitOpensAsALetterAndAsADecimalDigit) {
  const std::string letters = "ABCDEFGHIJKLMNOP";
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const auto stored = std::string("3000") + letters[i];
    EXPECT_EQ(Point(kGrand, stored).Play("click cmdOK").Argument("PointCode"), stored);
    if (i > 9) continue;
    EXPECT_EQ(Point(kGrand, "3000" + std::to_string(i)).Play("click cmdOK").Argument("PointCode"), stored);
  }
}

TEST(OakPoint, FirstDigitZeroResetsAndDisablesTheNextTwo) {
  for (const auto& model : {kGrand, kMid, kBase}) {
    const auto run = Point(model, "354").Play("select cmbDigit(1) 0\ndump\nselect cmbDigit(1) 6\ndump");
    for (const std::size_t dump : {0U, 1U}) {
      EXPECT_EQ(run.Control("lblPointCode", dump).at("caption"),
                (dump == 0 ? "000" : "600") + std::string(model == kGrand ? "0A" : ""));
      for (const int digit : {2, 3}) EXPECT_EQ(run.Control(List(digit), dump).at("enabled"), dump == 1) << model;
    }
  }
}

TEST(OakPoint, OkRefusesDigitsThatDoNotGoTogether) {
  const std::string hex = "0123456789ABCDEF";
  const struct {
    std::string Model;
    std::string First;
    std::size_t Judged;  // the place of the digit that is judged, from 0
    std::string Digits;
    std::string Accepted;
    std::int16_t Message;
  } cases[] = {{kGrand, "0", 3, "012345678", "078", 1456},
               {kGrand, "1", 2, hex, "09D", 1457},
               {kGrand, "3A", 3, "012345678", "012345678", 0},
               {kBase, "1", 2, hex, "09D", 1457},
               {kBase, "2", 2, hex, "012345679ABDEF", 1458},
               {kBase, "A", 2, hex, "0123", 1459},
               {kBase, "03456789BC", 2, hex, hex, 0},
               {kMid, "12", 2, "01234567", "0", 1455},
               {kMid, "03456789A", 2, "01234567", "01234567", 0}};
  for (const auto& one : cases) {
    for (const char first : one.First) {
      for (const char digit : one.Digits) {
        std::string code = one.Model == kGrand ? "0000B" : "000";
        code[0] = first;
        code[one.Judged] = digit;
        const auto call = Point(one.Model, code);
        if (one.Accepted.find(digit) != std::string::npos) {
          EXPECT_EQ(call.Play("click cmdOK").Result, 0) << one.Model << code;
          continue;
        }
        const auto run = call.Play("answer 1\nclick cmdOK\ndump");
        ExpectMessage(run, one.Message, 262, 48);
        EXPECT_EQ(run.Focus(), "cmbDigit(3)");
        EXPECT_EQ(run.Control("lblPointCode").at("caption"), code);
        EXPECT_EQ(run.Result, 1);
      }
    }
  }
}

TEST(OakPoint, OnlyOkWrites) {
  ExpectOnlyOkWrites(Point(kBase, "5a"), "select cmbDigit(1) 3", {"click cmdCancel", "key - Escape", "close"});
}

TEST(OakPoint, CarriesOnPastWhatCannotBeShown) {
  const auto run = Play(kBase, {"PointNum=[1]", "PointCode=[1]"}, "dump\nclick cmdOK");
  EXPECT_EQ(run.Control(List(3)).at("list").size(), 16);
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("PointCode"), "");
}

}  // namespace
}  // namespace orlin::testing
