#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

Call Zone(const std::string& code) { return {"clsZoneFunctions_Fir", {"ZoneCode=\"" + code + "\""}}; }

std::string Pick(int digit, int row) {
  return "select cmbDigit(" + std::to_string(digit) + ") " + std::to_string(row) + "\n";
}

const std::vector<std::int16_t> kShortList = {10904, 10905, 10906, 10907, 10908, 10911, 10909, 10910};
const std::vector<std::int16_t> kLongList = {10912, 10913, 10914, 10915, 10916, 10917, 10918, 10919,
                                             10920, 10921, 10922, 10923, 10924, 10925, 10926, 10927};

TEST(FirZone, EveryItemBeginsWithItsCharacter) {
  const std::vector<std::pair<std::string, std::vector<std::int16_t>>> lists = {
      {"cmbDigit(0)", kLongList},
      {"cmbDigit(1)", {10874, 10875, 10876, 10877, 10878, 10879}},
      {"cmbDigit(2)", {10887, 10888, 10889, 10890, 10891, 10892, 10893, 10894, 10895}},
      {"cmbDigit(3)", {10880, 10881, 10882, 10883, 10884, 10885, 10886}},
      {"cmbDigit(4)", {10896, 10897, 10898, 10899, 10900, 10901, 10902, 10903}}};
  const auto run = Zone("01000").Play("dump");
  EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(10928));
  ExpectTexts(run, lists);
  ExpectTexts(run, {{"lblZoneText", {10873}},
                    {"lblDigit(0)", {10871}},
                    {"lblDigit(1)", {10872}},
                    {"lblDigit(2)", {10869}},
                    {"lblDigit(3)", {10870}},
                    {"lblDigit(4)", {10868}}});
  const auto expectCharacters = [](const std::vector<std::int16_t>& numbers) {
    for (std::size_t i = 0; i < numbers.size(); ++i)
      EXPECT_EQ(Text(numbers[i])[0], "0123456789ABCDEF"[i]) << numbers[i];
  };
  for (const auto& list : lists) expectCharacters(list.second);
  expectCharacters(kShortList);
}

TEST(FirZone, SecondCharacterChoosesTheFirstListWhichKeepsItsPosition) {
  for (int second = 0; second < 6; ++second) {
    const auto code = "4" + std::to_string(second) + "123";
    for (const auto& [before, change] :
         {std::pair{code, std::string()}, {"40123", Pick(1, second)}, {"45123", Pick(1, second)}}) {
      const auto run = Zone(before).Play(change + "dump\nclick cmdOK");
      ExpectTexts(run, {{"cmbDigit(0)", second == 0 || second == 3 ? kShortList : kLongList}});
      EXPECT_EQ(run.Result, 0);
      EXPECT_EQ(run.Argument("ZoneCode"), code) << before;
    }
  }
}

TEST(FirZone, CodeIsJudgedWhenTheDialogHasClosed) {
  const struct {
    std::string Code;
    std::string Changes;
    std::string Shown;
    int FirstList;
    bool Valid;
  } cases[] = {{"00000", "", "00000", 8, true},
               {"f5867", "", "F5867", 16, true},
               {"", "", "00000", 8, true},
               {"2x-?5", "", "20005", 8, true},
               // The first list loses its selection; the code is built anew only when another list changes.
               {"95123", Pick(1, 0), "90123", 8, false},
               {"81123", Pick(1, 3), "83123", 8, false},
               {"75123", Pick(1, 3), "73123", 8, true},
               {"95123", Pick(1, 0) + Pick(4, 0), "0120", 8, false},
               {"95123", Pick(1, 0) + Pick(0, 7), "70123", 8, true},
               // Without it the other characters move up, and they fill and select the first list.
               {"95123", Pick(1, 0) + Pick(1, 4), "44123", 16, true},
               {"95123", Pick(1, 0) + Pick(2, 7) + Pick(1, 4), "4723", 0, false},
               // A first character that its list does not have opens as the second one.
               {"93123", "", "33123", 8, true},
               {"A0123", "", "00123", 8, true},
               // Characters that their lists do not have select nothing.
               {"06123", "", "123", 0, false},
               {"0A123", "", "0123", 8, false},
               {"06123", Pick(1, 2), "22123", 16, true},
               {"25923", "", "2523", 16, false},
               {"25172", "", "2512", 16, false},
               {"25128", "", "2512", 16, false},
               {"9FFFF", "", "8888", 8, true}};
  for (const auto& one : cases) {
    const auto call = Zone(one.Code);
    const auto cancelled = call.Play(one.Changes + "dump\nclick cmdCancel");
    EXPECT_EQ(cancelled.Control("lblZoneCode").at("caption"), one.Shown) << one.Code << one.Changes;
    EXPECT_EQ(cancelled.Control("cmbDigit(0)").at("list").size(), one.FirstList) << one.Code << one.Changes;
    ExpectUntouched(call, cancelled);

    const auto run = call.Play((one.Valid ? "" : "answer 1\n") + one.Changes + "click cmdOK");
    EXPECT_EQ(run.Result, one.Valid ? 0 : 1) << one.Code << one.Changes;
    EXPECT_EQ(run.Argument("ZoneCode"), one.Valid ? one.Shown : one.Code) << one.Code << one.Changes;
    EXPECT_EQ(run.Events("message").size(), one.Valid ? 0 : 1) << one.Code << one.Changes;
  }
}

TEST(FirZone, CloseBoxTellsAnInvalidCodeAndCancelDoesNot) {
  ExpectOnlyOkWrites(Zone("95123"), Pick(1, 0), {"click cmdCancel", "key - Escape"});
  ExpectOnlyOkWrites(Zone("95123"), Pick(1, 1), {"close"});
  const auto run = Zone("95123").Play("answer 1\n" + Pick(1, 0) + "close");
  EXPECT_EQ(run.Result, 1);
  ExpectMessage(run, 237, 10928, 0);
}

TEST(FirZone, CarriesOnPastACodeThatIsNoText) {
  const auto run = Play("clsZoneFunctions_Fir", {"ZoneCode=[1]"}, "dump\nclick cmdOK");
  EXPECT_EQ(run.Control("cmbDigit(4)").at("list").size(), 8);
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("ZoneCode"), "8888");
}

}  // namespace
}  // namespace orlin::testing
