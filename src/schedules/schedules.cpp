#include "OrlinCustomDialogs/schedules.h"

#include <array>

#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modPanelTypes.h"
#include "frame/values/conversions.h"
#include "registers.h"
#include "schedules/frmCustDisplayStringList.h"
#include "schedules/frmSkedFuncsArbor.h"
#include "schedules/frmSkedFuncsKin.h"
#include "schedules/frmSkedFuncsWillow.h"
#include "schedules/frmTime.h"

namespace orlin {

template <std::int32_t PanelType>
std::int32_t clsSkedFunc_Willow<PanelType>::Display(const Value& SkedNo, Value& SkedType, Value& SkedTime,
                                                    Value& TimeEdit, Value& SkedData, Value& SkedFunc,
                                                    const Value& SecurityLevels) {
  return CallDialog<frmSkedFuncsWillow>(SkedNo, SkedType, SkedTime, TimeEdit, SkedData, SkedFunc, SecurityLevels,
                                        ePanelType{PanelType});
}
template class clsSkedFunc_Willow<9>;
template class clsSkedFunc_Willow<16>;

template <std::int32_t PanelType>
std::int32_t clsSkedFunc_Arbor<PanelType>::Display(Value& Byte1, Value& Byte2, Value& Byte3) {
  return CallDialog<frmSkedFuncsArbor>(Byte1, Byte2, Byte3, ePanelType{PanelType});
}
template class clsSkedFunc_Arbor<1>;
template class clsSkedFunc_Arbor<2>;
template class clsSkedFunc_Arbor<3>;
template class clsSkedFunc_Arbor<4>;
template class clsSkedFunc_Arbor<5>;
template class clsSkedFunc_Arbor<6>;
template class clsSkedFunc_Arbor<49>;
template class clsSkedFunc_Arbor<50>;
template class clsSkedFunc_Arbor<51>;

template <std::int32_t PanelType>
std::int32_t clsSkedFunc_Kin<PanelType>::Display(Value& Byte1, Value& Byte2, Value& Byte3) {
  return CallDialog<frmSkedFuncsKin>(Byte1, Byte2, Byte3, ePanelType{PanelType});
}
template class clsSkedFunc_Kin<17>;
template class clsSkedFunc_Kin<18>;

std::int32_t clsTime_FirePanels::Display(std::int16_t Index, Value& res) { return CallDialog<frmTime>(Index, res); }

std::int32_t clsLstTime_Rowan::Display(std::int16_t Index, Value& res) {
  return CallDialog<frmCustDisplayStringList>(Index, res);
}

namespace {

constexpr std::array<const char*, 7> kWillowParameters = {"SkedNo",   "SkedType", "SkedTime",      "TimeEdit",
                                                          "SkedData", "SkedFunc", "SecurityLevels"};
constexpr std::array<const char*, 3> kThreeBytes = {"Byte1", "Byte2", "Byte3"};

/// The chosen time comes back beside the one that went in.
void UpdateIndexFromResult(std::vector<Value>& stored, const std::vector<Value>& returned) {
  constexpr std::size_t Index = 0;
  constexpr std::size_t res = 1;
  stored[Index] = ToInteger(returned[res]);
}

}  // namespace

std::vector<PublicClass> SchedulesClasses() {
  return {
      PublicClassOf("clsSkedFunc_WillowDuo", &clsSkedFunc_WillowDuo::Display, kWillowParameters),
      PublicClassOf("clsSkedFunc_WillowAce", &clsSkedFunc_WillowAce::Display, kWillowParameters),
      PublicClassOf("clsSkedFunc_Rowan", &clsSkedFunc_Rowan::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_Hazel", &clsSkedFunc_Hazel::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_Aspen", &clsSkedFunc_Aspen::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_Larch", &clsSkedFunc_Larch::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_Cedar", &clsSkedFunc_Cedar::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_Maple", &clsSkedFunc_Maple::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_RowanNova", &clsSkedFunc_RowanNova::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_AspenNova", &clsSkedFunc_AspenNova::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_LarchNova", &clsSkedFunc_LarchNova::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_HazelKin", &clsSkedFunc_HazelKin::Display, kThreeBytes),
      PublicClassOf("clsSkedFunc_LarchKin", &clsSkedFunc_LarchKin::Display, kThreeBytes),
      PublicClassOf("clsTime_FirePanels", &clsTime_FirePanels::Display, {"Index", "res"},
                    {.Update = UpdateIndexFromResult}),
      PublicClassOf("clsLstTime_Rowan", &clsLstTime_Rowan::Display, {"Index", "res"},
                    {.Update = UpdateIndexFromResult}),
  };
}

}  // namespace orlin
