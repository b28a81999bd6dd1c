#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

Call Zone(const std::string& code) { return {"clsZoneFunctionsWillow", {"ZoneNum=5", "ZoneCode=\"" + code + "\""}}; }

/// The digits that may stand second behind a first digit, "0" for a list without a selection; else the message.
const std::string kAnyDigit = "012345678";
const struct {
  char First;
  std::string Second;
  std::int16_t Message;
} kPairings[] = {{'0', kAnyDigit, 0}, {'1', "157", 1783},  {'2', "1", 1784},    {'3', "124", 1785}, {'4', "1", 1784},
                 {'5', kAnyDigit, 0}, {'6', kAnyDigit, 0}, {'7', kAnyDigit, 0}, {'8', kAnyDigit, 0}};

TEST(WillowZone, ShowsEightNumberedItemsPerDigit) {
  const auto run = Zone("0000").Play("dump");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(1748));
  EXPECT_EQ(run.Control("lblZoneText").at("caption"), Text(1750, "ZONE", "5"));
  ExpectTexts(run,
              {{"lblDigit(0)", {1391}}, {"lblDigit(1)", {1390}}, {"lblDigit(2)", {1389}}, {"lblDigit(3)", {1388}}});
  for (int digit = 0; digit < 4; ++digit) {
    Json items = Json::array();
    for (int item = 0; item < 8; ++item) {
      items.push_back(std::to_string(item + 1) + ". " + Text(static_cast<std::int16_t>(1751 + digit * 8 + item)));
    }
    EXPECT_EQ(run.Control("cmbDigit(" + std::to_string(digit) + ")").at("list"), items);
  }
}

TEST(WillowZone, CountsIncomingDigitsFromZeroAndShownOnesFromOne) {
  const std::pair<const char*, const char*> cases[] = {{"0000", "1111"}, {"7654", "8765"}, {"0890", "1001"},
                                                       {"", "1111"},     {"12", "2311"},   {"3x-4", "4115"},
                                                       {"9999", "8888"}, {"8888", "8888"}, {"40001", "5111"}};
  for (const auto& [code, shown] : cases) {
    EXPECT_EQ(Zone(code).Play("dump").Control("lblZoneCode").at("caption"), shown) << code;
  }
}

TEST(WillowZone, OkJudgesTheFirstTwoDigitsAnewEachTime) {
  const auto incoming = [](char item) { return item == '0' ? '9' : static_cast<char>(item - 1); };
  for (const auto& pairing : kPairings) {
    for (const char second : kAnyDigit) {
      const std::string shown = {pairing.First, second, second, second};
      const auto zone = Zone({incoming(pairing.First), incoming(second), incoming(second), incoming(second)});
      if (shown == "0000") continue;  // builds no code at all
      if (pairing.Second.find(second) != std::string::npos) {
        const auto run = zone.Play("click cmdOK");
        EXPECT_EQ(run.Result, 0) << shown;
        EXPECT_EQ(run.Argument("ZoneCode"), shown);
        continue;
      }
      const auto run = zone.Play("answer 1\nclick cmdOK\ndump\nselect cmbDigit(0) 4\nclick cmdOK");
      ExpectMessage(run, pairing.Message, 262, 0);
      EXPECT_TRUE(run.Events("beep").empty());
      EXPECT_EQ(run.Focus(), "cmbDigit(1)");
      EXPECT_EQ(run.Control("lblZoneCode").at("caption"), shown);
      EXPECT_EQ(run.Argument("ZoneCode"), "5" + shown.substr(1));
    }
  }
}

TEST(WillowZone, OnlyOkWrites) {
  ExpectOnlyOkWrites(Zone("4321"), "select cmbDigit(0) 0\nselect cmbDigit(1) 7",
                     {"click cmdCancel", "key - Escape", "close", "answer 1\nclick cmdOK\nclose"});
}

TEST(WillowZone, CarriesOnPastWhatCannotBeShown) {
  const auto run = Play("clsZoneFunctionsWillow", {"ZoneNum=[1]", "ZoneCode=[1]"}, "dump\nclick cmdOK");
  ExpectTexts(run, {{"lblZoneText", {1750}}});
  EXPECT_EQ(run.Control("cmbDigit(3)").at("list").size(), 8);
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("ZoneCode"), "8888");
}

}  // namespace
}  // namespace orlin::testing
