#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One zone function of the Birch panels, picked by its description, and whether its alarms are verified.
class frmZoneFuncDescBirch {
 public:
  frmZoneFuncDescBirch();
  std::int32_t Display(const Value& vName, Value& vRetVal, Value& iFunction, std::int16_t& iZoneAlarmVerify,
                       const Value& SecurityLevels);

 private:
  void cmbZoneFunc_Click();
  /// `result`: 1 if the text holds the name of a zone type whose alarms can be verified, else 0.
  static void GetFunctionDescKeyFob(const std::string& text, std::int16_t& result);

  Dialog Form{"frmZoneFuncDescBirch", "", {.Unloads = true, .HandlesFailures = true}};

  Label lblZoneFuncDesc{Form, "lblZoneFuncDesc", 10551};
  ComboBox cmbZoneFunc{Form, "cmbZoneFunc"};
  CheckBox ChkAlarmVerified{Form, "ChkAlarmVerified", 10552};
  OKButton cmdOK{Form};
  // A plain button: Escape does not press it.
  Button cmdCancel{Form, "cmdCancel", 119};
};

}  // namespace orlin
