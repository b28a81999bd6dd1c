#include "verification/frmErrorSIA_Nova.h"

#include <algorithm>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "verification/grid_edit.h"

namespace orlin {
namespace {

enum Column { kName, kArea, kPresentValue, kMin, kMax, kDesiredValue };
struct GridColumn {
  std::int16_t Title;
  int Width;
};
constexpr std::array<GridColumn, 6> kColumns = {{
    {10701, 2700},
    {10702, 1300},
    {10703, 1300},
    {10704, 1800},
    {10705, 2200},
    {10706, 1600},
}};

constexpr std::string_view kLetters = "ABC";

constexpr std::int32_t kKeepExisting = 1;
constexpr std::int32_t kStoreDesired = 2;

constexpr double kNoBound = -1;

char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool IsMultipleOfFive(const std::string& text) {
  try {
    return ToInteger(text) % 5 == 0;
  } catch (const Failure&) {
    return false;
  }
}

bool HasBadFormat(const std::string& sText, SiaFormat format) {
  switch (format) {
    case SiaFormat::PointOrLetter:
      if (!sText.empty() && kLetters.find(UpperCase(sText.front())) != std::string_view::npos) return sText.size() > 1;
      return !IsNumeric(std::string_view(sText));
    case SiaFormat::ByFives:
      return !IsMultipleOfFive(sText);
    case SiaFormat::Any:
      break;
  }
  return false;
}

}  // namespace

frmErrorSIA_Nova::frmErrorSIA_Nova() {
  // `Display` sets the captions, and the dialog stays where the host puts it.
  Form.OnLoad = [] {};
  Form.MakeDefault(btnAcceptChanges);
  Form.MakeCancel(btnCancel);
  vsFlexArray1.DblClick = [this] { vsFlexArray1.EditCell(); };
  vsFlexArray1.StartEdit = [this](int, int, bool& cancel) { vsFlexArray1_StartEdit(cancel); };
  vsFlexArray1.KeyPressEdit = [this](int row, int, int& key) { vsFlexArray1_KeyPressEdit(row, key); };
  vsFlexArray1.AfterEdit = [this](int row, int col) { vsFlexArray1_AfterEdit(row, col); };
  btnAcceptChanges.Click = [this] { btnAcceptChanges_Click(); };
  btnCancel.Click = [this] { btnCancel_Click(); };
  Form_Initialize();
}

void frmErrorSIA_Nova::Form_Initialize() {
  for (std::size_t i = 0; i < kColumns.size(); ++i) {
    const auto col = static_cast<int>(i);
    SkipFailure([&] { vsFlexArray1.SetCellText(0, col, GetLocalText(kColumns[i].Title)); },
                [&] { vsFlexArray1.SetColAlignment(col, kLeftAligned); },
                [&] { vsFlexArray1.SetColWidth(col, kColumns[i].Width); });
  }
  PrevCellValue = kNoEdit;
}

std::int32_t frmErrorSIA_Nova::Display(const Value& vItemNo, Value& vValue, const Value& SecurityLevels,
                                       std::int16_t PanelType, bool bThroughComm) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    ApplySecurityLevels(
        Form.SecurityLevels(),
        {{kEveryRecord, {grpErrorDetails, btnAcceptChanges, lblUserWarning, OptAccept, OptIgnore, vsFlexArray1}}});
    panelType_ = PanelType;
    throughComm_ = bThroughComm;
    InitParameterTable();
    itemNos_ = AsArray(vItemNo);
    presentValues_ = AsArray(vValue);
    ShowItems();
  };
  steps.Conclude = [&] {
    if (ReviewAction == kStoreDesired) StoreDesiredValues(AsArray(vValue));
    return ReviewAction;
  };
  steps.Report = [](const Failure& failure) {
    SkipFailure([&] { ReportFault({"frmErrorSIA_Nova", "Display()", true}, failure, failure.Description()); });
  };
  steps.FailureResult = 0;
  return RunDisplay(Form, steps);
}

void frmErrorSIA_Nova::InitParameterTable() {
  Form.LoadCaptions();
  const auto forEachRow = [this](auto fill) {
    for (std::size_t row = 1; row < parameters_.size(); ++row) fill(parameters_[row], SiaParameters()[row]);
  };
  forEachRow([](auto& parameter, const auto& row) { parameter.ParameterName = GetLocalText(row.Name); });
  forEachRow([&](auto& parameter, const auto& row) { parameter.SIARangeMax = ContentFor(row.Max, panelType_); });
  forEachRow([&](auto& parameter, const auto& row) { parameter.SIARangeMin = ContentFor(row.Min, panelType_); });
  forEachRow([&](auto& parameter, const auto& row) {
    parameter.DefaultVal = ContentFor(row.Default, panelType_);
    parameter.AllowedCharacters = row.AllowedCharacters;
    parameter.AllowedString = row.AllowedString;
  });
}

void frmErrorSIA_Nova::ShowItems() {
  const auto count = presentValues_.UpperBound() + 1;
  for (std::int32_t i = 0; i < count; ++i) vsFlexArray1.AddItem(RowText(i), i + 1);
  // The rows that the grid came with.
  while (vsFlexArray1.Rows() > count + 1) vsFlexArray1.RemoveItem(count + 1);
}

