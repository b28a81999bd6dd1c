#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"
#include "frame/services/modPanelTypes.h"

namespace orlin {

/// The code of a point on the Oak panels, one list for each of its digits.
class frmPointCodesOak {
 public:
  frmPointCodesOak();
  std::int32_t Display(const Value& PointNum, Value& PointCode, ePanelType panelType);

 private:
  void FillDigitLists();
  void cmbDigit_Click(int Index);
  void cmdOK_Click();
  // Whether the digits may stand together; else the operator has been told.
  bool ValidatePointCode();

  Dialog Form{"frmPointCodesOak", 1386, {.InitialisesServices = true, .ReleasesServices = true}};

  Label lblPointText{Form, "lblPointText"};
  ControlArray<Label, 5, 1> lblDigit{Form, "lblDigit", {1391, 1390, 1389, 1388, 1387}};
  ControlArray<ComboBox, 5, 1> cmbDigit{Form, "cmbDigit"};
  Label lblPointCode{Form, "lblPointCode", {}, Label::CodeOf(lblPointText, cmbDigit)};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  ePanelType PanelType = ePanelType::OakGrand;
  std::int16_t DigitCount = 0;
};

}  // namespace orlin
