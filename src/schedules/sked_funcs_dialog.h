#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/lists.h"

#include "frame/dialog/dialog.h"
#include "frame/services/modPanelTypes.h"
#include "schedules/sked_func_table.h"

namespace orlin {

/// One function as the dialog works with it: what it shows, and the bytes that the operator chose for it.
struct SkedFuncRow {
  /// What the parameters are.
  enum class Kind : std::int16_t { SingleList = 0, NumberOrNone = 8, MultiList = 13 };

  std::int32_t FuncCode = 0;
  std::string FuncText;
  std::int32_t Param1Value = 0;
  std::int32_t Param2Value = 0;
  std::shared_ptr<clsRanges> Param1Ranges;
  std::shared_ptr<clsListItems> Param1Items;
  std::shared_ptr<clsListItems> Param2Items;
  std::optional<AnyControl> Param1Control;
  bool Param1Visible = false;
  std::optional<AnyControl> Param2Control;
  bool Param2Visible = false;
  Kind ParamKind = Kind::NumberOrNone;
  /// Whether the number box takes the given byte.
  bool FillNumber = false;
  /// Whether the number box shows one more than the byte.
  bool ShownOneHigher = false;
  std::string Param1Caption;
  std::string Param2Caption;
};

/// The function of a sked and its two parameters, three bytes. The dialogs of the two families of models are this one
/// with their own functions.
///
/// Every function keeps the values that the operator chose for it; those of the selected one leave the dialog. Its
/// controls, though, are filled from the given bytes each time it is selected. A handler that fails ends without a
/// message.
class SkedFuncsDialog {
 public:
  std::int32_t Display(Value& Byte1, Value& Byte2, Value& Byte3, ePanelType panelType);

 protected:
  SkedFuncsDialog(std::string_view name, const sked::Family& family);
  ~SkedFuncsDialog() = default;

 private:
  void BuildFunctionTable();
  [[nodiscard]] SkedFuncRow BuildRow(const sked::Function& function, const sked::Model& model);
  void FillFunctionList();
  [[nodiscard]] int PositionOf(double code) const;

  void List1_Click();
  void lstParameter1_Click();
  void lstParameter2_Click();
  void lstMSParam1_LostFocus();
  void lstMSParam2_LostFocus();
  void txtParameter1_LostFocus();
  void cmdOK_Click();

  [[nodiscard]] SkedFuncRow& SelectedRow() { return table_[static_cast<std::size_t>(CurrentRow)]; }
  [[nodiscard]] bool IsAcceptable(const std::string& number);
  /// Takes the number box over into the selected row.
  void StoreNumber();

  Dialog Form;

  Label Label1_0{Form, "Label1(0)", 1615};
  ListBox List1{Form, "List1"};
  Label Label1_1{Form, "Label1(1)", 1614};
  TextBox txtParameter1{Form, "txtParameter1"};
  ListBox lstParameter1{Form, "lstParameter1"};
  ListBox lstMSParam1{Form, "lstMSParam1", {.Choice = shown::Choice::Many}};
  Label Label1_2{Form, "Label1(2)", 1613};
  TextBox txtParameter2{Form, "txtParameter2", {.Common = {.Visible = false}}};
  ListBox lstParameter2{Form, "lstParameter2"};
  ListBox lstMSParam2{Form, "lstMSParam2", {.Choice = shown::Choice::Many}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  const sked::Family& family_;
  std::vector<SkedFuncRow> table_;
  ePanelType PanelType{};
  Value SkedByte2;  // as it is shown
  Value SkedByte3;
  std::int16_t CurrentRow = 0;
  bool EntryValid = false;
};

}  // namespace orlin