std::string frmErrorSIA_Nova::RowText(std::int32_t index) {
  const auto itemNo = ToLong(itemNos_.At(index));
  auto& presentValue = presentValues_.At(index);
  const auto row = SiaRowOf(itemNo);
  if (row == 0) return "";
  presentValue = ShownPresentValue(SiaParameters()[row], presentValue);
  const auto area = AreaOf(SiaParameters()[row], itemNo);
  const auto& parameter = parameters_[row];
  const auto areaText = area == 0 ? std::string(kWithoutArea) : std::to_string(area);
  return parameter.ParameterName + "\t" + areaText + "\t" + ToText(presentValue) + "\t" +
         ToText(parameter.SIARangeMin) + "\t" + ToText(parameter.SIARangeMax) + ToText(parameter.AllowedString) + "\t" +
         ToText(parameter.DefaultVal);
}

void frmErrorSIA_Nova::StoreDesiredValues(Array& values) {
  for (std::int32_t i = 0; i <= values.UpperBound(); ++i) {
    vsFlexArray1.SetCellText(i + 1, kDesiredValue, StoredForm(vsFlexArray1.CellText(i + 1, kDesiredValue)));
    values.At(i) = vsFlexArray1.CellText(i + 1, kDesiredValue);
  }
}

// ---------------------------------------------------------------------------------------------- editing

void frmErrorSIA_Nova::vsFlexArray1_StartEdit(bool& cancel) {
  const int row = vsFlexArray1.Row();
  const int col = vsFlexArray1.Col();
  if (PrevCellValue == kNoEdit) {
    PrevCellValue = vsFlexArray1.CellText(row, col);
  } else {
    cancel = true;
  }
  if (col != kDesiredValue) cancel = true;
  if (vsFlexArray1.CellText(row, col) == vsFlexArray1.CellText(row, col - 1)) {
    Tell(10710, 10711);
    PrevCellValue = kNoEdit;
    cancel = true;
  }
}

void frmErrorSIA_Nova::vsFlexArray1_KeyPressEdit(int row, int& key) {
  if (!IsValid(key, row)) key = 0;
}

bool frmErrorSIA_Nova::IsValid(int KeyAscii, int Row) {
  if (KeyAscii == keys::Enter || KeyAscii == keys::Escape || KeyAscii == keys::Backspace) return true;
  const auto& allowed = parameters_[GetItemNofromRowNo(Row)].AllowedCharacters;
  const bool isAscii = KeyAscii > 0 && KeyAscii < 128;
  if (isAscii && allowed.find(UpperCase(static_cast<char>(KeyAscii))) != std::string::npos) return true;
  Form.Beep();
  return false;
}

void frmErrorSIA_Nova::vsFlexArray1_AfterEdit(int row, int col) {
  const std::string text = vsFlexArray1.CellText(vsFlexArray1.Row(), vsFlexArray1.Col());
  if (!IsWithinRange(text, row, col, vsFlexArray1.CellNumber(row, kMin), vsFlexArray1.CellNumber(row, kMax))) {
    Tell(10708, 10709);
    vsFlexArray1.SetCellText(row, col, PrevCellValue);
  }
  PrevCellValue = kNoEdit;
}

bool frmErrorSIA_Nova::IsWithinRange(const std::string& sText, int Row, int Col, double iMin, double iMax) {
  const auto format = SiaParameters()[GetItemNofromRowNo(Row)].Format;
  const bool badFormat = HasBadFormat(sText, format);
  if (format == SiaFormat::PointOrLetter) {
    std::string text = sText;
    std::transform(text.begin(), text.end(), text.begin(), UpperCase);
    vsFlexArray1.SetCellText(Row, Col, text);
  }
  if (badFormat) {
    Tell(1151, 262);
    vsFlexArray1.SetCellText(Row, Col, PrevCellValue);
    return true;
  }
  if (!IsNumeric(std::string_view(sText))) return format == SiaFormat::PointOrLetter;
  const double value = ToDouble(sText);
  return (iMin == kNoBound || value >= iMin) && (iMax == kNoBound || value <= iMax);
}

std::size_t frmErrorSIA_Nova::GetItemNofromRowNo(int Row) const { return SiaRowOf(ToLong(itemNos_.At(Row - 1))); }

void frmErrorSIA_Nova::Tell(std::int16_t text, std::int16_t title) {
  SkipFailure([&] { Form.ShowMessage(GetLocalText(text), Message::OkOnly, GetLocalText(title)); });
}

// ---------------------------------------------------------------------------------------------- outcomes

void frmErrorSIA_Nova::btnAcceptChanges_Click() {
  if (OptIgnore.Value()) {
    Tell(10698, 10699);
    ReviewAction = kKeepExisting;
  } else if (OptAccept.Value()) {
    Tell(10700, 10699);
    ReviewAction = kStoreDesired;
  }
  Form.Hide();
}

void frmErrorSIA_Nova::btnCancel_Click() {
  const std::int16_t question = throughComm_ ? 10730 : 10728;
  if (Form.ShowMessage(GetLocalText(question), Message::YesNo, GetLocalText(10699)) != answers::Yes) return;
  ReviewAction = 0;
  Form.Hide();
}

}  // namespace orlin
