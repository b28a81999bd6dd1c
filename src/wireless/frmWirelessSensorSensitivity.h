#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// A sensitivity with two lists, of which one is in use. No public class opens it; the dialog of transceivers serves
/// the same values.
class frmWirelessSensorSensitivity {
 public:
  std::int32_t Display(std::int16_t iOption, Value& vValue, const Value& SecurityLevels);

 private:
  void FillType1();
  void FillType2();
  void SelectType1(std::int16_t raw);

  Dialog Form{"frmWirelessSensorSensitivity",
              "Wireless  Sensor Sensitivity",
              {.ReleasesServices = true, .Unloads = true, .HandlesFailures = true}};

  Label lblOptions{Form, "lblOptions", "Options:"};
  ComboBox cmbType1{Form, "cmbType1"};
  ComboBox cmbType2{Form, "cmbType2"};
  OKButton cmdOK{Form, "&OK"};
  CancelButton cmdCancel{Form, "&Cancel"};
};

}  // namespace orlin
