#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kWillow = "clsZoneFunctionsWillow ZoneNum=5 ZoneCode='{0}'";

TEST(WillowZone, ShowsEightNumberedItemsPerDigit) {
  std::string items;
  for (int item = 0; item < 32; ++item) {
    items += (item % 8 == 0 ? " " + std::to_string(1391 - item / 8) + " [" : ", ") + std::to_string(item % 8 + 1) +
             ". " + std::to_string(1751 + item) + (item % 8 == 7 ? "]" : "");
  }
  ExpectEach({kWillow, "dump",
              "title lblZoneText lblDigit(0) cmbDigit(0) lblDigit(1) cmbDigit(1) lblDigit(2) cmbDigit(2) lblDigit(3) "
              "cmbDigit(3)"},
             {"0000|1748 1750 5" + items});
}

TEST(WillowZone, CountsIncomingDigitsFromZeroAndShownOnesFromOne) {
  ExpectEach({kWillow, "dump", "lblZoneCode"},
             {"0000|1111", "7654|8765", "0890|1001", "12|2311", "3x-4|4115", "9999|8888", "40001|5111"});
}

TEST(WillowZone, OkJudgesTheFirstTwoDigitsAnewEachTime) {
  // "0" stands for a list without a selection.
  const std::string any = "012345678";
  const auto incoming = [](char item) { return item == '0' ? '9' : static_cast<char>(item - 1); };
  for (const auto& [first, seconds, message] : {std::tuple{'0', any, ""},
                                                {'1', "157", "1783"},
                                                {'2', "1", "1784"},
                                                {'3', "124", "1785"},
                                                {'4', "1", "1784"},
                                                {'5', any, ""},
                                                {'6', any, ""},
                                                {'7', any, ""},
                                                {'8', any, ""}}) {
    for (const char second : any) {
      const std::string shown = {first, second, second, second};
      const std::string code = {incoming(first), incoming(second), incoming(second), incoming(second)};
      if (shown == "0000") continue;  // builds no code at all
      if (seconds.find(second) != std::string::npos) {
        ExpectEach({kWillow, "click cmdOK", "ZoneCode"}, {code + "|'" + shown + "'"});
      } else {
        ExpectEach({kWillow, "answer 1;click cmdOK;dump;select cmbDigit(0) 4;click cmdOK",
                    "messages focus lblZoneCode ZoneCode"},
                   {code + "|" + message + "/262/0 cmbDigit(1) " + shown + " '5" + shown.substr(1) + "'"});
      }
    }
  }
}

TEST(ZoneCodes, WhatCannotBeShownIsPassedOver) {
  ExpectEach({"clsZoneFunctionsWillow ZoneNum=[1] ZoneCode=[1]", "click cmdOK", "ZoneCode"}, {"'8888'"});
  ExpectEach({"clsPointCodes_OakBase PointNum=[1] PointCode=[1]", "click cmdOK", "PointCode"}, {"''"});
  ExpectEach({.Call = "clsZoneFunctions_Fir ZoneCode=[1]", .Script = "click cmdOK", .Words = "ZoneCode", .Texts = true},
             {"'8888'"});
}

}  // namespace
}  // namespace orlin::testing
