#pragma once

#include <cstdint>
#include <optional>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One output function code of the Pine panel and its kin: a row of a long list, or the two numbers that stand for it.
/// The boxes of the two numbers and the list stay in step.
class frmOutputFuncsPine {
 public:
  frmOutputFuncsPine();
  std::int32_t Display(const Value& vName, Value& vCode, std::int32_t panelType);

 private:
  void FillFunctionCodes(std::int32_t panelType);
  void SelectCode(const Value& vCode);
  /// The row of the two numbers in the boxes, where they have one.
  [[nodiscard]] std::optional<int> RowOfDigits() const;
  void DigitsToList();
  void EnableOK();
  /// Takes a key away, with a beep.
  void Swallow(int& key);

  void lstFunctionCode_Click();
  void txtDigit1_GotFocus();
  void txtDigit1_KeyPress(int& key);
  void txtDigit1_Change();
  void txtDigit2_GotFocus();
  void txtDigit2_KeyPress(int& key);
  void txtDigit2_Change();

  Dialog Form{"frmOutputFuncsPine", 1264, kUsualLife};

  Frame fraCode{Form, "fraCode", 1265};
  TextBox txtDigit1{fraCode, "txtDigit1", {.MaxLength = 1, .Common = {.Spoken = 20043}}};
  Label lblComma{fraCode, "lblComma", ",", Label::Separator};
  TextBox txtDigit2{fraCode, "txtDigit2", {.MaxLength = 2, .Common = {.Spoken = 20044}}};
  Label txtFunctionCode{fraCode, "txtFunctionCode", {}, Label::Unit};
  ListBox lstFunctionCode{Form, "lstFunctionCode"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // Set while code changes the boxes or the list.
  bool CodeBusy = false;
  // The highest first number, and the highest second number that goes with it.
  std::int16_t MaxDigit1 = 0;
  std::int16_t MaxDigit2 = 0;
};

}  // namespace orlin
