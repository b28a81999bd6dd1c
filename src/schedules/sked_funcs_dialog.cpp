#include "schedules/sked_funcs_dialog.h"

#include <algorithm>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

/// Elements of value lists have their position as the key.
template <class List>
std::string NextKey(const List& list) {
  return std::to_string(list.Count() + 1);
}

std::shared_ptr<clsListItems> ItemsOf(const sked::Parameter& param, const sked::Model& model) {
  if (param.Items == nullptr) return nullptr;
  auto items = std::make_shared<clsListItems>();
  for (std::size_t i = 0; i < param.Items->CountOn(model); ++i) {
    items->Add(NextKey(*items), GetLocalText(param.Items->FirstText + static_cast<int>(i)), param.Items->Values[i]);
  }
  return items;
}

std::shared_ptr<clsRanges> RangesOf(sked::Choice choice, const sked::Model& model) {
  if (choice != sked::Choice::Number && choice != sked::Choice::NumberFromOne) return nullptr;
  const auto& numbers = choice == sked::Choice::NumberFromOne ? model.Codes3And4 : model.Codes6And7;
  auto ranges = std::make_shared<clsRanges>();
  for (const auto& range : {numbers.First, numbers.Second}) {
    if (range.Max != 0) ranges->Add(NextKey(*ranges), range.Min, range.Max);
  }
  return ranges;
}

SkedFuncRow::Kind KindOf(sked::Choice choice) {
  if (choice == sked::Choice::Multi) return SkedFuncRow::Kind::MultiList;
  if (choice == sked::Choice::Single) return SkedFuncRow::Kind::SingleList;
  return SkedFuncRow::Kind::NumberOrNone;
}

void AddChoice(ListBox& list, const clsListItem& item) { list.AddItem(item.Item, ToLong(item.Value)); }

// The byte is converted at each item: one that is no number fails there, behind the first item.

/// Fills a list of many choices, marks those of the given byte and adds them to the row's value.
void FillMultiList(ListBox& list, const clsListItems& items, const Value& given, std::int32_t& paramValue) {
  list.Clear();
  for (const auto& item : items) {
    AddChoice(list, *item);
    const auto bit = ToLong(item->Value);
    if ((ToLong(given) & bit) != bit) continue;
    list.SetSelected(list.NewIndex(), true);
    paramValue |= bit;
  }
}

/// Fills a list of one choice and selects that of the given byte, which stores it in the row.
void FillSingleList(ListBox& list, const clsListItems& items, const Value& given) {
  list.Clear();
  for (const auto& item : items) {
    AddChoice(list, *item);
    if (ToLong(item->Value) == ToLong(given)) list.SetListIndex(list.NewIndex());
  }
}

std::int32_t MaskOf(const ListBox& list) {
  std::int32_t mask = 0;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.Selected(row)) mask |= list.ItemData(row);
  }
  return mask & 0xFF;
}

}  // namespace

SkedFuncsDialog::SkedFuncsDialog(std::string_view name, const sked::Family& family)
    : Form(name, 1612, kUsualLife), family_(family) {
  const auto silently = [this](void (SkedFuncsDialog::*handler)()) {
    return [this, handler] { SkipFailure([&] { (this->*handler)(); }); };
  };
  List1.Click = silently(&SkedFuncsDialog::List1_Click);
  lstParameter1.Click = silently(&SkedFuncsDialog::lstParameter1_Click);
  lstParameter2.Click = silently(&SkedFuncsDialog::lstParameter2_Click);
  lstMSParam1.LostFocus = silently(&SkedFuncsDialog::lstMSParam1_LostFocus);
  lstMSParam2.LostFocus = silently(&SkedFuncsDialog::lstMSParam2_LostFocus);
  txtParameter1.LostFocus = silently(&SkedFuncsDialog::txtParameter1_LostFocus);
  cmdOK.Click = silently(&SkedFuncsDialog::cmdOK_Click);
}

std::int32_t SkedFuncsDialog::Display(Value& Byte1, Value& Byte2, Value& Byte3, ePanelType panelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    PanelType = panelType;
    SkedByte2 = Byte2;
    SkedByte3 = Byte3;
    // Compared as a number of any size: where it is no code, the first function stands for it.
    const auto code = ToDouble(Byte1);
    const bool shownOneHigher = std::ranges::any_of(family_.Functions, [&](const auto& function) {
      return function.Code == code && function.ParamChoice == sked::Choice::NumberFromOne;
    });
    // Rounded only where it is shown, like the bytes that come in.
    if (shownOneHigher) SkedByte2 = ToDouble(Byte2) + 1;
    BuildFunctionTable();
    FillFunctionList();
    List1.SelectRow(family_.CodeIsRow ? ToLong(Byte1) : PositionOf(code));
  };
  steps.Encode = [&] {
    const auto& row = SelectedRow();
    Byte1 = row.FuncCode;
    Byte2 = row.Param1Value;
    Byte3 = row.Param2Value;
  };
  return RunDisplay(Form, steps);
}

// ---------------------------------------------------------------------------------------------- table

void SkedFuncsDialog::BuildFunctionTable() {
  const auto model = std::ranges::find(family_.Models, PanelType, &sked::Model::PanelType);
  if (model == family_.Models.end()) throw Failure(failures::InvalidCall);
  for (const auto& function : family_.Functions) {
    if (function.Code <= model->LastCode || function.Code >= 28) table_.push_back(BuildRow(function, *model));
  }
}

