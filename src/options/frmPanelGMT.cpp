#include "options/frmPanelGMT.h"

#include <algorithm>
#include <string>

#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr int kNoBound = -1;
constexpr int kMostHours = 12;
constexpr int kMostMinutes = 59;  // in the box; the buttons step to 60

/// Whether a text holds nothing but digits and its number lies within the bounds.
bool IsNumber(const std::string& text, int low, int high) {
  if (!std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; })) return false;
  const double number = NumericValue(text);
  return (low == kNoBound || number >= low) && (high == kNoBound || number <= high);
}

}  // namespace

frmPanelGMT::frmPanelGMT() {
  txthrsfromGMT.Change = [this] { txthrsfromGMT_Change(); };
  txtminfromGMT.Change = [this] { txtminfromGMT_Change(); };
  udHrsfromGMT.Change = [this] { udHrsfromGMT_Change(); };
  cmdCancel.Click = [this] { Form.HideWith(ExitCode::Cancel); };
}

std::int32_t frmPanelGMT::Display(std::int16_t& iHrs, std::int16_t& iMins, std::int16_t& iIsPanelBehind,
                                  std::int16_t& iPanelDayLightSaving, const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    EntryHours = iHrs;
    EntryMinutes = iMins;
    SetPanelTime(iHrs, iMins, iIsPanelBehind, iPanelDayLightSaving);
    ApplySecurityLevels(Form.SecurityLevels(),
                        {{kEveryRecord, {udHrsfromGMT, udMinfromGMT, chkPanelTime, chkPanelDayLightSaving}}});
  };
  steps.Encode = [&] {
    iHrs = udHrsfromGMT.Value();
    iMins = udMinfromGMT.Value();
    iIsPanelBehind = chkPanelTime.Value();
    iPanelDayLightSaving = chkPanelDayLightSaving.Value();
  };
  return RunDisplay(Form, steps);
}

void frmPanelGMT::SetPanelTime(std::int16_t iHrs, std::int16_t iMins, std::int16_t iIsPanelBehind,
                               std::int16_t iPanelDayLightSaving) {
  txthrsfromGMT.SetText(std::to_string(iHrs));
  txtminfromGMT.SetText(std::to_string(iMins));
  chkPanelTime.SetValue(iIsPanelBehind != 0 ? 1 : 0);
  chkPanelDayLightSaving.SetValue(iPanelDayLightSaving != 0 ? 1 : 0);
}

void frmPanelGMT::PutBack(TextBox& box, std::int16_t entry, bool& guard) {
  guard = true;
  box.SetText(std::to_string(entry));
  box.SetSelStart(box.TextLength());
  guard = false;
  Form.Beep();
}

void frmPanelGMT::txthrsfromGMT_Change() {
  if (txthrsfromGMT.Text().empty()) return;
  if (!IsNumber(txthrsfromGMT.Text(), kNoBound, kNoBound)) {
    PutBack(txthrsfromGMT, EntryHours, HoursGuard);
  } else if (!HoursGuard) {
    if (NumericValue(txthrsfromGMT.Text()) > kMostHours) txthrsfromGMT.SetText(std::to_string(EntryHours));
    udHrsfromGMT.SetValue(ToInteger(NumericValue(txthrsfromGMT.Text())));
  }
}

void frmPanelGMT::txtminfromGMT_Change() {
  if (txtminfromGMT.Text().empty()) return;
  if (!IsNumber(txtminfromGMT.Text(), kNoBound, kNoBound)) {
    PutBack(txtminfromGMT, EntryMinutes, MinutesGuard);
  } else if (!MinutesGuard) {
    if (NumericValue(txtminfromGMT.Text()) > kMostMinutes) txtminfromGMT.SetText(std::to_string(EntryMinutes));
    udMinfromGMT.SetValue(udHrsfromGMT.Value() == kMostHours ? std::int16_t{0}
                                                             : ToInteger(NumericValue(txtminfromGMT.Text())));
  }
}

void frmPanelGMT::udHrsfromGMT_Change() {
  if (udHrsfromGMT.Value() == kMostHours) {
    udMinfromGMT.SetValue(0);
    udMinfromGMT.SetEnabled(false);
  } else {
    udMinfromGMT.SetEnabled(true);
  }
}

}  // namespace orlin
