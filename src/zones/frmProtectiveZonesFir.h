#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The five characters of a protective zone's function code on the Fir panel, one list for each. The items of the first
/// list depend on the second character.
class frmProtectiveZonesFir {
 public:
  frmProtectiveZonesFir();
  std::int32_t Display(Value& ZoneCode);

 private:
  void FillDigitLists();
  void FillDigitZeroList(const std::string& code);
  void cmbDigit_Click(int Index);
  void cmdCancel_Click();

  Dialog Form{"frmProtectiveZonesFir", 10928, {.ReleasesServices = true}};

  Label lblZoneText{Form, "lblZoneText", 10873};
  ControlArray<Label, 5> lblDigit{Form, "lblDigit", {10871, 10872, 10869, 10870, 10868}};
  ControlArray<ComboBox, 5> cmbDigit{Form, "cmbDigit"};
  Label lblZoneCode{Form, "lblZoneCode", "8888", Label::CodeOf(lblZoneText, cmbDigit)};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // -1 when the code shown cannot be accepted, else 0.
  std::int16_t CodeInvalid = 0;
};

}  // namespace orlin
