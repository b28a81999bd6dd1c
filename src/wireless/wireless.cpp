#include "OrlinCustomDialogs/wireless.h"

#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "registers.h"
#include "wireless/frmTransceiverConfiguration.h"
#include "wireless/frmWSNDeviceTypeInput.h"
#include "wireless/frmWSNDeviceTypeOutput.h"
#include "wireless/frmWirelessPointID.h"

namespace orlin {

std::int32_t clsWSNDeviceTypeInput::Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption,
                                            const Value& vfreeOutputs, const Value& SecurityLevels) {
  return CallDialog<frmWSNDeviceTypeInput>(vDeviceType, vMappedOutput, vOption, vfreeOutputs, SecurityLevels);
}

std::int32_t clsWSNDeviceTypeOutput::Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption,
                                             const Value& vFreeInputs, const Value& SecurityLevels) {
  return CallDialog<frmWSNDeviceTypeOutput>(vDeviceType, vMappedOutput, vOption, vFreeInputs, SecurityLevels);
}

std::int32_t clsWSNSensorSensitivity::Display(const std::int16_t& vOption, Value& res) {
  return CallDialog<frmTransceiverConfiguration>(vOption, res);
}

std::int32_t clsWirelessPointID::Display(const std::int16_t& iOption1, const std::int16_t& iOption2, Value& vType,
                                         const Value& SecurityLevels) {
  return CallDialog<frmWirelessPointID>(iOption1, iOption2, vType, SecurityLevels);
}

std::vector<PublicClass> WirelessClasses() {
  return {
      PublicClassOf("clsWSNDeviceTypeInput", &clsWSNDeviceTypeInput::Display,
                    {"vDeviceType", "vMappedOutput", "vOption", "vfreeOutputs", "SecurityLevels"}),
      PublicClassOf("clsWSNDeviceTypeOutput", &clsWSNDeviceTypeOutput::Display,
                    {"vDeviceType", "vMappedOutput", "vOption", "vFreeInputs", "SecurityLevels"}),
      PublicClassOf("clsWSNSensorSensitivity", &clsWSNSensorSensitivity::Display, {"vOption", "res"}),
      PublicClassOf("clsWirelessPointID", &clsWirelessPointID::Display,
                    {"iOption1", "iOption2", "vType", "SecurityLevels"}),
  };
}

}  // namespace orlin
