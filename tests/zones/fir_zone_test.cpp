#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

Call Zone(const std::string& code) { return {"clsZoneFunctions_Fir", {"ZoneCode=\"" + code + "\""}}; }

std::string Pick(int digit, int row) {
  return "select cmbDigit(" + std::to_string(digit) + ") " + std::to_string(row) + "\n";
}

TEST(FirZone, EveryItemBeginsWithItsCharacter) {
  const struct {
    std::string Code;
    int Digit;
    std::size_t Items;
    std::int16_t Label, FirstItem;
  } lists[] = {{"01000", 0, 16, 10871, 10912}, {"00000", 0, 8, 10871, 10904}, {"00000", 1, 6, 10872, 10874},
               {"00000", 2, 9, 10869, 10887},  {"00000", 3, 7, 10870, 10880}, {"00000", 4, 8, 10868, 10896}};
  for (const auto& list : lists) {
    const auto run = Zone(list.Code).Play("dump");
    const auto index = "(" + std::to_string(list.Digit) + ")";
    const auto items = run.Control("cmbDigit" + index).at("list");
    EXPECT_EQ(items.size(), list.Items) << index;
    EXPECT_EQ(items.at(0), Text(list.FirstItem));
    for (std::size_t i = 0; i < items.size(); ++i) {
      EXPECT_EQ(items[i].get<std::string>()[0], "0123456789ABCDEF"[i]) << index;
    }
    ExpectTexts(run, {{"lblDigit" + index, {list.Label}}, {"lblZoneText", {10873}}});
    EXPECT_EQ(run.Events("show").at(0).at("caption"), Text(10928));
  }
}

TEST(FirZone, SecondCharacterChoosesTheFirstListWhichKeepsItsPosition) {
  for (int second = 0; second < 6; ++second) {
    const auto code = "4" + std::to_string(second) + "123";
    for (const auto& [before, change] :
         {std::pair{code, std::string()}, {"40123", Pick(1, second)}, {"45123", Pick(1, second)}}) {
      const auto run = Zone(before).Play(change + "dump\nclick cmdOK");
      EXPECT_EQ(run.Control("cmbDigit(0)").at("list").size(), second == 0 || second == 3 ? 8 : 16);
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
