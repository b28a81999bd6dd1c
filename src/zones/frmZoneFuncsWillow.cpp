#include "zones/frmZoneFuncsWillow.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "zones/code_digits.h"

namespace orlin {
namespace {

// The texts of each digit's list, in the order of the items.
constexpr std::array<std::array<std::int16_t, 8>, 4> kItems = {
    TextRun<1751, 1758>(),
    TextRun<1759, 1766>(),
    TextRun<1767, 1774>(),
    TextRun<1775, 1782>(),
};

// What the second digit must be for a first digit; other first digits go with any.
struct Pairing {
  std::string_view FirstDigits;
  std::string_view SecondDigits;
  std::int16_t ElseMessage;
};
constexpr std::array<Pairing, 3> kPairings = {{
    {"1", "157", 1783},
    {"24", "1", 1784},
    {"3", "124", 1785},
}};

bool Holds(std::string_view digits, char digit) { return digits.find(digit) != std::string_view::npos; }

/// What the first two digits of a code break; null where they may stand together.
const Pairing* BrokenBy(const std::string& code) {
  const auto pairing = std::find_if(kPairings.begin(), kPairings.end(),
                                    [&](const auto& row) { return Holds(row.FirstDigits, code[0]); });
  return pairing == kPairings.end() || Holds(pairing->SecondDigits, code[1]) ? nullptr : &*pairing;
}

}  // namespace

frmZoneFuncsWillow::frmZoneFuncsWillow() {
  cmbDigit.OnClick([this](int) { cmbDigit_Click(); });
  cmbDigit[1].FindObjection = [this] {
    const auto* broken = BrokenBy(lblZoneCode.Caption());
    return broken == nullptr ? std::string() : GetLocalText(broken->ElseMessage);
  };
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmZoneFuncsWillow::Display(const Value& ZoneNum, Value& ZoneCode) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    SkipFailure([&] { lblZoneText.SetCaption(GetLocalText(1750, "ZONE", ToText(ZoneNum))); });
    FillDigitLists();
    for (int i = 0; i < 4; ++i) {
      SkipFailure([&] { cmbDigit[i].SelectRow(DecimalDigitAt(ToText(ZoneCode), i + 1)); });
    }
  };
  steps.Encode = [&] { ZoneCode = lblZoneCode.Caption(); };
  return RunDisplay(Form, steps);
}

void frmZoneFuncsWillow::FillDigitLists() {
  for (std::size_t list = 0; list < kItems.size(); ++list) {
    for (std::size_t i = 0; i < kItems[list].size(); ++i) {
      SkipFailure([&] { cmbDigit[list].AddItem(std::to_string(i + 1) + ". " + GetLocalText(kItems[list][i])); });
    }
  }
}

void frmZoneFuncsWillow::cmbDigit_Click() {
  lblZoneCode.SetCaption("");
  for (const auto& list : cmbDigit)
    lblZoneCode.SetCaption(lblZoneCode.Caption() + std::to_string(list.ListIndex() + 1));
}

void frmZoneFuncsWillow::cmdOK_Click() {
  if (ValidateZoneCode()) Form.HideWith(ExitCode::OK);
}

bool frmZoneFuncsWillow::ValidateZoneCode() {
  const auto* broken = BrokenBy(lblZoneCode.Caption());
  if (broken == nullptr) return true;
  SkipFailure([&] { Form.ShowMessage(GetLocalText(broken->ElseMessage), Message::OkOnly, GetLocalText(262)); },
              [&] { cmbDigit[1].SetFocus(); });
  return false;
}

}  // namespace orlin
