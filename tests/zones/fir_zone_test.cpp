#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

TEST(FirZone, EveryItemBeginsWithItsCharacter) {
  const struct {
    std::string Code, Digit;
    std::size_t Items;
    std::int16_t Label, FirstItem;
  } lists[] = {{"01000", "(0)", 16, 10871, 10912}, {"00000", "(0)", 8, 10871, 10904},
               {"00000", "(1)", 6, 10872, 10874},  {"00000", "(2)", 9, 10869, 10887},
               {"00000", "(3)", 7, 10870, 10880},  {"00000", "(4)", 8, 10868, 10896}};
  for (const auto& [code, digit, count, label, first] : lists) {
    const auto run = Play("clsZoneFunctions_Fir", {"ZoneCode=\"" + code + "\""}, "dump");
    std::string characters;
    const auto items = run.Control("cmbDigit" + digit).at("list");
    for (const auto& item : items) characters += item.get<std::string>()[0];
    EXPECT_EQ(characters, std::string("0123456789ABCDEF").substr(0, count)) << digit;
    EXPECT_EQ(items.at(0), Text(first));
    EXPECT_EQ(Told(run, "lblDigit" + digit + " lblZoneText"), Text(label) + " " + Text(10873));
  }
}

TEST(FirZone, CodeIsJudgedWhenTheDialogHasClosed) {
  // The second character chooses the first list, which keeps its position if it can. Else it has no selection, the code
  // is built anew only when another list changes, and the other characters move up. So do those behind a character
  // that its list does not have. The code, picks ("10 42": the row 0 of the list 1, then the row 2 of the list 4), what
  // is shown, how many items the first list has then, whether that is invalid.
  const std::string cases =
      "00000||00000 8, f5867||F5867 16, 2x-?||20000 8, 40123|11|41123 16, 40123|12|42123 16, "
      "45123|13|43123 8, 45123|14|44123 16, 75123|10|70123 8, 95123|10|90123 8|invalid, "
      "81123|13|83123 8|invalid, 95123|10 40|0120 8|invalid, 95123|10 07|70123 8, 95123|10 14|44123 16, "
      "95123|10 27 14|4723 0|invalid, 93123||33123 8, A0123||00123 8, 06123||123 0|invalid, "
      "06123|12|22123 16, 25923||2523 16|invalid, 25128||2512 16|invalid, 9FFFF||8888 8";
  for (const auto& line : Split(cases, ", ")) {
    const auto cells = Split(line, "|");
    const bool valid = cells.size() == 3;
    std::string picks;
    for (const auto& pick : Split(cells[1], " ")) {
      picks += "select cmbDigit(" + pick.substr(0, 1) + ") " + pick.substr(1) + ";";
    }
    const auto kept = "1 '" + cells[0] + "' ", message = valid ? "" : Text(237) + "/" + Text(10928) + "/0";
    Cases judged{.Call = "clsZoneFunctions_Fir ZoneCode='" + cells[0] + "'",
                 .Script = (valid ? "" : "answer 1;") + picks + "{0}",
                 .Words = "result ZoneCode messages",
                 .Texts = true};
    ExpectEach(judged, {"click cmdOK|" + (valid ? "0 '" + Split(cells[2], " ")[0] + "' " : kept + message),
                        "close|" + kept + message});
    judged.Script = picks + "dump;key - Escape";
    judged.Words = "lblZoneCode cmbDigit(0).rows result ZoneCode messages";
    ExpectEach(judged, {cells[2] + " " + kept});
  }
}

}  // namespace
}  // namespace orlin::testing
