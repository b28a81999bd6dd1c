#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One output function of the Birch panels: a function, an option whose list depends on the function, and two zones,
/// whose boxes are open for some functions only.
class frmOutputFuncsBirch {
 public:
  frmOutputFuncsBirch();
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, Value& vFirstZone, Value& vSecondZone,
                       const Value& SecurityLevels);

 private:
  void FillOutputFunctions();
  void FillOutputOptions();
  void OpenZoneBoxes(bool first, bool second);
  /// A closed box is empty, cannot be typed in, and Tab passes it by.
  void SetZoneLocked(TextBox& box, bool locked);
  void ApplyRights();

  void cmbType_Click();
  void txtFirstZone_Change();
  void txtSecondZone_Change();

  Dialog Form{"frmOutputFuncsBirch", 1264, kUsualLife};

  Label lblType{Form, "lblType", 1351};
  ComboBox cmbType{Form, "cmbType"};
  Label lblOption{Form, "lblOption", 1350};
  ComboBox cmbOption{Form, "cmbOption"};
  Frame fraZones{Form, "fraZones", 1347};
  Label lblFirstZone{fraZones, "lblFirstZone", 1349};
  TextBox txtFirstZone{fraZones, "txtFirstZone", {.MaxLength = 3}};
  Label lblSecondZone{fraZones, "lblSecondZone", 1348};
  TextBox txtSecondZone{fraZones, "txtSecondZone", {.MaxLength = 3}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // The last text of each zone box that passed the digit test; it survives while the box is closed.
  std::string LastFirstZone;
  std::string LastSecondZone;
  // Whether changes of the zone boxes are tested.
  bool ZoneFilterOn = false;
};

}  // namespace orlin
