#include "outputs/frmOctalRelaysBirch.h"

#include <array>
#include <span>

#include "frame/controls/fill_list.h"
#include "frame/controls/zone_box.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "outputs/birch_texts.h"

namespace orlin {
namespace {

constexpr auto kEvents = TextRun<1212, 1224>();
constexpr std::array<std::int16_t, 14> kNoneAndAlarms = {513,  1225, 1226, 1227, 1228, 1229, 1230,
                                                         1231, 1232, 1233, 1234, 1235, 1236, 1237};

// The list of events goes round this data byte.
constexpr std::int16_t kTypeOfEvents = 1;
constexpr int kNoEvent = 10;

enum class Input { List, FunctionNumber, Zone };

struct OctalType {
  std::int16_t Text;
  std::int16_t OptionCaption;  // 0 leaves the caption as it was
  std::span<const std::int16_t> Options;
  std::span<const std::int16_t> Functions;
  std::int16_t FunctionCaption;
  Input DataInput;
};
// By position in cmbType.
constexpr std::array<OctalType, 5> kTypes = {{
    {513, 0, {}, kNone, 1238, Input::List},
    {1193, 1190, kArmingOptions, kEvents, 1238, Input::List},
    {1046, 1190, kArmingOptions, kNoneAndAlarms, 1238, Input::List},
    {1194, 1190, kArmingOptions, kNone, 1239, Input::FunctionNumber},
    {1195, 1199, kZoneConditions, kNone, 1240, Input::Zone},
}};

const OctalType& Selected(const ComboBox& cmbType) { return kTypes[static_cast<std::size_t>(cmbType.ListIndex())]; }

}  // namespace

frmOctalRelaysBirch::frmOctalRelaysBirch() {
  cmbType.Click = [this] { cmbType_Click(); };
  cmbFunction.Click = [this] { cmbFunction_Click(); };
  chkDisabled.Click = [this] { chkDisabled_Click(); };
  udFunction.UpClick = [this] { udFunction_Step(); };
  udFunction.DownClick = [this] { udFunction_Step(); };
  txtFunction.KeyDown = [this](int key) { txtFunction_KeyDown(key); };
  txtFollowZone.Change = [this] { txtFollowZone_Change(); };
}

std::int32_t frmOctalRelaysBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vData,
                                          const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    FillOctalTypes();
    // The caller's argument itself is replaced, and stays so on every outcome.
    vData = HexNumber(vData);
    if (ToInteger(vType) == kTypeOfEvents && ToDouble(vData) >= kNoEvent) vData = ToDouble(vData) - 1;
    cmbType.SelectRow(ToInteger(vType));
    cmbOption.SelectRow(ToInteger(vOption));
    ShowData(vData);
    ApplySecurityLevels(Form.SecurityLevels(), {{"Type", {lblType, cmbType}}, {"Options", {lblOption, cmbOption}}});
    Form.SetCaption(GetLocalText(1192, "ITEM", ToText(vName)));
  };
  steps.Encode = [&] {
    // In this order, as a number that is too large ends it half-way, and what was written by then stays.
    vType = cmbType.ListIndex();
    vOption = cmbOption.ListIndex();
    vData = EnteredData();
    if (cmbType.ListIndex() == kTypeOfEvents && ToDouble(vData) >= kNoEvent) vData = ToDouble(vData) + 1;
    vData = WithLeadingZero(HexText(ToLong(vData)));
  };
  return RunDisplay(Form, steps);
}

void frmOctalRelaysBirch::FillOctalTypes() {
  cmbType.Clear();
  for (const auto& type : kTypes) AddLocalText(cmbType, type.Text);
}

void frmOctalRelaysBirch::FillOctalOptions() {
  RefillList(cmbOption, [&] {
    const auto& type = Selected(cmbType);
    AddLocalTexts(cmbOption, kNone);
    if (type.OptionCaption != 0) SkipFailure([&] { lblOption.SetCaption(GetLocalText(type.OptionCaption)); });
    AddLocalTexts(cmbOption, type.Options);
  });
}

