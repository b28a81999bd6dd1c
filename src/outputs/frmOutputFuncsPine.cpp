#include "outputs/frmOutputFuncsPine.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "outputs/pine_functions.h"

namespace orlin {
namespace {

/// A row of the list, taken apart.
struct RowTexts {
  std::string First;
  std::string Second;
  std::string Text;
};

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

RowTexts TakeApart(std::string_view row) {
  const auto comma = row.find(',');
  const auto behind = Trimmed(row.substr(comma + 1));
  const auto end = std::min(behind.find(' '), behind.size());
  return {std::string(Trimmed(row.substr(0, comma))), std::string(behind.substr(0, end)),
          std::string(Trimmed(behind.substr(end)))};
}

int NumberIn(const TextBox& box) { return ToInteger(NumericValue(box.Text())); }

}  // namespace

frmOutputFuncsPine::frmOutputFuncsPine() {
  txtDigit1.GotFocus = [this] { txtDigit1_GotFocus(); };
  txtDigit1.KeyPress = [this](int& key) { txtDigit1_KeyPress(key); };
  txtDigit1.Change = [this] { txtDigit1_Change(); };
  txtDigit2.GotFocus = [this] { txtDigit2_GotFocus(); };
  txtDigit2.KeyPress = [this](int& key) { txtDigit2_KeyPress(key); };
  txtDigit2.Change = [this] { txtDigit2_Change(); };
  lstFunctionCode.Click = [this] { lstFunctionCode_Click(); };
}

std::int32_t frmOutputFuncsPine::Display(const Value& vName, Value& vCode, std::int32_t panelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    CodeBusy = true;
    FillFunctionCodes(panelType);
    SelectCode(vCode);
    CodeBusy = false;
    EnableOK();
    Form.SetCaption(GetLocalText(1192, "ITEM", ToText(vName)));
  };
  steps.Encode = [&] { vCode = lstFunctionCode.ListIndex(); };
  return RunDisplay(Form, steps);
}

void frmOutputFuncsPine::FillFunctionCodes(std::int32_t panelType) {
  MaxDigit1 = kHighestFirst;
  MaxDigit2 = HighestSecond(panelType);
  lstFunctionCode.Clear();
  for (FunctionPair pair; pair.First <= MaxDigit1; ++pair.First) {
    const int highest = pair.First == MaxDigit1 ? MaxDigit2 : kSecondNumbers - 1;
    for (pair.Second = 0; pair.Second <= highest; ++pair.Second) {
      if (!IsFunction(pair)) continue;
      const auto prefix = MakeCodePrefix(pair.First * kSecondNumbers + pair.Second);
      SkipFailure([&] { lstFunctionCode.AddItem(prefix + FunctionText(pair, panelType)); });
    }
  }
}

void frmOutputFuncsPine::SelectCode(const Value& vCode) {
  const auto* text = vCode.Get<std::string>();
  const bool empty = vCode.IsEmpty() || (text != nullptr && text->empty());
  if (empty || ToDouble(vCode) > kSecondNumbers * MaxDigit1 + MaxDigit2) return;
  // -1 stands for no row, as it does on the way out.
  if (const auto row = ToInteger(vCode); row < lstFunctionCode.ListCount()) lstFunctionCode.SetListIndex(row);
}

void frmOutputFuncsPine::EnableOK() { cmdOK.SetEnabled(!txtDigit1.Text().empty() && !txtDigit2.Text().empty()); }

void frmOutputFuncsPine::lstFunctionCode_Click() {
  CodeBusy = true;
  txtFunctionCode.SetCaption("");
  if (lstFunctionCode.ListIndex() >= 0) {
    const auto row = TakeApart(lstFunctionCode.List(lstFunctionCode.ListIndex()));
    txtDigit1.SetText(row.First);
    txtDigit2.SetText(row.Second);
    txtFunctionCode.SetCaption(row.Text);
  }
  EnableOK();
  CodeBusy = false;
}

void frmOutputFuncsPine::txtDigit1_GotFocus() { txtDigit1.SelectAll(); }

void frmOutputFuncsPine::txtDigit2_GotFocus() { txtDigit2.SelectAll(); }

void frmOutputFuncsPine::Swallow(int& key) {
  key = 0;
  Form.Beep();
}

void frmOutputFuncsPine::txtDigit1_KeyPress(int& key) {
  if (key == keys::Backspace) return;
  const int highest = '0' + MaxDigit1;
  const bool blocked = key == highest && NumberIn(txtDigit2) > MaxDigit2;
  if (key < '0' || key > highest || blocked) Swallow(key);
}

void frmOutputFuncsPine::txtDigit2_KeyPress(int& key) {
  if (key == keys::Backspace) return;
  if (key < '0' || key > '9') return Swallow(key);
  std::string text = txtDigit2.Text();
  text.erase(static_cast<std::size_t>(txtDigit2.SelStart()), static_cast<std::size_t>(txtDigit2.SelLength()));
  text.insert(txtDigit2.SelStart() == 0 ? 0 : text.size(), 1, static_cast<char>(key));
  const auto second = NumericValue(text);
  const int first = NumberIn(txtDigit1);
  if (first < MaxDigit1 && second >= kSecondNumbers) return Swallow(key);
  if (first == MaxDigit1 && second > MaxDigit2) Swallow(key);
}

void frmOutputFuncsPine::txtDigit1_Change() {
  if (CodeBusy) return;
  DigitsToList();
  if (!txtDigit1.Text().empty()) txtDigit2.SetFocus();
}

void frmOutputFuncsPine::txtDigit2_Change() {
  if (!CodeBusy) DigitsToList();
}

std::optional<int> frmOutputFuncsPine::RowOfDigits() const {
  const FunctionPair pair{NumberIn(txtDigit1), NumberIn(txtDigit2)};
  if (!IsFunction(pair) || RowOf(pair) >= lstFunctionCode.ListCount()) return std::nullopt;
  return RowOf(pair);
}

void frmOutputFuncsPine::DigitsToList() {
  CodeBusy = true;
  if (txtDigit1.Text().empty()) {
    lstFunctionCode.SetListIndex(-1);
    txtDigit1.SetFocus();
  } else if (txtDigit2.Text().empty()) {
    lstFunctionCode.SetListIndex(-1);
    txtDigit2.SetFocus();
  } else {
    const auto before = lstFunctionCode.ListIndex();
    if (const auto row = RowOfDigits()) lstFunctionCode.SetListIndex(*row);
    if (lstFunctionCode.ListIndex() == before) {
      // No click has written the numbers as the list has them.
      txtDigit1.SetText(std::to_string(NumberIn(txtDigit1)));
      txtDigit2.SetText(std::to_string(NumberIn(txtDigit2)));
    }
  }
  EnableOK();
  CodeBusy = false;
}

}  // namespace orlin
