#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

Call Zone(const std::string& code) { return {"clsZoneFunctionsWillow", {"ZoneNum=5", "ZoneCode=\"" + code + "\""}}; }

TEST(WillowZone, ShowsEightNumberedItemsPerDigit) {
  const auto run = Zone("0000").Play("dump");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(1748));
  EXPECT_EQ(run.Control("lblZoneText").at("caption"), Text(1750, "ZONE", "5"));
  for (int digit = 0; digit < 4; ++digit) {
    const auto index = "(" + std::to_string(digit) + ")";
    EXPECT_EQ(run.Control("lblDigit" + index).at("caption"), Text(1391 - digit));
    Json items = Json::array();
    for (int item = 0; item < 8; ++item) {
      items.push_back(std::to_string(item + 1) + ". " + Text(1751 + digit * 8 + item));
    }
    EXPECT_EQ(run.Control("cmbDigit" + index).at("list"), items);
  }
}

TEST(WillowZone, CountsIncomingDigitsFromZeroAndShownOnesFromOne) {
  const std::pair<const char*, const char*> cases[] = {{"0000", "1111"}, {"7654", "8765"}, {"0890", "1001"},
                                                       {"12", "2311"},   {"3x-4", "4115"}, {"9999", "8888"},
                                                       {"40001", "5111"}};
  for (const auto& [code, shown] : cases) {
    EXPECT_EQ(Zone(code).Play("dump").Control("lblZoneCode").at("caption"), shown) << code;
  }
}

TEST(WillowZone, OkJudgesTheFirstTwoDigitsAnewEachTime) {
  // "0" stands for a list without a selection.
  const std::string any = "012345678";
  const struct {
    char First;
    std::string Second;
    std::int16_t Message;
  } pairings[] = {{'0', any, 0}, {'1', "157", 1783}, {'2', "1", 1784}, {'3', "124", 1785}, {'4', "1", 1784},
                  {'5', any, 0}, {'6', any, 0},      {'7', any, 0},    {'8', any, 0}};
  const auto incoming = [](char item) { return item == '0' ? '9' : static_cast<char>(item - 1); };
  for (const auto& pairing : pairings) {
    for (const char second : any) {
      const std::string shown = {pairing.First, second, second, second};
      const auto zone = Zone({incoming(pairing.First), incoming(second), incoming(second), incoming(second)});
      if (shown == "0000") continue;  // builds no code at all
      if (pairing.Second.find(second) != std::string::npos) {
        EXPECT_EQ(zone.Play("click cmdOK").Argument("ZoneCode"), shown);
        continue;
      }
      const auto run = zone.Play("answer 1\nclick cmdOK\ndump\nselect cmbDigit(0) 4\nclick cmdOK");
      ExpectMessage(run, pairing.Message, 262, 0);
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

TEST(ZoneCodes, WhatCannotBeShownIsPassedOver) {
  for (const auto& [call, after] : {std::pair{Call{"clsZoneFunctionsWillow", {"ZoneNum=[1]", "ZoneCode=[1]"}}, "8888"},
                                    {Call{"clsPointCodes_OakBase", {"PointNum=[1]", "PointCode=[1]"}}, ""},
                                    {Call{"clsZoneFunctions_Fir", {"ZoneCode=[1]"}}, "8888"}}) {
    const auto run = call.Play("click cmdOK");
    EXPECT_EQ(run.Argument(call.Class[3] == 'P' ? "PointCode" : "ZoneCode"), after) << call.Class;
  }
}

}  // namespace
}  // namespace orlin::testing
