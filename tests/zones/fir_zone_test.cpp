#include "zones/zone_fixture.h"

namespace orlin::testing {
namespace {

Call Zone(const std::string& code) { return {"clsZoneFunctions_Fir", {"ZoneCode=\"" + code + "\""}}; }

/// "10 42" picks the row 0 of the list 1, then the row 2 of the list 4.
std::string Picks(const std::string& picks) {
  std::string script;
  for (std::size_t i = 0; i < picks.size(); i += 3) {
    script += "select cmbDigit(" + picks.substr(i, 1) + ") " + picks.substr(i + 1, 1) + "\n";
  }
  return script;
}

TEST(FirZone, EveryItemBeginsWithItsCharacter) {
  const struct {
    std::string Code, Digit;
    std::size_t Items;
    std::int16_t Label, FirstItem;
  } lists[] = {{"01000", "(0)", 16, 10871, 10912}, {"00000", "(0)", 8, 10871, 10904},
               {"00000", "(1)", 6, 10872, 10874},  {"00000", "(2)", 9, 10869, 10887},
               {"00000", "(3)", 7, 10870, 10880},  {"00000", "(4)", 8, 10868, 10896}};
  for (const auto& [code, digit, count, label, first] : lists) {
    const auto run = Zone(code).Play("dump");
    std::string characters;
    const auto items = run.Control("cmbDigit" + digit).at("list");
    for (const auto& item : items) characters += item.get<std::string>()[0];
    EXPECT_EQ(characters, std::string("0123456789ABCDEF").substr(0, count)) << digit;
    EXPECT_EQ(items.at(0), Text(first));
    ExpectTexts(run, {{"lblDigit" + digit, {label}}, {"lblZoneText", {10873}}});
  }
}

TEST(FirZone, CodeIsJudgedWhenTheDialogHasClosed) {
  // The second character chooses the first list, which keeps its position if it can. Else it has no selection, the code
  // is built anew only when another list changes, and the other characters move up. So do those behind a character
  // that its list does not have.
  const struct {
    std::string Code, Picks, Shown;
    int FirstList;
    bool Valid;
  } cases[] = {{"00000", "", "00000", 8, true},       {"f5867", "", "F5867", 16, true},
               {"2x-?", "", "20000", 8, true},        {"40123", "11", "41123", 16, true},
               {"40123", "12", "42123", 16, true},    {"45123", "13", "43123", 8, true},
               {"45123", "14", "44123", 16, true},    {"75123", "10", "70123", 8, true},
               {"95123", "10", "90123", 8, false},    {"81123", "13", "83123", 8, false},
               {"95123", "10 40", "0120", 8, false},  {"95123", "10 07", "70123", 8, true},
               {"95123", "10 14", "44123", 16, true}, {"95123", "10 27 14", "4723", 0, false},
               {"93123", "", "33123", 8, true},       {"A0123", "", "00123", 8, true},
               {"06123", "", "123", 0, false},        {"06123", "12", "22123", 16, true},
               {"25923", "", "2523", 16, false},      {"25128", "", "2512", 16, false},
               {"9FFFF", "", "8888", 8, true}};
  for (const auto& [code, picks, shown, firstList, valid] : cases) {
    SCOPED_TRACE(code + " " + picks);
    const auto call = Zone(code);
    const auto cancelled = call.Play(Picks(picks) + "dump\nclick cmdCancel");
    EXPECT_EQ(cancelled.Control("lblZoneCode").at("caption"), shown);
    EXPECT_EQ(cancelled.Control("cmbDigit(0)").at("list").size(), firstList);
    ExpectUntouched(call, cancelled);

    const auto run = call.Play((valid ? "" : "answer 1\n") + Picks(picks) + "click cmdOK");
    EXPECT_EQ(run.Result, valid ? 0 : 1);
    EXPECT_EQ(run.Argument("ZoneCode"), valid ? shown : code);
    if (!valid) ExpectMessage(run, 237, 10928, 0);
  }
}

TEST(FirZone, CloseBoxTellsAnInvalidCodeAndEscapeDoesNot) {
  ExpectOnlyOkWrites(Zone("95123"), Picks("10"), {"key - Escape", "answer 1\nclose"});
  ExpectOnlyOkWrites(Zone("95123"), Picks("11"), {"close"});
}

}  // namespace
}  // namespace orlin::testing
