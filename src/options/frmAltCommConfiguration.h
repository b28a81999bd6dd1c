#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The mode of the alternate communicator and what it prints.
class frmAltCommConfiguration {
 public:
  frmAltCommConfiguration();
  std::int32_t Display(Value& vMode, Value& vAlarm, Value& vOpenClose, Value& vAll, const Value& SecurityLevels,
                       std::int16_t iItemNo);

 private:
  void FillCommModes(std::int16_t iItemNo);
  void FillPrintLists();
  void cmbMode_Click();

  Dialog Form{"frmAltCommConfiguration", {"AltCommConfiguration", 20011}, kUsualLife};

  Label lblMode{Form, "lblMode", {"&Mode:", 20012}};
  ComboBox cmbMode{Form, "cmbMode"};
  Label lblAlarm{Form, "lblAlarm", {"&Print Alarms And Trouble:", 20013}};
  ComboBox cmbAlarm{Form, "cmbAlarm"};
  Label lblOpensCloses{Form, "lblOpensCloses", {"Print Opens And Closes:", 20014}};
  ComboBox cmbOpensCloses{Form, "cmbOpensCloses"};
  Label lblPrintAll{Form, "lblPrintAll", {"Print All Other Events:", 20015}};
  ComboBox cmbAll{Form, "cmbAll"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // What came in, which mode 1 brings back whenever it is chosen.
  Value StoredAlarm;
  Value StoredOpenClose;
  Value StoredAll;
};

}  // namespace orlin
