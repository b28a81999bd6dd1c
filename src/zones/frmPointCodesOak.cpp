#include "zones/frmPointCodesOak.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "zones/code_digits.h"

namespace orlin {
namespace {

struct DigitList {
  std::string_view Digits;  // of the items, in order
  std::int16_t FirstText;   // of the first item
  std::int16_t SecondText;  // of the second; the texts of the others follow it
};

constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOP";

// From digit 1 on. Those of OakBase are the first three of OakGrand.
constexpr auto kGrandLists = std::to_array<DigitList>({
    {"0123456789ABC", 1393, 1394},
    {"0123456789", 1393, 1406},
    {"0123456789ABCDEF", 1393, 1415},
    {"012345678", 1430, 1431},
    {kLetters, 1439, 1440},
});
constexpr auto kMidLists = std::to_array<DigitList>({
    {"0123456789A", 1393, 1394},
    {"0123456789", 1393, 1406},
    {"01234567", 1393, 1415},
});

std::span<const DigitList> ListsOf(ePanelType panelType) {
  if (panelType == ePanelType::OakMid) return kMidLists;
  return std::span(kGrandLists).first(panelType == ePanelType::OakGrand ? 5 : 3);
}

/// The position that a digit of a code selects. The fifth comes back as it went out, so there a C is the third letter
/// and not the hexadecimal digit 12; 0 to 9 are for hosts that keep a number in its place.
int PositionOf(int digit, const std::string& code) {
  for (std::size_t i = 0; digit == 5 && i < kLetters.size(); ++i) {
    if (SameName(Mid(code, digit, 1), kLetters.substr(i, 1))) return static_cast<int>(i);
  }
  return HexDigitAt(code, digit);
}

// What must not stand behind a first digit; other first digits go with any.
struct Fault {
  int D1;
  bool (*When)(int D3, int D4);
  std::int16_t Message;
  int Digit;  // the one that must not stand there
};
constexpr std::array<Fault, 4> kFaults = {{
    {0, [](int, int D4) { return D4 != 0 && D4 != 7 && D4 != 8; }, 1456, 4},
    {1, [](int D3, int) { return D3 != 0 && D3 != 9 && D3 != 13; }, 1457, 3},
    {2, [](int D3, int) { return D3 == 8 || D3 == 12; }, 1458, 3},
    {10, [](int D3, int) { return D3 >= 4; }, 1459, 3},
}};
constexpr Fault kFaultOfMid{0, nullptr, 1455, 3};

/// What is wrong with a code; null where its digits may stand together.
const Fault* FaultIn(const std::string& code, ePanelType panelType) {
  const int D1 = HexDigitAt(code, 1);
  const int D3 = HexDigitAt(code, 3);
  if (panelType == ePanelType::OakMid) return (D1 == 1 || D1 == 2) && D3 != 0 ? &kFaultOfMid : nullptr;
  const auto fault = std::find_if(kFaults.begin(), kFaults.end(), [&](const auto& row) { return row.D1 == D1; });
  return fault == kFaults.end() || !fault->When(D3, HexDigitAt(code, 4)) ? nullptr : &*fault;
}

}  // namespace

frmPointCodesOak::frmPointCodesOak() {
  cmbDigit.OnClick([this](int Index) { cmbDigit_Click(Index); });
  for (const int digit : {3, 4}) {
    cmbDigit[digit].FindObjection = [this, digit] {
      const auto* fault = FaultIn(lblPointCode.Caption(), PanelType);
      return fault == nullptr || fault->Digit != digit ? std::string() : GetLocalText(fault->Message);
    };
  }
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmPointCodesOak::Display(const Value& PointNum, Value& PointCode, ePanelType panelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    SkipFailure([&] { lblPointText.SetCaption(GetLocalText(1392, "POINT", ToText(PointNum))); });
    PanelType = panelType;
    FillDigitLists();
    DigitCount = PanelType == ePanelType::OakGrand ? 5 : 3;
    for (int digit = 1; digit <= DigitCount; ++digit) {
      SkipFailure([&] { cmbDigit[digit].SelectRow(PositionOf(digit, ToText(PointCode))); });
    }
  };
  steps.Encode = [&] { PointCode = lblPointCode.Caption(); };
  return RunDisplay(Form, steps);
}

void frmPointCodesOak::FillDigitLists() {
  const auto lists = ListsOf(PanelType);
  for (std::size_t list = 0; list < lists.size(); ++list) {
    auto text = lists[list].FirstText;
    for (const char digit : lists[list].Digits) {
      SkipFailure([&] { cmbDigit[list + 1].AddItem(std::string(1, digit) + ". " + GetLocalText(text)); });
      // Where the second text begins, the others follow.
      text = digit == lists[list].Digits.front() ? lists[list].SecondText : static_cast<std::int16_t>(text + 1);
    }
  }
  if (PanelType == ePanelType::OakGrand) return;
  for (const int digit : {4, 5}) {
    cmbDigit[digit].SetVisible(false);
    lblDigit[digit].SetVisible(false);
  }
}

void frmPointCodesOak::cmbDigit_Click(int Index) {
  if (Index == 1) {
    const bool enabled = cmbDigit[1].ListIndex() != 0;
    for (const int digit : {2, 3}) {
      cmbDigit[digit].SetEnabled(enabled);
      if (!enabled) SkipFailure([&] { cmbDigit[digit].SetListIndex(0); });
    }
  }
  lblPointCode.SetCaption("");
  for (int digit = 1; digit <= DigitCount; ++digit) {
    lblPointCode.SetCaption(lblPointCode.Caption() + Left(cmbDigit[digit].Text(), 1));
  }
}

void frmPointCodesOak::cmdOK_Click() {
  if (ValidatePointCode()) Form.HideWith(ExitCode::OK);
}

bool frmPointCodesOak::ValidatePointCode() {
  const auto* fault = FaultIn(lblPointCode.Caption(), PanelType);
  if (fault == nullptr) return true;
  SkipFailure([&] { Form.ShowMessage(GetLocalText(fault->Message), Message::Warning, GetLocalText(262)); },
              [&] { cmbDigit[3].SetFocus(); });
  return false;
}

}  // namespace orlin
