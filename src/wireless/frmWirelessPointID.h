#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The identification number of a wireless device, a whole number of 48 bits.
class frmWirelessPointID {
 public:
  frmWirelessPointID();
  std::int32_t Display(std::int16_t iOption1, std::int16_t iOption2, Value& vType, const Value& SecurityLevels);

 private:
  void cmdOK_Click();

  Dialog Form{"frmWirelessPointID", 10673, {.ReleasesServices = true, .Unloads = true, .HandlesFailures = true}};

  Frame Frame1{Form, "Frame1", 1169};
  TextBox txtValue{Frame1, "txtValue", {.MaxLength = 15}};
  Label Label2{Frame1, "Label2", 1170};
  TextBox txtIncrement{Frame1, "txtIncrement", {.Text = "1"}};
  Label Label1{Form, "Label1", 1171};
  TextBox txtRanges{Form, "txtRanges", {.MultiLine = true}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};
};

}  // namespace orlin
