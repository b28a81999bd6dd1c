#include "schedules/sked_funcs_dialog.h"

#include <algorithm>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

/// The functions whose number is shown one higher than the byte.
bool IsShownOneHigher(double code) { return code == 3 || code == 4; }

/// Elements of value lists have their position as the key.
template <class List>
std::string NextKey(const List& list) {
  return std::to_string(list.Count() + 1);
}

std::size_t CountOf(const SkedItems& items, const SkedModel& model) {
  if (&items == &kListA) return model.ItemsOfA;
  if (&items == &kListD) return model.ItemsOfD;
  if (&items == &kListH) return model.ItemsOfH;
  return items.Count;
}

std::shared_ptr<clsListItems> ItemsOf(const SkedParam& param, const SkedModel& model) {
  if (param.Items == nullptr) return nullptr;
  auto items = std::make_shared<clsListItems>();
  for (std::size_t i = 0; i < CountOf(*param.Items, model); ++i) {
    const auto text = GetLocalText(static_cast<std::int16_t>(param.Items->FirstText + static_cast<int>(i)));
    items->Add(NextKey(*items), text, param.Items->Values[i]);
  }
  return items;
}

std::shared_ptr<clsRanges> RangesOf(const SkedParam& param, const SkedModel& model) {
  if (param.Choice != SkedChoice::Number && param.Choice != SkedChoice::NumberFromOne) return nullptr;
  const auto& limits = param.Choice == SkedChoice::NumberFromOne ? model.Codes3And4 : model.Codes6And7;
  auto ranges = std::make_shared<clsRanges>();
  for (const auto& interval : {limits.First, limits.Second}) {
    if (interval.Min <= interval.Max) ranges->Add(NextKey(*ranges), interval.Min, interval.Max);
  }
  return ranges;
}

SkedParamKind KindOf(SkedChoice choice) {
  if (choice == SkedChoice::Multi) return SkedParamKind::MultiList;
  if (choice == SkedChoice::Single) return SkedParamKind::SingleList;
  return SkedParamKind::NumberOrNone;
}

void AddChoice(ListBox& list, const clsListItem& item) { list.AddItem(item.Item, ToLong(item.Value)); }

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

SkedFuncsDialog::SkedFuncsDialog(std::string_view name, const SkedFamily& family)
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
    if (IsShownOneHigher(code)) SkedByte2 = ToDouble(Byte2) + 1;
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
  const auto& models = family_.Models;
  const auto model =
      std::find_if(models.begin(), models.end(), [&](const auto& known) { return known.PanelType == PanelType; });
  if (model == models.end()) throw Failure(failures::InvalidCall);
  for (const auto& function : family_.Functions) {
    if (!model->MissingCodes.Holds(function.Code)) table_.push_back(BuildRow(function, *model));
  }
}

SkedFuncRow SkedFuncsDialog::BuildRow(const SkedFunc& function, const SkedModel& model) {
  SkedFuncRow row;
  row.FuncCode = function.Code;
  row.FuncText = std::to_string(function.Code) + "  " + GetLocalText(function.Text);
  row.ParamKind = KindOf(function.Param1.Choice);
  row.Param1Ranges = RangesOf(function.Param1, model);
  row.FillNumber = row.Param1Ranges != nullptr;
  row.Param1Items = ItemsOf(function.Param1, model);
  row.Param2Items = ItemsOf(function.Param2, model);
  const bool multi = row.ParamKind == SkedParamKind::MultiList;
  if (function.Param1.Choice != SkedChoice::None) {
    row.Param1Control = row.FillNumber ? AnyControl(txtParameter1) : AnyControl(multi ? lstMSParam1 : lstParameter1);
    row.Param1Visible = true;
    row.Param1Caption = GetLocalText(function.Param1.Caption);
  }
  if (function.Param2.Choice != SkedChoice::None) {
    row.Param2Control = AnyControl(multi ? lstMSParam2 : lstParameter2);
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
  const auto row =
      std::find_if(table_.begin(), table_.end(), [&](const auto& known) { return known.FuncCode == code; });
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
    case SkedParamKind::MultiList:
      if (row.Param1Visible) FillMultiList(lstMSParam1, *row.Param1Items, SkedByte2, row.Param1Value);
      if (row.Param2Visible) FillMultiList(lstMSParam2, *row.Param2Items, SkedByte3, row.Param2Value);
      break;
    case SkedParamKind::SingleList:
      if (row.Param1Visible) FillSingleList(lstParameter1, *row.Param1Items, SkedByte2);
      if (row.Param2Visible) FillSingleList(lstParameter2, *row.Param2Items, SkedByte3);
      break;
    case SkedParamKind::NumberOrNone:
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
  row.Param1Value = IsShownOneHigher(row.FuncCode) ? number - 1 : number;
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
  if (row.ParamKind == SkedParamKind::NumberOrNone && !txtParameter1.Text().empty()) StoreNumber();
  Form.HideWith(ExitCode::OK);
}

}  // namespace orlin
