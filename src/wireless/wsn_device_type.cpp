#include "wireless/wsn_device_type.h"

#include "frame/conversions.h"
#include "frame/display_protocol.h"
#include "frame/fill_list.h"
#include "frame/modGeneral.h"

namespace orlin {
WSNDeviceTypeDialog::WSNDeviceTypeDialog(const WSNDeviceTypeTable& table)
    : Table(table),
      Form(table.DialogName, 10638, kUsualLife),
      lblInput(grpRelayType, "lblInput", table.InputText, {.Enabled = false}),
      grpMapped(Form, table.MappedFrame, {}, {.Visible = false}),
      lblMapped(grpMapped, table.MappedLabel, table.MappedText, {.Enabled = false}),
      cmbMapped(grpMapped, table.MappedList, {.Common = {.Enabled = false}}) {
  cmbDeviceType.Click = [this] { cmbDeviceType_Click(); };
  cmbMapped.Click = [this] { TakeMapped(); };
  optInput.Click = [this] { optInput_Click(); };
  optInputOutput.Click = [this] { optInputOutput_Click(); };
}

std::int32_t WSNDeviceTypeDialog::Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption, const Value& vFree,
                                          const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    FillDeviceTypes();
    CountFree(vFree);
    FillMapped(vFree);
    cmbDeviceType.SelectRow(PositionOf(ToInteger(vDeviceType)));
    SelectMapped(ToInteger(vMappedOutput));
    SelectRelayOption(ToInteger(vOption));
    if (OpensAsRelay(ToInteger(vDeviceType))) {
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

void WSNDeviceTypeDialog::CountFree(const Value& vFree) {
  std::size_t count = 0;
  for (int i = 0; i < Table.FreeCount; ++i) count += ToBoolean(AsArray(vFree).At(i)) ? 1 : 0;
  FreeIds.assign(count + 1, Value());
}

void WSNDeviceTypeDialog::FillMapped(const Value& vFree) {
  RelayOption = 0;
  cmbMapped.Clear();
  std::size_t next = 0;
  for (int i = 0; i < Table.FreeCount; ++i) {
    if (!ToBoolean(AsArray(vFree).At(i))) continue;
    cmbMapped.AddItem(GetLocalText(static_cast<std::int16_t>(Table.FirstFreeText + i)));
    FreeIds[next++] = static_cast<std::int16_t>(i);
  }
}

void WSNDeviceTypeDialog::SelectMapped(std::int16_t mapped) {
  for (int k = 0; k < FreeEntries(); ++k) {
    if (ToInteger(FreeIds[static_cast<std::size_t>(k)]) == mapped) cmbMapped.SelectRow(k);
  }
}

void WSNDeviceTypeDialog::SelectRelayOption(std::int16_t option) {
  if (IsNoRelayOption(option)) {
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

bool WSNDeviceTypeDialog::OpensAsRelay(std::int16_t) const { return cmbDeviceType.ListIndex() == Table.RelayPosition; }

void WSNDeviceTypeDialog::TakeMapped() {
  // Without a selection there is nothing to take, and the number stays.
  if (cmbMapped.ListIndex() < 0) return;
  SkipFailure([&] { MappedOutput = ToInteger(FreeIds[static_cast<std::size_t>(cmbMapped.ListIndex())]); });
}

void WSNDeviceTypeDialog::cmbDeviceType_Click() {
  if (cmbDeviceType.ListIndex() == Table.RelayPosition) {
    SetRelayControlsEnabled(true);
    if (optInputOutput.Value()) {
      grpMapped.SetVisible(true);
      RelayOption = 2;
      TakeMapped();
    } else {
      RelayOption = 1;
      optInput.SetValue(true);
    }
  } else {
    SetRelayControlsEnabled(false);
    RelayOption = 0;
    MappedOutput = 0;
  }
  DeviceIndex = cmbDeviceType.ListIndex();
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
  if (FreeEntries() > 0) return;
  optInputOutput.SetEnabled(false);
  lblInputOutput.SetEnabled(false);
}

}  // namespace orlin
