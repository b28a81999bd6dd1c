#include "OrlinCustomDialogs/outputs.h"

#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"
#include "outputs/frmOctalRelaysBirch.h"
#include "outputs/frmOnboardOutputsBirch.h"
#include "outputs/frmOutputFuncsBirch.h"
#include "outputs/frmOutputFuncsPine.h"
#include "outputs/frmPulseCountPine.h"
#include "outputs/frmRelayParamsOak.h"
#include "registers.h"

namespace orlin {

std::int32_t clsOctalRelaysBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vData,
                                          const Value& SecurityLevels) {
  return CallDialog<frmOctalRelaysBirch>(vName, vType, vOption, vData, SecurityLevels);
}

std::int32_t clsOutputFunctionsBirch::Display(const Value& vName, Value& vType, Value& vOption, Value& vFirstZone,
                                              Value& vSecondZone, const Value& SecurityLevels) {
  return CallDialog<frmOutputFuncsBirch>(vName, vType, vOption, vFirstZone, vSecondZone, SecurityLevels);
}

std::int32_t clsOnboardOutputsBirch::Display(const Value& vName, Value& vType, Value& vOption,
                                             const Value& SecurityLevels) {
  return CallDialog<frmOnboardOutputsBirch>(vName, vType, vOption, SecurityLevels);
}

template <std::int32_t PanelType>
std::int32_t RelayParamOak<PanelType>::Display(const Value& RelayNo, const Value& FunctionNo, Value& FunctionCode,
                                               Value& ParameterCode, const Value& SecurityLevels) {
  return CallDialog<frmRelayParamsOak>(RelayNo, FunctionNo, FunctionCode, ParameterCode, SecurityLevels,
                                       ePanelType{PanelType});
}
template class RelayParamOak<21>;
template class RelayParamOak<22>;
template class RelayParamOak<23>;

std::int32_t clsOutputFunctions_Pine::Display(const Value& vName, Value& vCode, const Value& vPanelType) {
  return CallDialogWith<frmOutputFuncsPine>(
      [&](auto& dialog) { return dialog.Display(vName, vCode, ToLong(vPanelType)); });
}

template <std::int32_t PanelType>
std::int32_t PulseCountPine<PanelType>::Display(const Value& vName, const Value& vInterval1, const Value& vInterval2,
                                                Value& vPulseCount, Value& vPulseCountTime,
                                                const Value& SecurityLevels) {
  return CallDialog<frmPulseCountPine>(vName, vInterval1, vInterval2, vPulseCount, vPulseCountTime, SecurityLevels,
                                       ePanelType{PanelType});
}
template class PulseCountPine<8>;
template class PulseCountPine<24>;

std::vector<PublicClass> OutputsClasses() {
  constexpr std::array kRelayParameters = {"RelayNo", "FunctionNo", "FunctionCode", "ParameterCode", "SecurityLevels"};
  constexpr std::array kPulseParameters = {"vName",       "vInterval1",      "vInterval2",
                                           "vPulseCount", "vPulseCountTime", "SecurityLevels"};
  return {
      PublicClassOf("clsOctalRelaysBirch", &clsOctalRelaysBirch::Display,
                    {"vName", "vType", "vOption", "vData", "SecurityLevels"}),
      PublicClassOf("clsOnboardOutputsBirch", &clsOnboardOutputsBirch::Display,
                    {"vName", "vType", "vOption", "SecurityLevels"}),
      PublicClassOf("clsOutputFunctionsBirch", &clsOutputFunctionsBirch::Display,
                    {"vName", "vType", "vOption", "vFirstZone", "vSecondZone", "SecurityLevels"}),
      PublicClassOf("clsRelayParam_OakGrand", &clsRelayParam_OakGrand::Display, kRelayParameters),
      PublicClassOf("clsRelayParam_OakMid", &clsRelayParam_OakMid::Display, kRelayParameters),
      PublicClassOf("clsRelayParam_OakBase", &clsRelayParam_OakBase::Display, kRelayParameters),
      PublicClassOf("clsOutputFunctions_Pine", &clsOutputFunctions_Pine::Display, {"vName", "vCode", "vPanelType"}),
      PublicClassOf("clsPulseCount_Pine", &clsPulseCount_Pine::Display, kPulseParameters),
      PublicClassOf("clsPulseCount_Spruce", &clsPulseCount_Spruce::Display, kPulseParameters),
  };
}

}  // namespace orlin
