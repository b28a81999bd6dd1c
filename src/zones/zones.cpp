#include "OrlinCustomDialogs/zones.h"

#include <algorithm>

#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modPanelTypes.h"
#include "frame/values/conversions.h"
#include "registers.h"
#include "zones/frmPointCodesOak.h"
#include "zones/frmProtectiveZonesFir.h"
#include "zones/frmZoneFuncDescBirch.h"
#include "zones/frmZoneFuncsBirch.h"
#include "zones/frmZoneFuncsWillow.h"
#include "zones/frmZoneTypeBirch.h"

namespace orlin {

std::int32_t clsZoneFunctionsWillow::Display(const Value& ZoneNum, Value& ZoneCode) {
  return CallDialog<frmZoneFuncsWillow>(ZoneNum, ZoneCode);
}

std::int32_t clsZoneFunctionsBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vTroubleOn,
                                            const Value& SecurityLevels) {
  return CallDialog<frmZoneFuncsBirch>(vName, vType, vOption, vTroubleOn, SecurityLevels);
}

std::int32_t clsZoneFuncDescBirch::Display(const Value& vName, Value& vRetVal, Value& iFunction,
                                           std::int16_t& iZoneAlarmVerify, const Value& SecurityLevels) {
  return CallDialogUnguarded<frmZoneFuncDescBirch>(vName, vRetVal, iFunction, iZoneAlarmVerify, SecurityLevels);
}

std::int32_t clsZoneTypeBirch::Display(const Value& iZoneNum, const Value& iOrlinRF, Value& iZoneType,
                                       const Value& iMultiZoneType, const Value& SecurityLevels) {
  return CallDialogUnguarded<frmZoneTypeBirch>(iZoneNum, iOrlinRF, iZoneType, iMultiZoneType, SecurityLevels);
}

template <std::int32_t PanelType>
std::int32_t PointCodesOak<PanelType>::Display(const Value& PointNum, Value& PointCode) {
  return CallDialog<frmPointCodesOak>(PointNum, PointCode, ePanelType{PanelType});
}
template class PointCodesOak<21>;
template class PointCodesOak<22>;
template class PointCodesOak<23>;

std::int32_t clsZoneFunctions_Fir::Display(Value& ZoneCode) { return CallDialog<frmProtectiveZonesFir>(ZoneCode); }

namespace {

/// A digit that counts the items of its list from 1, 0 being none, as one that counts them from 0. No list has an
/// item 9.
char CountedFromZero(char digit) {
  if (digit < '0' || digit > '9') return digit;
  return digit == '0' ? '9' : static_cast<char>(digit - 1);
}

/// The code comes back counted from 1, which is how it is stored, and goes in counted from 0.
void CountCodeFromZero(std::vector<Value>& values) {
  constexpr std::size_t ZoneCode = 1;
  auto& code = values[ZoneCode];
  if (code.kind() == Value::Kind::Array || code.kind() == Value::Kind::Object) return;
  auto digits = ToText(code);
  std::transform(digits.begin(), digits.end(), digits.begin(), CountedFromZero);
  code = std::move(digits);
}

/// The descriptions are the host's own: their first one comes back as a text of the catalogue, whatever it was.
void UpdateAllButDescriptions(std::vector<Value>& stored, const std::vector<Value>& returned) {
  constexpr std::size_t iFunction = 2;
  constexpr std::size_t iZoneAlarmVerify = 3;
  for (const auto place : {iFunction, iZoneAlarmVerify}) stored[place] = returned[place];
}

}  // namespace

std::vector<PublicClass> ZonesClasses() {
  return {
      PublicClassOf("clsZoneFunctionsWillow", &clsZoneFunctionsWillow::Display, {"ZoneNum", "ZoneCode"},
                    {.ToArguments = CountCodeFromZero}),
      PublicClassOf("clsZoneFunctionsBirch", &clsZoneFunctionsBirch::Display,
                    {"vName", "vType", "vOption", "vTroubleOn", "SecurityLevels"}),
      PublicClassOf("clsZoneFuncDescBirch", &clsZoneFuncDescBirch::Display,
                    {"vName", "vRetVal", "iFunction", "iZoneAlarmVerify", "SecurityLevels"},
                    {.Update = UpdateAllButDescriptions}),
      PublicClassOf("clsZoneTypeBirch", &clsZoneTypeBirch::Display,
                    {"iZoneNum", "iOrlinRF", "iZoneType", "iMultiZoneType", "SecurityLevels"}),
      PublicClassOf("clsPointCodes_OakGrand", &clsPointCodes_OakGrand::Display, {"PointNum", "PointCode"}),
      PublicClassOf("clsPointCodes_OakMid", &clsPointCodes_OakMid::Display, {"PointNum", "PointCode"}),
      PublicClassOf("clsPointCodes_OakBase", &clsPointCodes_OakBase::Display, {"PointNum", "PointCode"}),
      PublicClassOf("clsZoneFunctions_Fir", &clsZoneFunctions_Fir::Display, {"ZoneCode"}),
  };
}

}  // namespace orlin
