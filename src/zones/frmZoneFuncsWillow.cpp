#include "zones/frmZoneFuncsWillow.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "frame/conversions.h"
#include "frame/display_protocol.h"
#include "frame/modGeneral.h"

namespace orlin {
namespace {

constexpr int kItemsPerDigit = 8;

// Number of the first item of each digit's list; the others follow it.
constexpr std::array<std::int16_t, 4> kFirstItem = {1751, 1759, 1767, 1775};

// What the second digit must be for a first digit; other first digits go with any.
struct Pairing {
  char FirstDigit;
  std::string_view SecondDigits;
  std::int16_t ElseMessage;
};
constexpr std::array<Pairing, 4> kPairings = {{
    {'1', "157", 1783},
    {'2', "1", 1784},
    {'4', "1", 1784},
    {'3', "124", 1785},
}};

}  // namespace

frmZoneFuncsWillow::frmZoneFuncsWillow() {
  cmbDigit.OnClick([this](int) { cmbDigit_Click(); });
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmZoneFuncsWillow::Display(const Value& ZoneNum, Value& ZoneCode) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    SkipFailure([&] { lblZoneText.SetCaption(GetLocalText(1750, "ZONE", ToText(ZoneNum))); },
                [&] { FillDigitLists(); });
    for (int i = 0; i < 4; ++i) {
      SkipFailure([&] { cmbDigit[i].SelectRow(ToInteger(NumericValue(Mid(ToText(ZoneCode), i + 1, 1)))); });
    }
  };
  steps.Encode = [&] { ZoneCode = lblZoneCode.Caption(); };
  return RunDisplay(Form, steps);
}

void frmZoneFuncsWillow::FillDigitLists() {
  for (std::size_t i = 0; i < cmbDigit.size(); ++i) {
    for (std::int16_t item = 0; item < kItemsPerDigit; ++item) {
      SkipFailure([&] {
        const auto text = GetLocalText(static_cast<std::int16_t>(kFirstItem[i] + item));
        cmbDigit[i].AddItem(std::to_string(item + 1) + ". " + text);
      });
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
  const std::string code = lblZoneCode.Caption();
  const auto pairing =
      std::find_if(kPairings.begin(), kPairings.end(), [&](const auto& known) { return known.FirstDigit == code[0]; });
  if (pairing == kPairings.end() || pairing->SecondDigits.find(code[1]) != std::string_view::npos) return true;
  SkipFailure([&] { Form.ShowMessage(GetLocalText(pairing->ElseMessage), Message::OkOnly, GetLocalText(262)); },
              [&] { cmbDigit[1].SetFocus(); });
  return false;
}

}  // namespace orlin
