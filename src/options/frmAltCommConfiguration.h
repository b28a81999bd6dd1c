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

  Dialog Form{"frmAltCommConfiguration", "AltCommConfiguration", kUsualLife};

  Label lblMode{Form, "lblMode", "&Mode:"};
  ComboBox cmbMode{Form, "cmbMode"};
  Label lblAlarm{Form, "lblAlarm", "&Print Alarms And Trouble:"};
  ComboBox cmbAlarm{Form, "cmbAlarm"};
  Label lblOpensCloses{Form, "lblOpensCloses", "Print Opens And Closes:"};
  ComboBox cmbOpensCloses{Form, "cmbOpensCloses"};
  Label lblPrintAll{Form, "lblPrintAll", "Print All Other Events:"};
  ComboBox cmbAll{Form, "cmbAll"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // What came in, which mode 1 brings back whenever it is chosen.
  Value StoredAlarm;
  Value StoredOpenClose;
  Value StoredAll;
};

}  // namespace orlin
