#include "zones/frmProtectiveZonesFir.h"

#include <array>

#include "OrlinCustomDialogs/written_text.h"

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "zones/code_digits.h"

namespace orlin {
namespace {

constexpr int kCodeLength = 5;

// The first list, where the second character is 0 or 3, and where it is 1, 2, 4 or 5.
constexpr std::array<std::int16_t, 8> kShortDigit0 = {10904, 10905, 10906, 10907, 10908, 10911, 10909, 10910};
constexpr auto kLongDigit0 = TextRun<10912, 10927>();

}  // namespace

frmProtectiveZonesFir::frmProtectiveZonesFir() {
  cmbDigit.OnClick([this](int Index) { cmbDigit_Click(Index); });
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

std::int32_t frmProtectiveZonesFir::Display(Value& ZoneCode) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    FillDigitLists();
    SkipFailure([&] { FillDigitZeroList(ToText(ZoneCode)); });
    for (int i = 1; i < kCodeLength; ++i) {
      SkipFailure([&] { cmbDigit[i].SelectRow(HexDigitAt(ToText(ZoneCode), i + 1)); });
    }
  };
  // The code is judged after the dialog has closed, so OK alone does not decide.
  steps.Conclude = [&] {
    if (Form.ExitCode() == ExitCode::OK && CodeInvalid == 0) {
      ZoneCode = lblZoneCode.Caption();
      return kConfirmed;
    }
    if (CodeInvalid == -1) Form.ShowMessage(GetLocalText(237), Message::OkOnly, GetLocalText(10928));
    return kNotConfirmed;
  };
  return RunDisplay(Form, steps);
}

void frmProtectiveZonesFir::FillDigitLists() {
  AddLocalTexts(cmbDigit[1], TextRun<10874, 10879>());
  AddLocalTexts(cmbDigit[3], TextRun<10880, 10886>());
  AddLocalTexts(cmbDigit[2], TextRun<10887, 10895>());
  AddLocalTexts(cmbDigit[4], TextRun<10896, 10903>());
}

void frmProtectiveZonesFir::FillDigitZeroList(const std::string& code) {
  cmbDigit[0].Clear();
  const int second = DecimalDigitAt(code, 2);
  if (second == 0 || second == 3) {
    AddLocalTexts(cmbDigit[0], kShortDigit0);
  } else if (second <= 5) {
    AddLocalTexts(cmbDigit[0], kLongDigit0);
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
