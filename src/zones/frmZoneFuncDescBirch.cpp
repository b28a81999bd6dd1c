#include "zones/frmZoneFuncDescBirch.h"

#include <utility>
#include <vector>

#include "OrlinCustomDialogs/host/texts.h"

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// The zone types whose alarms can be verified, by the numbers of their names.
constexpr auto kVerifiedTypes = TextRun<1723, 1730>();

// The value of a zone that has no choice between verified and not.
constexpr std::int16_t kNoAlarmVerify = 10;

constexpr FaultKind kKeyFobFault{.ModuleName = "frmZoneFuncDescBirch",
                                 .ProcedureName = "GetFunctionDescKeyFob",
                                 .OnlyWithFaultObject = false,
                                 .Shows = false,
                                 .Clears = false};

}  // namespace

frmZoneFuncDescBirch::frmZoneFuncDescBirch() {
  cmbZoneFunc.Click = [this] { cmbZoneFunc_Click(); };
  cmdCancel.Click = [this] { Form.HideWith(ExitCode::Cancel); };
}

std::int32_t frmZoneFuncDescBirch::Display(const Value& vName, Value& vRetVal, Value& iFunction,
                                           std::int16_t& iZoneAlarmVerify, const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    auto& descriptions = AsArray(vRetVal);
    descriptions.At(0) = GetLocalText(10553);
    for (std::int32_t i = 0; i <= descriptions.UpperBound(); ++i) cmbZoneFunc.AddItem(ToText(descriptions.At(i)));
    // Decides whether the box can be used, so it comes before the state of the box.
    cmbZoneFunc.SelectRow(ToInteger(iFunction));
    if (iZoneAlarmVerify == kNoAlarmVerify) {
      ChkAlarmVerified.SetEnabled(false);
    } else {
      ChkAlarmVerified.SetValue(iZoneAlarmVerify == 0 ? 0 : 1);
    }
    ApplySecurityLevels(Form.SecurityLevels(), {{kEveryRecord, {lblZoneFuncDesc, cmbZoneFunc}}});
    const auto name = ToText(vName);
    Form.SetCaption("Edit " + name, ReplaceVariable(CatalogueText(1192, "Edit %ITEM%"), "ITEM", name));
  };
  steps.Encode = [&] {
    iFunction = cmbZoneFunc.ListIndex();
    iZoneAlarmVerify = ChkAlarmVerified.Enabled() && ChkAlarmVerified.Value() == 1 ? 1 : 0;
  };
  return RunDisplay(Form, steps);
}

// Skips no failure, unlike other handlers: while the dialog is being prepared, one ends `Display`.
void frmZoneFuncDescBirch::cmbZoneFunc_Click() {
  std::int16_t result = 0;
  GetFunctionDescKeyFob(cmbZoneFunc.Text(), result);
  ChkAlarmVerified.SetEnabled(result == 1);
}

void frmZoneFuncDescBirch::GetFunctionDescKeyFob(const std::string& text, std::int16_t& result) {
  result = 0;
  ReportFailure(kKeyFobFault, [&] {
    // The host wrote the descriptions, in a language that need not be the operator's.
    std::vector<std::string> names;
    for (const auto number : kVerifiedTypes) {
      for (auto& name : GetLocalTextInAllLanguages(number)) names.push_back(std::move(name));
    }
    for (const auto& name : names) {
      if (text.find(name) != std::string::npos) result = 1;
    }
  });
}

}  // namespace orlin
