#include "zones/frmZoneFuncsBirch.h"

#include <array>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr std::array<std::int16_t, 16> kZoneTypes = {1723, 1724, 1725, 1726, 1727, 1728, 1729, 1730,
                                                     1731, 1732, 1733, 1734, 1735, 1234, 1736, 1737};
constexpr auto kOutputResponses = TextRun<1743, 1746>();
constexpr std::array<std::int16_t, 3> kTroubleOn = {395, 10560, 1747};

}  // namespace

frmZoneFuncsBirch::frmZoneFuncsBirch() {
  Form.OnLoad = [this] { Form_Load(); };
  cmbType.Click = [this] { cmbType_Click(); };
}

void frmZoneFuncsBirch::Form_Load() {
  Form.LoadCaptions();
  PrevTypeIndex = -1;
  Form.Centre();
}

std::int32_t frmZoneFuncsBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vTroubleOn,
                                        const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    FillZoneTypes();
    // Fills the two other lists, so it comes before their selection.
    cmbType.SelectRow(ToInteger(vType));
    cmbOption.SelectRow(ToInteger(vOption));
    cmbTroubleOn.SelectRow(ToInteger(vTroubleOn));
    ApplySecurityLevels(Form.SecurityLevels(), {{"Type", {lblType, cmbType}},
                                                {"Output Response", {lblOption, cmbOption}},
                                                {"Trouble On", {lblTroubleOn, cmbTroubleOn}}});
    Form.SetCaption(GetLocalText(1192, "ITEM", ToText(vName)));
  };
  steps.Encode = [&] {
    vType = cmbType.ListIndex();
    vOption = cmbOption.ListIndex();
    vTroubleOn = cmbTroubleOn.ListIndex();
  };
  return RunDisplay(Form, steps);
}

void frmZoneFuncsBirch::FillZoneTypes() {
  cmbType.Clear();
  AddLocalTexts(cmbType, kZoneTypes);
}

void frmZoneFuncsBirch::cmbType_Click() {
  if (cmbType.ListIndex() == -1 || PrevTypeIndex == -1) {
    FillOutputResponse();
    FillTroubleOn();
  }
  PrevTypeIndex = cmbType.ListIndex();
}

void frmZoneFuncsBirch::FillOutputResponse() {
  RefillList(cmbOption, [&] {
    SkipFailure([&] { lblOption.SetCaption(GetLocalText(1722)); });
    AddLocalTexts(cmbOption, kOutputResponses);
  });
}

void frmZoneFuncsBirch::FillTroubleOn() {
  RefillList(cmbTroubleOn, [&] {
    AddLocalTexts(cmbTroubleOn, kTroubleOn);
    SkipFailure([&] {
      if (!MayEdit(Form.SecurityLevels(), "Trouble On")) return;
      cmbTroubleOn.SetVisible(true);
      lblTroubleOn.SetVisible(true);
    });
  });
}

}  // namespace orlin
