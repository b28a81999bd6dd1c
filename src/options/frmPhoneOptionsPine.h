#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"
#include "frame/services/modPanelTypes.h"

namespace orlin {

/// How a panel responds to a phone line fault: three settings, tied together by one rule on OK.
class frmPhoneOptionsPine {
 public:
  frmPhoneOptionsPine();
  std::int32_t Display(Value& vTrouble, Value& vOn, Value& vOff, const Value& SecurityLevels, std::int32_t panelType);

 private:
  /// Captions, record names and layout that depend on the panel model.
  void ApplyPanelType();
  void cmdOK_Click();

  Dialog Form{"frmPhoneOptionsPine", 1379, kUsualLife};

  // The tags are the names of the records in the collection of rights.
  CheckBox Check1{Form, "Check1", 1382, {.Tag = "Enable Supervision (System Trouble at Cmd Ctr)"}};
  CheckBox Check2{Form, "Check2", 1381, {.Tag = "Burg Alarm and Strobe Functions, All or Part On"}};
  CheckBox Check3{Form, "Check3", 1380, {.Tag = "Burg Alarm and Strobe Functions, Off"}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  ePanelType PanelType{};
};

}  // namespace orlin
