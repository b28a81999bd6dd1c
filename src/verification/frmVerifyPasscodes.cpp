#include "verification/frmVerifyPasscodes.h"

#include <algorithm>

#include "OrlinCustomDialogs/written_text.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/services/modRegistry.h"
#include "frame/values/conversions.h"
#include "verification/duress_family.h"
#include "verification/grid_edit.h"

namespace orlin {
namespace {

constexpr std::int32_t kNormalColor = 0;
constexpr std::int32_t kUnusableColor = 0xFF0000;
constexpr std::int32_t kConflictColor = 0x0000FF;

constexpr int kPasscodeColumn = 1;

constexpr int kNextInterval = 1000;

/// The flag of a user, who may be beyond those that a panel can have.
template <class Flags>
auto& FlagOf(Flags& flags, int user) {
  if (user < 0 || user >= static_cast<int>(flags.size())) throw Failure(failures::SubscriptOutOfRange);
  return flags[static_cast<std::size_t>(user)];
}

bool HasOnlyDigits(const std::string& text) { return text.find_first_not_of("0123456789") == std::string::npos; }

void StartList(ListBox& list, std::int16_t title) {
  list.Clear();
  list.AddItem(GetLocalText(title));
  list.AddItem(" ");
}

}  // namespace

frmVerifyPasscodes::frmVerifyPasscodes() : PrevCellValue(kNoEdit) {
  Form.OnLoad = [this] { Form_Load(); };
  fa.DblClick = [this] { fa_DblClick(); };
  fa.StartEdit = [this](int, int, bool& cancel) { Notified([&] { fa_StartEdit(cancel); }, ""); };
  fa.KeyPressEdit = [this](int, int, int& key) { Notified([&] { fa_KeyPressEdit(key); }, " keypressedit "); };
  fa.AfterEdit = [this](int row, int col) { fa_AfterEdit(row, col); };
  Timer1.OnTimer = [this] { Timer1_Timer(); };
  optSave.Click = [this] { optSave_Click(); };
  optPlZeroSsave.Click = [this] { cmdOK.SetEnabled(true); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmVerifyPasscodes::Form_Load() {
  LoadCaptions();
  Form.Centre();
}

void frmVerifyPasscodes::LoadCaptions() {
  Form.LoadCaptions();
  SkipFailure([&] { optPlZeroSsave.SetCaption(GetLocalText(ThroughComm == 1 ? 10731 : 10732)); },
              [&] { fa.SetCellText(0, 0, GetLocalText(10720)); },
              [&] { fa.SetCellText(0, kPasscodeColumn, GetLocalText(10721)); },
              [&] { Shape1.SetBackColor(kUnusableColor); }, [&] { Shape2.SetBackColor(kConflictColor); });
  for (int col = 0; col < fa.Cols(); ++col) SkipFailure([&] { fa.SetColWidth(col, fa.Width() / 3); });
}

std::int32_t frmVerifyPasscodes::Display(Value& vresult, Value& vpresent, std::int16_t& bChangedStatus,
                                         std::int16_t vPasscodeLength, std::int16_t iUserRows, std::int16_t bThroughSIA,
                                         std::int16_t bThroughComm, const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    if (!SecurityLevels.IsEmpty()) Form.KeepSecurityLevels(SecurityLevels);
    if (vPasscodeLength != 0) PasscodeLength = vPasscodeLength;
    ResultCodes = AsArray(vresult);
    PresentCodes = AsArray(vpresent);
    UserRows = iUserRows;
    ThroughComm = bThroughComm;
    ThroughSIA = bThroughSIA;
    ApplicationType = ToInteger(GetRegSetting(std::string(kAppName), "Installation", "APPLICATION_TYPE", ""));
    LoadPasscodeGrid();
    if (SecurityLevels.IsEmpty()) return;
    HideBySecurityLevels(
        Form.SecurityLevels(),
        {{kEveryRecord, {cmdOK, fa, lstExisting, lstMatch, lstUnusable, lblCaption, optSave, optPlZeroSsave}}});
  };
  steps.Conclude = [&] {
    bChangedStatus = static_cast<std::int16_t>(outcome_);
    CopyBack(AsArray(vresult), AsArray(vpresent));
    // On every outcome: `bChangedStatus` tells which.
    return kConfirmed;
  };
  return RunDisplay(Form, steps);
}

void frmVerifyPasscodes::CopyBack(Array& result, Array& present) const {
  for (int user = 0; user < kUserCount; ++user) {
    result.At(user) = ResultCodes.At(user);
    if (outcome_ != Outcome::Cancelled) present.At(user) = "";
  }
}

// ---------------------------------------------------------------------------------------------- grid and lists

void frmVerifyPasscodes::LoadPasscodeGrid() {
  lblCaption.SetCaption(GetLocalText(10722) + "\r\n" + GetLocalText(10723) + std::to_string(PasscodeLength) + ".");
  fa.SetRows(LeavesOutUserZero() ? UserRows - 1 : UserRows);
  if (LeavesOutUserZero()) {
    optPlZeroSsave.SetVisible(false);
    optSave.SetVisible(false);
    ResultCodes.At(0) = CutToLength(ResultCodes.At(0));
  }
  for (int row = 1; row < fa.Rows(); ++row) {
    fa.SetCellText(row, 0, std::to_string(UserOf(row)));
    fa.SetCellText(row, kPasscodeColumn, CutToLength(ResultCodes.At(UserOf(row))));
  }
  if (LeavesOutUserZero()) CloseGapOfOptions();
  UpdateMatchPassCodes();
  StartList(lstExisting, 10715);
  SetFlexClrAliFont({}, {}, kLeftAligned);
  optSave.SetValue(true);
}

void frmVerifyPasscodes::CloseGapOfOptions() {
  Label1.SetTop(Label1.Top() - 1470);
  Label2.SetTop(Label1.Top());
  Shape1.SetTop(Label1.Top());
  Shape2.SetTop(Label1.Top());
  cmdOK.SetTop(cmdOK.Top() - 1200);
  cmdCancel.SetTop(cmdOK.Top());
  Form.SetHeight(Form.Height() - 1200);
}

std::string frmVerifyPasscodes::CutToLength(const Value& code) const { return Left(ToText(code), PasscodeLength); }

void frmVerifyPasscodes::UpdateMatchPassCodes() {
  ReportFailure(PasscodeFault(" UpdateMatchPassCodes"), [&] {
    StartList(lstMatch, 10713);
    StartList(lstUnusable, 10714);
    for (int i = 1; i < UserRows; ++i) {
      SetFlexClrAliFont(kNormalColor, false, kLeftAligned, i, kPasscodeColumn);
      JudgeUser(i - 1);
    }
  });
}

void frmVerifyPasscodes::JudgeUser(int user) {
  const auto entry = ToText(PresentCodes.At(user));
  if (entry.empty()) {
    FlagOf(MatchFlags, user) = 0;
    FlagOf(UnusableFlags, user) = 0;
  } else if (CharacterCount(entry) < PasscodeLength) {
    FlagOf(UnusableFlags, user) = 1;
    lstUnusable.AddItem(std::to_string(user) + "   : " + entry);
    SetFlexClrAliFont(kUnusableColor, true, kLeftAligned, RowOf(user), kPasscodeColumn);
  } else {
    FlagOf(MatchFlags, user) = 1;
    lstMatch.AddItem(std::to_string(user) + "   : " + CutToLength(entry));
    SetFlexClrAliFont(kConflictColor, true, kLeftAligned, RowOf(user), kPasscodeColumn);
  }
}

void frmVerifyPasscodes::SetFlexClrAliFont(std::optional<std::int32_t> Color, std::optional<bool> Bold,
                                           std::optional<int> Alignment, std::optional<int> Row,
                                           std::optional<int> Col) {
  const int row = Row.value_or(fa.Row());
  const int col = Col.value_or(fa.Col());
  fa.SelectCell(row, col);
  // Not so for a user who has no row.
  if (fa.Row() != row || fa.Col() != col) return;
  if (Color) fa.SetCellColor(row, col, *Color);
  if (Alignment) fa.SetCellAlignment(row, col, *Alignment);
  if (Bold) fa.SetCellBold(row, col, *Bold);
}

void frmVerifyPasscodes::UpdateExistingPassCodeLists(const std::string& sPasscode) {
  ReportFailure(PasscodeFault("UpdateExistingPassCodeLists()"), [&] {
    lstExisting.Clear();
    lstExisting.AddItem(" ");
    const auto beginsSo = [&](const std::string& member) { return member.starts_with(sPasscode); };
    bool found = false;
    for (int row = 1; row < fa.Rows() && !sPasscode.empty(); ++row) {
      if (row == fa.Row()) continue;
      const auto& code = fa.CellText(row, kPasscodeColumn);
      const auto family = CalculateDuressPasscode(code);
      if (std::none_of(family.begin(), family.end(), beginsSo)) continue;
      lstExisting.AddItem(fa.CellText(row, 0) + "  : " + code);
      found = true;
    }
    lstExisting.InsertItem(GetLocalText(10715), 0);
    if (!sPasscode.empty() && !found) lstExisting.AddItem(GetLocalText(10724));
  });
}

void frmVerifyPasscodes::Timer1_Timer() {
  Timer1.SetInterval(kNextInterval);
  UpdateExistingPassCodeLists(fa.EditorText());
}

// ---------------------------------------------------------------------------------------------- editing

void frmVerifyPasscodes::Notified(const std::function<void()>& handler, const std::string& words) {
  try {
    handler();
  } catch (const Failure& failure) {
    Form.ShowMessage(failure.Description() + words);
  }
}

void frmVerifyPasscodes::fa_DblClick() {
  if (fa.Col() == kPasscodeColumn) fa.EditCell();
}

void frmVerifyPasscodes::fa_StartEdit(bool& cancel) {
  if (fa.Col() != kPasscodeColumn) cancel = true;
  if (PrevCellValue == kNoEdit) {
    PrevCellValue = fa.CellText(fa.Row(), fa.Col());
  } else {
    cancel = true;
  }
}

void frmVerifyPasscodes::fa_KeyPressEdit(int& key) {
  Timer1.SetEnabled(true);
  const bool passes = (key >= '0' && key <= '9') || key == keys::Backspace;
  if (!passes) key = 0;
}

void frmVerifyPasscodes::fa_AfterEdit(int row, int col) {
  Notified([&] { TakeCorrection(row, col); }, " after edit ");
  UpdateExistingPassCodeLists("");
  Timer1.SetEnabled(false);
  PrevCellValue = kNoEdit;
}

void frmVerifyPasscodes::TakeCorrection(int row, int col) {
  if (!HasOnlyDigits(fa.EditorText())) {
    Refuse(row, col, 262);
    Form.Beep();
    return;
  }
  const std::string text = fa.CellText(row, col);
  if (!text.empty() && CharacterCount(text) != PasscodeLength) return Refuse(row, col, 10716);
  const bool isDuress = IsDuressOfOtherUser(text) == 1;
  SetFlexClrAliFont({}, {}, kLeftAligned);
  if (isDuress) return Refuse(row, col, 10725);
  Accept(row, col, text);
}

void frmVerifyPasscodes::Refuse(int row, int col, std::int16_t text) {
  Form.ShowMessage(GetLocalText(text), Message::OkOnly, GetLocalText(1860));
  fa.SetCellText(row, col, PrevCellValue);
}

void frmVerifyPasscodes::Accept(int row, int col, const std::string& code) {
  PresentCodes.At(UserOf(row)) = "";
  ResultCodes.At(UserOf(row)) = code;
  if (!UpdateMatchPasscodeArray(PresentCodes, PasscodeLength)) cmdOK.SetEnabled(true);
  UpdateMatchPassCodes();
  fa.SelectCell(row, col);
}

std::int16_t frmVerifyPasscodes::IsDuressOfOtherUser(const std::string& s) const {
  if (s.empty()) return 0;
  // Only the type 0 counts here, where the layout of the grid goes by the type 1.
  const int ownUser = ApplicationType == 0 ? fa.Row() - 1 : fa.Row();
  for (auto user = ResultCodes.LowerBound(); user <= ResultCodes.UpperBound(); ++user) {
    if (user == ownUser) continue;
    const auto family = CalculateDuressPasscode(ToText(ResultCodes.At(user)));
    if (std::find(family.begin(), family.end(), s) != family.end()) return 1;
  }
  return 0;
}

// ---------------------------------------------------------------------------------------------- outcomes

void frmVerifyPasscodes::optSave_Click() {
  cmdOK.SetEnabled(false);
  AnyFlagged = false;
  for (int i = 1; i < UserRows; ++i) {
    if (FlagOf(MatchFlags, i - 1) != 0 || FlagOf(UnusableFlags, i - 1) != 0) AnyFlagged = true;
    // Where user 0 is left out, the last user is judged one step behind the last row.
    if (i < fa.Rows()) ResultCodes.At(UserOf(i)) = fa.CellText(i, kPasscodeColumn);
  }
  if (!AnyFlagged) cmdOK.SetEnabled(true);
}

void frmVerifyPasscodes::cmdOK_Click() {
  if (optPlZeroSsave.Value()) {
    const std::int16_t question =
        ThroughComm == 1 ? (ThroughSIA == 1 ? 10733 : 10734) : (ThroughSIA == 1 ? 10735 : 10736);
    EndIfConfirmed(question, Outcome::DisableLength);
  } else if (optSave.Value()) {
    outcome_ = Outcome::SaveCorrected;
    Form.Hide();
  }
}

void frmVerifyPasscodes::cmdCancel_Click() {
  const std::int16_t question = LeavesOutUserZero() ? 10744 : ThroughComm == 1 ? 10730 : 10728;
  EndIfConfirmed(question, Outcome::Cancelled);
}

void frmVerifyPasscodes::EndIfConfirmed(std::int16_t question, Outcome outcome) {
  if (Form.ShowMessage(GetLocalText(question), Message::OkCancel, GetLocalText(10729)) != answers::Ok) return;
  outcome_ = outcome;
  Form.Hide();
}

}  // namespace orlin