SkedFuncRow SkedFuncsDialog::BuildRow(const sked::Function& function, const sked::Model& model) {
  SkedFuncRow row;
  row.FuncCode = function.Code;
  row.FuncText = std::to_string(function.Code) + "  " + GetLocalText(function.Text);
  row.ParamKind = KindOf(function.ParamChoice);
  row.Param1Ranges = RangesOf(function.ParamChoice, model);
  row.FillNumber = row.Param1Ranges != nullptr;
  row.ShownOneHigher = function.ParamChoice == sked::Choice::NumberFromOne;
  row.Param1Items = ItemsOf(function.Param1, model);
  row.Param2Items = ItemsOf(function.Param2, model);
  const bool multi = row.ParamKind == SkedFuncRow::Kind::MultiList;
  if (function.Param1.Caption != 0) {
    row.Param1Control = multi ? lstMSParam1 : lstParameter1;
    if (row.FillNumber) row.Param1Control = txtParameter1;
    row.Param1Visible = true;
    row.Param1Caption = GetLocalText(function.Param1.Caption);
  }
  if (function.Param2.Caption != 0) {
    row.Param2Control = multi ? lstMSParam2 : lstParameter2;
    row.Param2Visible = true;
    row.Param2Caption = GetLocalText(function.Param2.Caption);
  }
  return row;
}

void SkedFuncsDialog::FillFunctionList() {
  List1.Clear();
  for (const auto& row : table_) List1.AddItem(row.FuncText, row.FuncCode);
}

int SkedFuncsDialog::PositionOf(double code) const {
  const auto row = std::ranges::find(table_, code, &SkedFuncRow::FuncCode);
  return row == table_.end() ? 0 : static_cast<int>(row - table_.begin());
}

// ---------------------------------------------------------------------------------------------- handlers

void SkedFuncsDialog::List1_Click() {
  CurrentRow = List1.ListIndex();
  auto& row = SelectedRow();
  for (const AnyControl& control : {AnyControl(txtParameter1), AnyControl(lstParameter1), AnyControl(lstParameter2),
                                    AnyControl(lstMSParam1), AnyControl(lstMSParam2)}) {
    control.SetVisible(false);
  }
  if (row.Param1Control) row.Param1Control->SetVisible(row.Param1Visible);
  Label1_1.SetCaption(GetLocalText(1713) + row.Param1Caption);
  if (row.Param2Control) row.Param2Control->SetVisible(row.Param2Visible);
  Label1_2.SetCaption(GetLocalText(1714) + row.Param2Caption);

  switch (row.ParamKind) {
    case SkedFuncRow::Kind::MultiList:
      if (row.Param1Visible) FillMultiList(lstMSParam1, *row.Param1Items, SkedByte2, row.Param1Value);
      if (row.Param2Visible) FillMultiList(lstMSParam2, *row.Param2Items, SkedByte3, row.Param2Value);
      break;
    case SkedFuncRow::Kind::SingleList:
      if (row.Param1Visible) FillSingleList(lstParameter1, *row.Param1Items, SkedByte2);
      if (row.Param2Visible) FillSingleList(lstParameter2, *row.Param2Items, SkedByte3);
      break;
    case SkedFuncRow::Kind::NumberOrNone:
      if (row.FillNumber && row.Param1Visible) txtParameter1.SetText(ToText(ToLong(SkedByte2)));
      break;
  }
}

void SkedFuncsDialog::lstParameter1_Click() {
  SelectedRow().Param1Value = lstParameter1.ItemData(lstParameter1.ListIndex());
}

void SkedFuncsDialog::lstParameter2_Click() {
  SelectedRow().Param2Value = lstParameter2.ItemData(lstParameter2.ListIndex());
}

void SkedFuncsDialog::lstMSParam1_LostFocus() { SelectedRow().Param1Value = MaskOf(lstMSParam1); }

void SkedFuncsDialog::lstMSParam2_LostFocus() { SelectedRow().Param2Value = MaskOf(lstMSParam2); }

void SkedFuncsDialog::txtParameter1_LostFocus() {
  EntryValid = true;
  if (IsAcceptable(txtParameter1.Text())) return StoreNumber();
  EntryValid = false;
  Form.Beep();
  txtParameter1.SetText("");
}

bool SkedFuncsDialog::IsAcceptable(const std::string& number) {
  const auto value = NumericValue(number);
  const auto& ranges = SelectedRow().Param1Ranges;
  if (number.empty() || value >= 255 || ranges == nullptr) return false;
  return std::any_of(ranges->begin(), ranges->end(),
                     [&](const auto& range) { return ToDouble(range->Min) <= value && value <= ToDouble(range->Max); });
}

void SkedFuncsDialog::StoreNumber() {
  auto& row = SelectedRow();
  const std::int32_t number = ToByte(txtParameter1.Text());
  row.Param1Value = row.ShownOneHigher ? number - 1 : number;
}

void SkedFuncsDialog::cmdOK_Click() {
  EntryValid = true;
  // Ends the edit in the control that had the focus.
  cmdOK.SetFocus();
  const auto& row = SelectedRow();
  if (row.FillNumber) {
    txtParameter1_LostFocus();
    if (!EntryValid) return;
  }
  // A function without parameters takes what a number row has left in the box.
  if (row.ParamKind == SkedFuncRow::Kind::NumberOrNone && !txtParameter1.Text().empty()) StoreNumber();
  Form.HideWith(ExitCode::OK);
}

}  // namespace orlin
