#include "outputs/frmOutputFuncsBirch.h"

#include <array>
#include <span>
#include <utility>

#include "frame/controls/fill_list.h"
#include "frame/controls/zone_box.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "outputs/birch_texts.h"

namespace orlin {
namespace {

// Each list stands behind "None". The alarms are not quite those that octal relays follow.
constexpr std::array<std::int16_t, 3> kSounderOptions = {1359, 1360, 1361};
constexpr std::array<std::int16_t, 4> kTroubles = {1363, 1364, 1365, 1366};
constexpr std::array<std::int16_t, 12> kOutputAlarms = {1225, 1226, 1227, 1228, 1368, 1230,
                                                        1369, 1232, 1233, 1234, 1235, 1236};

struct OutputFunction {
  std::int16_t Code;
  std::int16_t Text;
  std::int16_t OptionCaption;  // 0 leaves the caption as it was
  std::span<const std::int16_t> Options;
  bool TakesFirstZone = false;
  bool TakesSecondZone = false;
};
// By position in cmbType. The codes 2 and 5 are no functions.
constexpr std::array<OutputFunction, 14> kFunctions = {{
    {0, 1212, 1358, kSounderOptions},
    {1, 1213, 0, {}},
    {3, 1352, 1350, kArmingOptions},
    {4, 1915, 1350, kArmingOptions},
    {6, 1218, 1350, kArmingOptions},
    {7, 1219, 1350, kArmingOptions},
    {8, 1220, 1362, kTroubles},
    {9, 1221, 1350, kArmingOptions},
    {10, 1353, 1367, kOutputAlarms},
    {11, 1222, 1370, kZoneConditions},
    {12, 1354, 1370, kZoneConditions},
    {13, 1355, 1370, kZoneConditions, true},
    {14, 1356, 1350, kArmingOptions, true, true},
    {15, 1357, 1350, kArmingOptions, true, true},
}};

/// The code 2 opens the function behind it, 5 the one before it.
std::int16_t PositionOf(std::int16_t code) {
  if (code == 3 || code == 4) return static_cast<std::int16_t>(code - 1);
  return code > 4 ? static_cast<std::int16_t>(code - 2) : code;
}

std::string ZoneText(const Value& hexDigits) { return ToText(HexNumber(hexDigits)); }

std::string ZoneDigits(const TextBox& box) { return HexText(ToLong(NumericValue(box.Text()))); }

}  // namespace

frmOutputFuncsBirch::frmOutputFuncsBirch() {
  cmbType.Click = [this] { cmbType_Click(); };
  txtFirstZone.Change = [this] { txtFirstZone_Change(); };
  txtSecondZone.Change = [this] { txtSecondZone_Change(); };
}

std::int32_t frmOutputFuncsBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vFirstZone,
                                          Value& vSecondZone, const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    // The caller's argument itself is replaced, and stays so on every outcome.
    const auto code = ToInteger(vType);
    if (PositionOf(code) != code) vType = PositionOf(code);
    FillOutputFunctions();
    cmbType.SelectRow(ToInteger(vType));
    cmbOption.SelectRow(ToInteger(vOption));
    if (!txtFirstZone.Locked()) {
      txtFirstZone.SetText(ZoneText(vFirstZone));
      LastFirstZone = txtFirstZone.Text();
    }
    if (!txtSecondZone.Locked()) {
      txtSecondZone.SetText(ZoneText(vSecondZone));
      LastSecondZone = txtSecondZone.Text();
    }
    ZoneFilterOn = true;
    ApplyRights();
    Form.SetCaption(GetLocalText(1192, "ITEM", ToText(vName)));
  };
  steps.Encode = [&] {
    // In this order, as the number of a zone that is too large ends it half-way, and what was written by then stays.
    vType = cmbType.ListIndex();
    vOption = cmbOption.ListIndex();
    vFirstZone = ZoneDigits(txtFirstZone);
    vSecondZone = ZoneDigits(txtSecondZone);
    vType = kFunctions[static_cast<std::size_t>(cmbType.ListIndex())].Code;
    for (auto* zone : {&vFirstZone, &vSecondZone}) *zone = WithLeadingZero(ToText(*zone));
  };
  return RunDisplay(Form, steps);
}

void frmOutputFuncsBirch::FillOutputFunctions() {
  for (const auto& function : kFunctions) AddLocalText(cmbType, function.Text);
}

void frmOutputFuncsBirch::ApplyRights() {
  ApplySecurityLevels(Form.SecurityLevels(), {{"Output Function", {lblType, cmbType}},
                                              {"Options", {lblOption, cmbOption}},
                                              {"Follows Zone 1", {lblFirstZone, txtFirstZone}},
                                              {"Follows Zone 2", {lblSecondZone, txtSecondZone}}});
  if (!lblFirstZone.Visible() && !lblSecondZone.Visible()) fraZones.SetVisible(false);
  if (!lblFirstZone.Enabled() && !lblSecondZone.Enabled()) fraZones.SetEnabled(false);
}

void frmOutputFuncsBirch::cmbType_Click() { FillOutputOptions(); }

void frmOutputFuncsBirch::FillOutputOptions() {
  RefillList(cmbOption, [&] {
    const auto& function = kFunctions[static_cast<std::size_t>(cmbType.ListIndex())];
    AddLocalTexts(cmbOption, kNone);
    if (function.OptionCaption != 0) SkipFailure([&] { lblOption.SetCaption(GetLocalText(function.OptionCaption)); });
    AddLocalTexts(cmbOption, function.Options);
    OpenZoneBoxes(function.TakesFirstZone, function.TakesSecondZone);
  });
}

void frmOutputFuncsBirch::OpenZoneBoxes(bool first, bool second) {
  const bool remembered = std::exchange(ZoneFilterOn, false);
  const auto bringBack = [](TextBox& box, std::string& lastText) {
    lastText = LimitZone(lastText);
    box.SetText(lastText);
  };
  if (first) bringBack(txtFirstZone, LastFirstZone);
  if (second) bringBack(txtSecondZone, LastSecondZone);
  SetZoneLocked(txtFirstZone, !first);
  SetZoneLocked(txtSecondZone, !second);
  ZoneFilterOn = remembered;
}

void frmOutputFuncsBirch::SetZoneLocked(TextBox& box, bool locked) {
  const bool remembered = std::exchange(ZoneFilterOn, false);
  box.SetBackColor(locked ? kClosedBoxColor : kOpenBoxColor);
  if (locked) box.SetText("");
  box.SetLocked(locked);
  box.SetTabStop(!locked);
  ZoneFilterOn = remembered;
}

void frmOutputFuncsBirch::txtFirstZone_Change() { FilterZoneBox(Form, txtFirstZone, LastFirstZone, ZoneFilterOn); }

void frmOutputFuncsBirch::txtSecondZone_Change() { FilterZoneBox(Form, txtSecondZone, LastSecondZone, ZoneFilterOn); }

}  // namespace orlin
