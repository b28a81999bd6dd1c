#include "OrlinCustomDialogs/options.h"

#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"
#include "options/frmAltCommConfiguration.h"
#include "options/frmPanelGMT.h"
#include "options/frmPhoneOptionsPine.h"
#include "options/frmreportroutinglite.h"
#include "registers.h"

namespace orlin {

std::int32_t clsPhoneOptions_Pine::Display(Value& vTrouble, Value& vOn, Value& vOff, const Value& SecurityLevels,
                                           const Value& vPanelType) {
  return CallDialogWith<frmPhoneOptionsPine>(
      [&](auto& dialog) { return dialog.Display(vTrouble, vOn, vOff, SecurityLevels, ToLong(vPanelType)); });
}

std::int32_t clsAltCommConfiguration::Display(const Value& /*vName*/, Value& vMode, Value& vAlarm, Value& vOpenClose,
                                              Value& vAll, const Value& SecurityLevels, const std::int16_t& iItemNo) {
  return CallDialog<frmAltCommConfiguration>(vMode, vAlarm, vOpenClose, vAll, SecurityLevels, iItemNo);
}

std::int32_t clsPanelGMT::Display(std::int16_t& iHrs, std::int16_t& iMins, std::int16_t& iIsPanelBehind,
                                  std::int16_t& iPanelDayLightSaving, const Value& SecurityLevels) {
  return CallDialogUnguarded<frmPanelGMT>(iHrs, iMins, iIsPanelBehind, iPanelDayLightSaving, SecurityLevels);
}

std::int32_t clsReportroutinglite::Display(Value& vOption, const Value& SecurityLevels) {
  return CallDialog<frmreportroutinglite>(vOption, SecurityLevels);
}

std::vector<PublicClass> OptionsClasses() {
  return {
      PublicClassOf("clsPhoneOptions_Pine", &clsPhoneOptions_Pine::Display,
                    {"vTrouble", "vOn", "vOff", "SecurityLevels", "vPanelType"}),
      PublicClassOf("clsAltCommConfiguration", &clsAltCommConfiguration::Display,
                    {"vName", "vMode", "vAlarm", "vOpenClose", "vAll", "SecurityLevels", "iItemNo"}),
      PublicClassOf("clsPanelGMT", &clsPanelGMT::Display,
                    {"iHrs", "iMins", "iIsPanelBehind", "iPanelDayLightSaving", "SecurityLevels"}),
      PublicClassOf("clsReportroutinglite", &clsReportroutinglite::Display, {"vOption", "SecurityLevels"}),
  };
}

}  // namespace orlin
