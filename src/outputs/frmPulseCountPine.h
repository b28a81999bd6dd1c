#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"
#include "frame/services/modPanelTypes.h"

namespace orlin {

/// A pulse count: how many pulses, within what time. The choice of times depends on the count.
class frmPulseCountPine {
 public:
  frmPulseCountPine();
  /// Behaves alike for every panel type.
  std::int32_t Display(const Value& vName, const Value& vInterval1, const Value& vInterval2, Value& vPulseCount,
                       Value& vPulseCountTime, const Value& SecurityLevels, ePanelType panelType);

 private:
  /// Fills the list of counts and selects the stored one; gives its position.
  std::int16_t FillPulseCount(std::int16_t interval1, std::int16_t interval2, std::int16_t count);
  void FillPulseTime(std::int16_t count, std::int16_t time);

  void cbPulseCount_Click();

  Dialog Form{"frmPulseCountPine", 1460, kUsualLife};

  ComboBox cbPulseCount{Form, "cbPulseCount"};
  Label lblWithin{Form, "lblWithin", 1463};
  ComboBox cbPulseCountTime{Form, "cbPulseCountTime"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  std::int16_t Interval1 = 0;
  std::int16_t Interval2 = 0;
};

}  // namespace orlin
