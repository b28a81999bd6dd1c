#include "outputs/frmOnboardOutputsBirch.h"

#include <array>
#include <span>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// The captions of the options from the first one on.
constexpr std::array<std::int16_t, 4> kGeneral = {513, 1261, 1262, 1263};
constexpr std::array<std::int16_t, 4> kDelays = {513, 1254, 1255, 1256};
constexpr std::array<std::int16_t, 5> kAlarmTypes = {513, 1257, 1258, 1259, 1260};
constexpr std::array<std::int16_t, 4> kOnlyTheFirst = {1261, 1246, 1243, 1245};

struct OnboardType {
  std::int16_t Code;
  std::int16_t Text;
  std::span<const std::int16_t> Captions;
};
// By position in cmbType. The code 12 is no type.
constexpr std::array<OnboardType, 14> kTypes = {{
    {0, 1248, kGeneral},
    {1, 1249, kGeneral},
    {2, 1214, kGeneral},
    {3, 1250, kDelays},
    {4, 1216, kGeneral},
    {5, 1217, kGeneral},
    {6, 1218, kGeneral},
    {7, 1219, kGeneral},
    {8, 1220, kGeneral},
    {9, 1221, kGeneral},
    {10, 1251, kAlarmTypes},
    {11, 1252, kGeneral},
    {13, 1253, kGeneral},
    {14, 1915, kOnlyTheFirst},
}};

// Positions: of the only type with five options, and of that whose option is forced.
constexpr int kWithFiveOptions = 10;
constexpr int kForced = 13;

/// The code 12 opens the type behind the gap.
std::int16_t PositionOf(std::int16_t code) {
  return code == 13 || code == 14 ? static_cast<std::int16_t>(code - 1) : code;
}

}  // namespace

frmOnboardOutputsBirch::frmOnboardOutputsBirch() {
  cmbType.Click = [this] { cmbType_Click(); };
  optOption.OnClick([this](int index) { optOption_Click(index); });
}

std::int32_t frmOnboardOutputsBirch::Display(const Value& vName, Value& vType, Value& vOption,
                                             const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    // The caller's argument itself is replaced, and stays so on every outcome.
    const auto code = ToInteger(vType);
    if (PositionOf(code) != code) vType = PositionOf(code);
    FillOnboardTypes();
    cmbType.SelectRow(ToInteger(vType));
    // A number that names no option fails here: the array has no such member.
    optOption[static_cast<std::size_t>(ToInteger(vOption))].SetValue(true);
    ApplySecurityLevels(Form.SecurityLevels(),
                        {{"Output Follows", {lblOutputFollows, cmbType}}, {"Options", {fraOptions}}});
    Form.SetCaption(GetLocalText(1192, "ITEM", ToText(vName)));
  };
  steps.Encode = [&] {
    const auto position = cmbType.ListIndex();
    vOption = position == kForced ? std::int16_t{1} : SelectedOption;
    vType = kTypes[static_cast<std::size_t>(position)].Code;
  };
  return RunDisplay(Form, steps);
}

void frmOnboardOutputsBirch::FillOnboardTypes() {
  for (const auto& type : kTypes) AddLocalText(cmbType, type.Text);
}

void frmOnboardOutputsBirch::cmbType_Click() { FillOnboardOptions(); }

void frmOnboardOutputsBirch::optOption_Click(int index) { SelectedOption = static_cast<std::int16_t>(index); }

void frmOnboardOutputsBirch::FillOnboardOptions() {
  const auto position = cmbType.ListIndex();
  const auto captions = kTypes[static_cast<std::size_t>(position)].Captions;
  SetOptionsEnabled(position != kForced);
  for (std::size_t i = 0; i < captions.size(); ++i) {
    SkipFailure([&] { optOption[i].SetCaption(GetLocalText(captions[i])); });
  }
  if (position == kForced) optOption[0].SetValue(true);
  optOption[4].SetVisible(position == kWithFiveOptions);
  if (!optOption[4].Visible() && optOption[4].Value()) optOption[3].SetValue(true);
}

void frmOnboardOutputsBirch::SetOptionsEnabled(bool on) {
  for (std::size_t i = 1; i < optOption.size(); ++i) optOption[i].SetEnabled(on);
}

}  // namespace orlin
