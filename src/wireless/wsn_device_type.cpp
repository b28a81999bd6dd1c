#include "wireless/wsn_device_type.h"

#include <algorithm>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {

WSNDeviceTypeDialog::WSNDeviceTypeDialog(const WSNDeviceTypeTable& table)
    : Table(table),
      Form(table.DialogName, 10638, kUsualLife),
      lblInput(grpRelayType, "lblInput", table.InputText, {.Enabled = false}),
      grpMapped(Form, table.MappedFrame, {}, {.Visible = false}),
      lblMapped(grpMapped, table.MappedLabel, table.MappedText, {.Enabled = false}),
      cmbMapped(grpMapped, table.MappedList, {.Common = {.Enabled = false}}) {
  cmbDeviceType.Click = [this] { cmbDeviceType_Click(); };
  cmbMapped.Click = [this] { cmbMapped_Click(); };
  optInput.Click = [this] { optInput_Click(); };
  optInputOutput.Click = [this] { optInputOutput_Click(); };
}

std::int32_t WSNDeviceTypeDialog::Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption, const Value& vFree,
                                          const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    FillDeviceTypes();
    FillMapped(vFree);
    cmbDeviceType.SelectRow(PositionOf(ToInteger(vDeviceType)));
    SelectMapped(ToInteger(vMappedOutput));
    SelectRelayOption(ToInteger(vOption));
    if (cmbDeviceType.ListIndex() == Table.RelayPosition) {
      SetRelayControlsEnabled(true);
      if (optInputOutput.Value()) grpMapped.SetVisible(true);
    }
    Form.SetCaption(GetLocalText(10638));
  };
  steps.Encode = [&] {
    BeforeEncoding();
    vDeviceType = Table.DeviceTypes[static_cast<std::size_t>(cmbDeviceType.ListIndex())].DeviceType;
    vMappedOutput = MappedOutput;
    vOption = RelayOption;
  };
  return RunDisplay(Form, steps);
}

void WSNDeviceTypeDialog::FillDeviceTypes() {
  for (const auto& type : Table.DeviceTypes) cmbDeviceType.AddItem(GetLocalText(type.TextNumber));
}

void WSNDeviceTypeDialog::FillMapped(const Value& vFree) {
  RelayOption = 0;
  cmbMapped.Clear();
  FreeIds.clear();
  for (std::int16_t i = 0; i < Table.FreeCount; ++i) {
    if (!ToBoolean(AsArray(vFree).At(i))) continue;
    cmbMapped.AddItem(GetLocalText(static_cast<std::int16_t>(Table.FirstFreeText + i)));
    FreeIds.push_back(i);
  }
}

void WSNDeviceTypeDialog::SelectMapped(std::int16_t mapped) {
  const auto free = std::find(FreeIds.begin(), FreeIds.end(), mapped);
  if (free != FreeIds.end()) cmbMapped.SelectRow(static_cast<int>(free - FreeIds.begin()));
}

void WSNDeviceTypeDialog::SelectRelayOption(std::int16_t option) {
  if (option == 0 || option == Table.OtherNoRelay) {
    optInput.SetValue(false);
    optInputOutput.SetValue(false);
    RelayOption = 0;
  } else if (option == 1) {
    optInput.SetValue(true);
    RelayOption = 1;
  } else if (option == 2) {
    optInputOutput.SetValue(true);
    RelayOption = 2;
  }
}

void WSNDeviceTypeDialog::cmbDeviceType_Click() {
  if (cmbDeviceType.ListIndex() == Table.RelayPosition) {
    SetRelayControlsEnabled(true);
    if (optInputOutput.Value()) {
      grpMapped.SetVisible(true);
      RelayOption = 2;
      cmbMapped_Click();
    } else {
      RelayOption = 1;
      optInput.SetValue(true);
    }
  } else {
    SetRelayControlsEnabled(false);
    RelayOption = 0;
    MappedOutput = 0;
  }
}

void WSNDeviceTypeDialog::cmbMapped_Click() {
  // Without a selection there is nothing to take, and the number stays.
  if (cmbMapped.ListIndex() >= 0) MappedOutput = FreeIds[static_cast<std::size_t>(cmbMapped.ListIndex())];
}

void WSNDeviceTypeDialog::optInput_Click() {
  grpMapped.SetVisible(false);
  RelayOption = 1;
}

void WSNDeviceTypeDialog::optInputOutput_Click() {
  grpMapped.SetVisible(true);
  RelayOption = 2;
  if (MappedOutput == 0 || (MappedOutput >= 35 && MappedOutput <= 38)) {
    SkipFailure([&] { cmbMapped.SelectRow(0); });
  }
}

void WSNDeviceTypeDialog::SetRelayControlsEnabled(bool bEnable) {
  for (const AnyControl& control : std::initializer_list<AnyControl>{grpRelayType, optInput, optInputOutput, lblInput,
                                                                     lblInputOutput, lblMapped, cmbMapped}) {
    control.SetEnabled(bEnable);
  }
  if (!FreeIds.empty()) return;
  optInputOutput.SetEnabled(false);
  lblInputOutput.SetEnabled(false);
}

}  // namespace orlin
