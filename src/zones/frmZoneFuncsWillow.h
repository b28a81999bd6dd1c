#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The four digits of a zone's function code on the Willow panels, one list for each.
class frmZoneFuncsWillow {
 public:
  frmZoneFuncsWillow();
  std::int32_t Display(const Value& ZoneNum, Value& ZoneCode);

 private:
  void FillDigitLists();
  void cmbDigit_Click();
  void cmdOK_Click();
  /// Whether the first two digits may stand together; else the operator has been told.
  bool ValidateZoneCode();

  Dialog Form{"frmZoneFuncsWillow", 1748, {.InitialisesServices = true, .ReleasesServices = true}};

  Label lblZoneText{Form, "lblZoneText", 1750};
  ControlArray<Label, 4> lblDigit{Form, "lblDigit", {1391, 1390, 1389, 1388}};
  ControlArray<ComboBox, 4> cmbDigit{Form, "cmbDigit"};
  Label lblZoneCode{Form, "lblZoneCode", "8888", Label::CodeOf(lblZoneText, cmbDigit)};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};
};

}  // namespace orlin
