#include "wireless/frmWirelessSensorSensitivity.h"

#include <array>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr std::array<std::int16_t, 14> kType2Texts = {1248, 1249, 1214, 1250, 1216, 1217, 1218,
                                                      1219, 1220, 1221, 1251, 1252, 1253, 1915};

}  // namespace

std::int32_t frmWirelessSensorSensitivity::Display(std::int16_t iOption, Value& vValue, const Value& SecurityLevels) {
  const bool usesType1 = iOption == 1;
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    cmbType1.SetEnabled(usesType1);
    cmbType2.SetEnabled(!usesType1);
    if (usesType1) {
      FillType1();
      SelectType1(ToInteger(vValue));
    } else {
      FillType2();
      cmbType2.SelectRow(ToInteger(vValue));
    }
    ApplySecurityLevels(Form.SecurityLevels(), {{kEveryRecord, {lblOptions, cmbType1, cmbType2}}});
  };
  steps.Encode = [&] {
    if (usesType1) {
      vValue = static_cast<std::int16_t>(cmbType1.ItemData(cmbType1.ListIndex()));
    } else {
      vValue = cmbType2.ListIndex();
    }
  };
  return RunDisplay(Form, steps);
}

void frmWirelessSensorSensitivity::FillType1() {
  cmbType1.AddItem("Low", 0);
  cmbType1.AddItem("High", 4);
}

void frmWirelessSensorSensitivity::FillType2() { AddLocalTexts(cmbType2, kType2Texts); }

// By the stored value and not by position, as "High" is stored as 4, here as in the dialog of transceivers.
void frmWirelessSensorSensitivity::SelectType1(std::int16_t raw) {
  int row = 0;
  while (row < cmbType1.ListCount() && cmbType1.ItemData(row) != raw) ++row;
  cmbType1.SelectRow(row);
}

}  // namespace orlin
