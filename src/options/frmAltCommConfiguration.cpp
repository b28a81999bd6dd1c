#include "options/frmAltCommConfiguration.h"

#include <array>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr std::array<std::int16_t, 2> kPrintChoices = {10549, 10550};
constexpr std::int16_t kItemWithOtherMode2 = 132;

}  // namespace

frmAltCommConfiguration::frmAltCommConfiguration() {
  cmbMode.Click = [this] { cmbMode_Click(); };
}

std::int32_t frmAltCommConfiguration::Display(Value& vMode, Value& vAlarm, Value& vOpenClose, Value& vAll,
                                              const Value& SecurityLevels, std::int16_t iItemNo) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    StoredAlarm = vAlarm;
    StoredOpenClose = vOpenClose;
    StoredAll = vAll;
    Form.KeepSecurityLevels(SecurityLevels);
    FillCommModes(iItemNo);
    cmbMode.SelectRow(ToInteger(vMode));
    cmbAlarm.SelectRow(ToInteger(vAlarm));
    cmbOpensCloses.SelectRow(ToInteger(vOpenClose));
    cmbAll.SelectRow(ToInteger(vAll));
  };
  steps.Encode = [&] {
    vMode = cmbMode.ListIndex();
    vAlarm = cmbAlarm.ListIndex();
    vOpenClose = cmbOpensCloses.ListIndex();
    vAll = cmbAll.ListIndex();
  };
  return RunDisplay(Form, steps);
}

void frmAltCommConfiguration::FillCommModes(std::int16_t iItemNo) {
  const std::int16_t mode2 = iItemNo == kItemWithOtherMode2 ? 10538 : 10539;
  cmbMode.Clear();
  AddLocalTexts(cmbMode, std::array<std::int16_t, 3>{513, 10181, mode2});
}

void frmAltCommConfiguration::cmbMode_Click() { FillPrintLists(); }

void frmAltCommConfiguration::FillPrintLists() {
  const struct {
    ComboBox& List;
    const Value& Stored;
  } prints[] = {{cmbAlarm, StoredAlarm}, {cmbOpensCloses, StoredOpenClose}, {cmbAll, StoredAll}};
  const bool printsNothing = cmbMode.ListIndex() == 0 || cmbMode.ListIndex() == 2;
  for (const auto& print : prints) {
    print.List.Clear();
    AddLocalTexts(print.List, kPrintChoices);
    SkipFailure([&] { print.List.SelectRow(printsNothing ? 0 : ToInteger(print.Stored)); });
    print.List.SetEnabled(!printsNothing);
  }
}

}  // namespace orlin
