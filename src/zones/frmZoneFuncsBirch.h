#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The function of a zone on the Birch panels: three positions in three fixed lists, which do not depend on one
/// another.
class frmZoneFuncsBirch {
 public:
  frmZoneFuncsBirch();
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, Value& vTroubleOn,
                       const Value& SecurityLevels);

 private:
  void Form_Load();
  void FillZoneTypes();
  void FillOutputResponse();
  void FillTroubleOn();
  void cmbType_Click();

  Dialog Form{"frmZoneFuncsBirch", 1720, kUsualLife};

  Label lblType{Form, "lblType", 234};
  ComboBox cmbType{Form, "cmbType"};
  Label lblOption{Form, "lblOption", 1722};
  ComboBox cmbOption{Form, "cmbOption"};
  Label lblTroubleOn{Form, "lblTroubleOn", 1721};
  ComboBox cmbTroubleOn{Form, "cmbTroubleOn"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // The position of cmbType after its last change; the loading of the dialog sets it to -1.
  std::int16_t PrevTypeIndex = 0;
};

}  // namespace orlin