void frmOctalRelaysBirch::FillOctalFunctions() {
  RefillList(cmbFunction, [&] { AddLocalTexts(cmbFunction, Selected(cmbType).Functions); });
}

void frmOctalRelaysBirch::ShowData(const Value& vData) {
  switch (Selected(cmbType).DataInput) {
    case Input::List:
      cmbFunction.SelectRow(ToInteger(vData));
      chkDisabled.SetValue(1);
      break;
    case Input::FunctionNumber:
      cmbFunction.SelectRow(0);
      txtFunction.SetText(ToText(vData));
      if (ToDouble(vData) == 0) chkDisabled.SetValue(1);
      break;
    case Input::Zone:
      cmbFunction.SelectRow(0);
      txtFollowZone.SetText(ToText(vData));
      chkDisabled.SetValue(1);
      break;
  }
}

double frmOctalRelaysBirch::EnteredData() const {
  switch (Selected(cmbType).DataInput) {
    case Input::FunctionNumber:
      return DecimalValue(txtFunction.Text());
    case Input::Zone:
      return DecimalValue(txtFollowZone.Text());
    case Input::List:
      break;
  }
  return cmbFunction.ListIndex();
}

void frmOctalRelaysBirch::cmbType_Click() {
  FillOctalOptions();
  FillOctalFunctions();
  ShowInputArea();
}

void frmOctalRelaysBirch::ShowInputArea() {
  const struct {
    Input DataInput;
    std::string_view Key;
    std::vector<AnyControl> Controls;
  } areas[] = {
      {Input::List, "Output Follows", {cmbFunction}},
      {Input::FunctionNumber, "Function", {txtFunction, udFunction, chkDisabled}},
      {Input::Zone, "Follows Zone", {txtFollowZone}},
  };
  const auto& type = Selected(cmbType);
  for (const auto& area : areas) {
    if (area.DataInput == type.DataInput) {
      ShowWithinRights(area.Key, {lblFunction});
      ShowWithinRights(area.Key, area.Controls);
    } else {
      for (const auto& control : area.Controls) control.SetVisible(false);
    }
  }
  SkipFailure([&] { lblFunction.SetCaption(GetLocalText(type.FunctionCaption)); });
}

void frmOctalRelaysBirch::ShowWithinRights(std::string_view key, const std::vector<AnyControl>& controls) {
  // A right that has no record restricts nothing.
  bool visible = true;
  bool enabled = true;
  SkipFailure([&] { visible = MayView(Form.SecurityLevels(), key); },
              [&] { enabled = MayEdit(Form.SecurityLevels(), key); });
  for (const auto& control : controls) {
    control.SetVisible(visible);
    control.SetAllowed(enabled);
  }
}

void frmOctalRelaysBirch::cmbFunction_Click() { FunctionMemory = cmbFunction.ListIndex(); }

void frmOctalRelaysBirch::chkDisabled_Click() { SetFunctionDisabled(txtFunction, chkDisabled.Value() == 1); }

void frmOctalRelaysBirch::SetFunctionDisabled(TextBox& box, bool disabled) {
  ZoneFilterOn = false;
  if (disabled) {
    box.SetBackColor(kClosedBoxColor);
    // A stored number may be too large to remember.
    SkipFailure([&] { FunctionMemory = ToInteger(NumericValue(box.Text())); });
    box.SetText("");
  } else {
    box.SetBackColor(kOpenBoxColor);
    if (FunctionMemory == 0) FunctionMemory = 1;
    box.SetText(std::to_string(FunctionMemory));
  }
  box.SetEnabled(!disabled);
  ZoneFilterOn = true;
}

void frmOctalRelaysBirch::udFunction_Step() { chkDisabled.SetValue(0); }

void frmOctalRelaysBirch::txtFunction_KeyDown(int key) {
  if (key == keys::Up || key == keys::Right) udFunction.Step(UpDown::Direction::Up);
  if (key == keys::Down || key == keys::Left) udFunction.Step(UpDown::Direction::Down);
}

void frmOctalRelaysBirch::txtFollowZone_Change() { FilterZoneBox(Form, txtFollowZone, LastFollowZone, ZoneFilterOn); }

}  // namespace orlin
