#include "OrlinCustomDialogs/zones.h"

#include "frame/display_protocol.h"
#include "frame/modPanelTypes.h"
#include "frame/public_class_of.h"
#include "zones/frmPointCodesOak.h"
#include "zones/frmProtectiveZonesFir.h"
#include "zones/frmZoneFuncDescBirch.h"
#include "zones/frmZoneFuncsBirch.h"
#include "zones/frmZoneFuncsWillow.h"
#include "zones/frmZoneTypeBirch.h"
#include "zones/register.h"

namespace orlin {

std::int32_t clsZoneFunctionsWillow::Display(const Value& ZoneNum, Value& ZoneCode) {
  return CallDialog<frmZoneFuncsWillow>([&](auto& dialog) { return dialog.Display(ZoneNum, ZoneCode); });
}

std::int32_t clsZoneFunctionsBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vTroubleOn,
                                            const Value& SecurityLevels) {
  return CallDialog<frmZoneFuncsBirch>(
      [&](auto& dialog) { return dialog.Display(vName, vType, vOption, vTroubleOn, SecurityLevels); });
}

std::int32_t clsZoneFuncDescBirch::Display(const Value& vName, Value& vRetVal, Value& iFunction,
                                           std::int16_t& iZoneAlarmVerify, const Value& SecurityLevels) {
  return CallDialogUnguarded<frmZoneFuncDescBirch>(
      [&](auto& dialog) { return dialog.Display(vName, vRetVal, iFunction, iZoneAlarmVerify, SecurityLevels); });
}

std::int32_t clsZoneTypeBirch::Display(const Value& iZoneNum, const Value& iOrlinRF, Value& iZoneType,
                                       const Value& iMultiZoneType, const Value& SecurityLevels) {
  return CallDialogUnguarded<frmZoneTypeBirch>(
      [&](auto& dialog) { return dialog.Display(iZoneNum, iOrlinRF, iZoneType, iMultiZoneType, SecurityLevels); });
}

template <std::int32_t PanelType>
std::int32_t PointCodesOak<PanelType>::Display(const Value& PointNum, Value& PointCode) {
  return CallDialog<frmPointCodesOak>(
      [&](auto& dialog) { return dialog.Display(PointNum, PointCode, ePanelType{PanelType}); });
}
template class PointCodesOak<21>;
template class PointCodesOak<22>;
template class PointCodesOak<23>;

std::int32_t clsZoneFunctions_Fir::Display(Value& ZoneCode) {
  return CallDialog<frmProtectiveZonesFir>([&](auto& dialog) { return dialog.Display(ZoneCode); });
}

std::vector<PublicClass> ZonesClasses() {
  return {
      PublicClassOf("clsZoneFunctionsWillow", &clsZoneFunctionsWillow::Display, {"ZoneNum", "ZoneCode"}),
      PublicClassOf("clsZoneFunctionsBirch", &clsZoneFunctionsBirch::Display,
                    {"vName", "vType", "vOption", "vTroubleOn", "SecurityLevels"}),
      PublicClassOf("clsZoneFuncDescBirch", &clsZoneFuncDescBirch::Display,
                    {"vName", "vRetVal", "iFunction", "iZoneAlarmVerify", "SecurityLevels"}),
      PublicClassOf("clsZoneTypeBirch", &clsZoneTypeBirch::Display,
                    {"iZoneNum", "iOrlinRF", "iZoneType", "iMultiZoneType", "SecurityLevels"}),
      PublicClassOf("clsPointCodes_OakGrand", &clsPointCodes_OakGrand::Display, {"PointNum", "PointCode"}),
      PublicClassOf("clsPointCodes_OakMid", &clsPointCodes_OakMid::Display, {"PointNum", "PointCode"}),
      PublicClassOf("clsPointCodes_OakBase", &clsPointCodes_OakBase::Display, {"PointNum", "PointCode"}),
      PublicClassOf("clsZoneFunctions_Fir", &clsZoneFunctions_Fir::Display, {"ZoneCode"}),
  };
}

}  // namespace orlin
