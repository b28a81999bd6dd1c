#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The sensitivity of a wireless sensor: one list for motion sensors, one for inertia sensors.
class frmTransceiverConfiguration {
 public:
  std::int32_t Display(std::int16_t vOption, Value& res);

 private:
  void InitTypes();
  void SelectSensitivity(std::int16_t vOption, std::int16_t raw);
  void SetFrames(std::int16_t vOption);

  Dialog Form{"frmTransceiverConfiguration", 10642, {.HandlesFailures = true}};

  Frame fraMotionSensor{Form, "fraMotionSensor", 10639, {.Enabled = false}};
  Label lblSensitivityRange{fraMotionSensor, "lblSensitivityRange", 10640};
  ComboBox cmbMotionSensor{fraMotionSensor, "cmbMotionSensor"};
  Frame fraInertiaSensor{Form, "fraInertiaSensor", 10641, {.Enabled = false}};
  Label lblInertiaRange{fraInertiaSensor, "lblInertiaRange", 10640};
  ComboBox cmbInertiaSensor{fraInertiaSensor, "cmbInertiaSensor"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};
};

}  // namespace orlin
