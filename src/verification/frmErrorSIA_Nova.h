#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/verification.h"

#include "frame/dialog/dialog.h"
#include "verification/sia_parameters.h"

namespace orlin {

/// The review of an account against SIA CP-01: one grid row for each item, of which only the desired value can be
/// edited.
class frmErrorSIA_Nova {
 public:
  frmErrorSIA_Nova();
  std::int32_t Display(const Value& vItemNo, Value& vValue, const Value& SecurityLevels, std::int16_t PanelType,
                       bool bThroughComm);

 private:
  void Form_Initialize();
  void InitParameterTable();
  void ShowItems();
  [[nodiscard]] std::string RowText(std::int32_t index);
  void StoreDesiredValues(Array& values);

  void vsFlexArray1_StartEdit(bool& cancel);
  void vsFlexArray1_KeyPressEdit(int row, int& key);
  void vsFlexArray1_AfterEdit(int row, int col);
  void btnAcceptChanges_Click();
  void btnCancel_Click();

  /// Whether a desired value may stand. One with a bad format is refused here, so that it passes.
  [[nodiscard]] bool IsWithinRange(const std::string& sText, int Row, int Col, double iMin, double iMax);
  /// The row of the parameter table, 1 to 16, that a grid row shows, or 0.
  [[nodiscard]] std::size_t GetItemNofromRowNo(int Row) const;
  /// Whether the key may be typed into the desired value of the row; else it beeps.
  [[nodiscard]] bool IsValid(int KeyAscii, int Row);

  void Tell(std::int16_t text, std::int16_t title);

  Dialog Form{"frmErrorSIA_Nova", 10681, {.Unloads = true, .HandlesFailures = true}, {11700, 7500}};

  Label lblUserWarning{Form, "lblUserWarning", 10683, Label::Text};
  Frame grpErrorDetails{Form, "grpErrorDetails", 10682};
  Grid vsFlexArray1{
      grpErrorDetails,
      "vsFlexArray1",
      {.Rows = 50, .Cols = 6, .FixedRows = 1, .FixedCols = 5, .Common = {.Width = 11000, .Fixed = kFixedCells}}};
  OptionButton OptIgnore{Form, "OptIgnore", 10684, {.Value = true}};
  OptionButton OptAccept{Form, "OptAccept", 10685};
  Button btnAcceptChanges{Form, "btnAcceptChanges", 10680};
  Button btnCancel{Form, "btnCancel", {"Cancel", 119}};

  // The kinds of parameter, each at its row of the table; the first record stays empty.
  std::array<clsErrorMessageNova, kSiaRows> parameters_;
  std::int16_t panelType_ = 0;
  bool throughComm_ = false;
  // The items under review: their numbers, and their present values as they are shown.
  Array itemNos_;
  Array presentValues_;
  // The result of `Display`.
  std::int32_t ReviewAction = 0;
  // The text of the cell before the edit that is under way.
  std::string PrevCellValue;
};

}  // namespace orlin
