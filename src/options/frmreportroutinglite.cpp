#include "options/frmreportroutinglite.h"

#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"

namespace orlin {

frmreportroutinglite::frmreportroutinglite() {
  optOption.OnClick([this](int Index) { optOption_Click(Index); });
}

std::int32_t frmreportroutinglite::Display(Value& vOption, const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    optOption[ToInteger(vOption)].SetValue(true);
    // Either level hides; nothing is disabled.
    HideBySecurityLevels(Form.SecurityLevels(), {{"Options", {Frame1}}});
  };
  steps.Encode = [&] { vOption = RouteOption; };
  return RunDisplay(Form, steps);
}

void frmreportroutinglite::optOption_Click(int Index) { RouteOption = static_cast<std::int16_t>(Index); }

}  // namespace orlin
