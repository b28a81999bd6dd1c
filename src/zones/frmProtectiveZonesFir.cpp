#include "zones/frmProtectiveZonesFir.h"

#include <array>

#include "frame/conversions.h"
#include "frame/display_protocol.h"
#include "frame/fill_list.h"
#include "frame/modGeneral.h"
#include "frame/utf8.h"
#include "zones/hex_digit.h"

namespace orlin {
namespace {

constexpr int kCodeLength = 5;

// The texts of the lists, in the order of the items.
constexpr std::array<std::int16_t, 6> kDigit1 = {10874, 10875, 10876, 10877, 10878, 10879};
constexpr std::array<std::int16_t, 9> kDigit2 = {10887, 10888, 10889, 10890, 10891, 10892, 10893, 10894, 10895};
constexpr std::array<std::int16_t, 7> kDigit3 = {10880, 10881, 10882, 10883, 10884, 10885, 10886};
constexpr std::array<std::int16_t, 8> kDigit4 = {10896, 10897, 10898, 10899, 10900, 10901, 10902, 10903};

// The first list, where the second character is 0 or 3, and where it is 1, 2, 4 or 5.
constexpr std::array<std::int16_t, 8> kShortDigit0 = {10904, 10905, 10906, 10907, 10908, 10911, 10909, 10910};
constexpr std::array<std::int16_t, 16> kLongDigit0 = {10912, 10913, 10914, 10915, 10916, 10917, 10918, 10919,
                                                      10920, 10921, 10922, 10923, 10924, 10925, 10926, 10927};

}  // namespace

frmProtectiveZonesFir::frmProtectiveZonesFir() {
  cmbDigit.OnClick([this](int Index) { cmbDigit_Click(Index); });
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

std::int32_t frmProtectiveZonesFir::Display(Value& ZoneCode) {
  // The code is judged after the dialog has closed, so OK alone does not decide.
  std::int32_t result = kNotConfirmed;
  DisplaySteps steps;
  steps.Prepare = [&] {
    FillDigitLists();
    SkipFailure([&] { FillDigitZeroList(ToText(ZoneCode)); });
    for (int i = 1; i < kCodeLength; ++i) {
      SkipFailure([&] { cmbDigit[i].SelectRow(HexDigitAt(ToText(ZoneCode), i + 1)); });
    }
  };
  steps.Encode = [&] {
    if (CodeInvalid != 0) return TellIfInvalid();
    ZoneCode = lblZoneCode.Caption();
    result = kConfirmed;
  };
  steps.NotConfirmed = [&] {
    TellIfInvalid();
    return kNotConfirmed;
  };
  static_cast<void>(RunDisplay(Form, steps));
  return result;
}

void frmProtectiveZonesFir::TellIfInvalid() {
  if (CodeInvalid != -1) return;
  SkipFailure([&] { Form.ShowMessage(GetLocalText(237), Message::OkOnly, GetLocalText(10928)); });
}

void frmProtectiveZonesFir::FillDigitLists() {
  AddLocalTexts(cmbDigit[1], kDigit1);
  AddLocalTexts(cmbDigit[3], kDigit3);
  AddLocalTexts(cmbDigit[2], kDigit2);
  AddLocalTexts(cmbDigit[4], kDigit4);
}

void frmProtectiveZonesFir::FillDigitZeroList(const std::string& code) {
  cmbDigit[0].Clear();
  switch (static_cast<int>(NumericValue(Mid(code, 2, 1)))) {
    case 0:
    case 3:
      AddLocalTexts(cmbDigit[0], kShortDigit0);
      break;
    case 1:
    case 2:
    case 4:
    case 5:
      AddLocalTexts(cmbDigit[0], kLongDigit0);
      break;
    default:
      break;
  }
  SkipFailure([&] { cmbDigit[0].SelectRow(HexDigitAt(code, 1)); });
}

void frmProtectiveZonesFir::cmbDigit_Click(int Index) {
  CodeInvalid = 0;
  lblZoneCode.SetCaption("");
  for (const auto& list : cmbDigit) lblZoneCode.SetCaption(lblZoneCode.Caption() + Left(list.Text(), 1));
  if (CharacterCount(lblZoneCode.Caption()) < kCodeLength) CodeInvalid = -1;
  if (Index != 1) return;

  // Where this selects an item, the handler runs for the first list within, which judges the code anew.
  FillDigitZeroList(lblZoneCode.Caption());
  const auto code = lblZoneCode.Caption();
  const auto second = Mid(code, 2, 1);
  if ((second == "0" || second == "3") && HexDigitAt(code, 1) > 7) CodeInvalid = -1;
}

void frmProtectiveZonesFir::cmdCancel_Click() {
  CodeInvalid = 0;
  Form.HideWith(ExitCode::Cancel);
}

}  // namespace orlin
