#include "schedules/frmSkedFuncsWillow.h"

#include <utility>

#include "OrlinCustomDialogs/written_text.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"
#include "schedules/willow_catalogue.h"

namespace orlin {
namespace {

constexpr int kHours = 24;
constexpr int kMinutes = 60;

constexpr std::int16_t kJanuary = 1156;
constexpr int kMonths = 12;
// Keys of the days' records, which are texts of the catalogue; Sunday's is the first.
constexpr std::int16_t kFirstDayRecord = 1537;

constexpr std::string_view kDateRecord = "Date";
constexpr std::string_view kCodeRecord = "Function Code Ref.# and Description";

/// Fills a list anew and selects the row that was selected before, or none where the list has become too short.
template <class Fill>
void RefillKeepingRow(ComboBox& list, Fill fill) {
  const int remembered = list.ListIndex();
  list.Clear();
  fill();
  SkipFailure([&] { list.SetListIndex(remembered < list.ListCount() ? remembered : -1); });
}

}  // namespace

frmSkedFuncsWillow::frmSkedFuncsWillow() {
  optDate.Click = [this] { optDate_Click(); };
  optDOW.Click = [this] { optDOW_Click(); };
  optDisabled.Click = [this] { optDisabled_Click(); };
  const auto setTimeBox = [this](TextBox& box, int limit) {
    box.GotFocus = [&box] { box.SelectAll(); };
    box.KeyPress = [this, &box, limit](int& key) { TimeBox_KeyPress(box, limit, key); };
    box.LostFocus = [this, &box] { TimeBox_LostFocus(box); };
  };
  setTimeBox(txtHour, kHours);
  setTimeBox(txtMinute, kMinutes);
  udTime.UpClick = [this] { StepTime(willow::NextTimePart); };
  udTime.DownClick = [this] { StepTime(willow::PreviousTimePart); };
  cmbMonth.Click = [this] { FillDays(); };
  cmbDay.GotFocus = [this] { cmbDay_GotFocus(); };
  chkDOW.OnClick([this](int index) { chkDOW_Click(index); });
  cmbSkedCode.Change = [this] { cmbSkedCode_Change(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmSkedFuncsWillow::Display(const Value& SkedNo, Value& SkedType, Value& SkedTime, Value& TimeEdit,
                                         Value& SkedData, Value& SkedFunc, const Value& SecurityLevels,
                                         ePanelType PanelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    panelType_ = PanelType;
    skedData_ = SkedData;
    const auto shownNumber = willow::ShownNumber(ToLong(SkedNo));

    // Setting an option runs its handler, which knows nothing of the raw value yet.
    switch (willow::DecodeType(SkedType)) {
      case willow::SkedType::ByDate:
        optDate.SetValue(true);
        DisplayDate(&SkedData);
        break;
      case willow::SkedType::ByDayOfWeek:
        optDOW.SetValue(true);
        DisplayDOW(&SkedData);
        break;
      case willow::SkedType::Disabled:
        optDisabled.SetValue(true);
        HideSkedFrames();
        break;
    }
    const auto time = willow::DecodeTime(ToText(SkedTime));
    txtHour.SetText(time.Hour);
    txtMinute.SetText(time.Minute);
    if (willow::DecodeTimeEdit(TimeEdit)) chkTimeEdit.SetValue(1);
    FillFunctionCodes(Left(ToText(SkedFunc), 3));

    ApplySecurityLevels(Form.SecurityLevels(), {{"Time", {fraTime}},
                                                {kDateRecord, {fraDate}},
                                                {"Sun", {chkDOW[0]}},
                                                {"Mon", {chkDOW[1]}},
                                                {"Tue", {chkDOW[2]}},
                                                {"Wed", {chkDOW[3]}},
                                                {"Thu", {chkDOW[4]}},
                                                {"Fri", {chkDOW[5]}},
                                                {"Sat", {chkDOW[6]}},
                                                {"Time Edit", {chkTimeEdit}},
                                                {kCodeRecord, {fraCode}}});
    Form.SetCaption(GetLocalText(1519, "SKED", shownNumber));
  };
  steps.Encode = [&] {
    SkedType = static_cast<std::int16_t>(skedType_);
    SkedTime = willow::EncodeTime({txtHour.Text(), txtMinute.Text()});
    TimeEdit = static_cast<std::int16_t>(chkTimeEdit.Value());
    SkedData = skedData_;
    SkedFunc = willow::EncodeFunction(skedType_, cmbSkedCode.Text());
  };
  return RunDisplay(Form, steps);
}

// ---------------------------------------------------------------------------------------------- kinds of sked

void frmSkedFuncsWillow::optDate_Click() {
  skedType_ = willow::SkedType::ByDate;
  DisplayDate(nullptr);
}

void frmSkedFuncsWillow::optDOW_Click() {
  skedType_ = willow::SkedType::ByDayOfWeek;
  DisplayDOW(nullptr);
}

void frmSkedFuncsWillow::optDisabled_Click() {
  skedType_ = willow::SkedType::Disabled;
  HideSkedFrames();
}

void frmSkedFuncsWillow::HideSkedFrames() {
  fraDate.SetVisible(false);
  fraDOW.SetVisible(false);
  fraCode.SetVisible(false);
}

std::optional<bool> frmSkedFuncsWillow::ViewLevelReaches(std::int16_t SecurityLevel::*level,
                                                         std::string_view key) const {
  std::optional<bool> reaches;
  SkipFailure([&] {
    const auto& levels = Form.SecurityLevels();
    reaches = levels.Item(kAuthorityLevel).ViewLevel >= levels.Item(key).*level;
  });
  return reaches;
}

void frmSkedFuncsWillow::ShowWithinRights(Frame& part, std::string_view key) {
  // A part without a record is not restricted.
  if (ViewLevelReaches(&SecurityLevel::ViewLevel, key).value_or(true)) part.SetVisible(true);
  if (ViewLevelReaches(&SecurityLevel::EditLevel, key).value_or(true)) part.SetEnabled(true);
}

void frmSkedFuncsWillow::DisplayDate(const Value* vSkedData) {
  fraDOW.SetVisible(false);
  ShowWithinRights(fraDate, kDateRecord);
  ShowWithinRights(fraCode, kCodeRecord);

  const auto date = vSkedData == nullptr ? willow::Date() : willow::DecodeDate(*vSkedData);
  // A month or day that its list has not leaves the one that was selected before.
  FillMonths();
  SkipFailure([&] { cmbMonth.SelectRow(date.Month); });
  FillDays();
  SkipFailure([&] { cmbDay.SelectRow(date.Day); });
}

void frmSkedFuncsWillow::DisplayDOW(const Value* vSkedData) {
  fraDate.SetVisible(false);
  fraDOW.SetVisible(true);
  fraDOW.SetEnabled(true);
  ShowWithinRights(fraCode, kCodeRecord);

  int visibleDays = 0;
  int enabledDays = 0;
  for (int day = 0; day < willow::kDaysOfWeek; ++day) {
    std::string key;
    SkipFailure([&] { key = GetLocalText(static_cast<std::int16_t>(kFirstDayRecord + day)); });
    // Unlike the other parts, a day needs a record that allows it.
    const bool visible = ViewLevelReaches(&SecurityLevel::ViewLevel, key).value_or(false);
    const bool enabled = ViewLevelReaches(&SecurityLevel::EditLevel, key).value_or(false);
    chkDOW[day].SetVisible(visible);
    chkDOW[day].SetAllowed(enabled);
    visibleDays += visible ? 1 : 0;
    enabledDays += enabled ? 1 : 0;
  }
  if (visibleDays == 0) fraDOW.SetVisible(false);
  if (enabledDays == 0) fraDOW.SetAllowed(false);

  if (vSkedData == nullptr) return;
  // Days that are no number fail the call: nothing may be shown that OK would store in their place.
  const auto days = ToInteger(*vSkedData);
  for (int day = 0; day < willow::kDaysOfWeek; ++day) {
    SkipFailure([&] { chkDOW[day].SetValue(willow::RunsOn(days, day) ? 1 : 0); });
  }
}

// ---------------------------------------------------------------------------------------------- date and days

void frmSkedFuncsWillow::chkDOW_Click(int Index) {
  SkipFailure([&] { willow::SetRunsOn(dayBits_, Index, chkDOW[Index].Value() == 1); });
}

void frmSkedFuncsWillow::FillMonths() {
  RefillKeepingRow(cmbMonth, [&] {
    cmbMonth.AddItem("**", willow::DaysInMonth(0));
    for (std::int16_t month = 1; month <= kMonths; ++month) {
      const auto number = static_cast<std::int16_t>(kJanuary + month - 1);
      SkipFailure([&] { cmbMonth.AddItem(GetLocalText(number), willow::DaysInMonth(month)); });
    }
  });
}

void frmSkedFuncsWillow::FillDays() {
  if (cmbMonth.ListIndex() == -1) return;
  const int days = cmbMonth.ItemData(cmbMonth.ListIndex());
  RefillKeepingRow(cmbDay, [&] {
    cmbDay.AddItem("**");
    for (int day = 1; day <= days; ++day) cmbDay.AddItem(std::to_string(day));
  });
}

void frmSkedFuncsWillow::cmbDay_GotFocus() {
  SkipFailure([&] {
    if (cmbMonth.ListIndex() == -1) cmbMonth.SetListIndex(0);
  });
  FillDays();
}

// ---------------------------------------------------------------------------------------------- time

void frmSkedFuncsWillow::TimeBox_KeyPress(TextBox& box, int limit, int& key) {
  if (box.SelLength() > 0) box.SetText("");
  const auto text = box.Text();
  if (text != "*" && key >= '0' && key <= '9') {
    if (NumericValue(text + static_cast<char>(key)) <= limit - 1) return;
  } else if (key == '*' && (text.empty() || text == "*")) {
    return;
  } else if (key == keys::Backspace) {
    return;
  }
  key = 0;
  Form.Beep();
}

void frmSkedFuncsWillow::TimeBox_LostFocus(TextBox& box) {
  if (box.Text().empty()) box.SetText("0");
  if (box.Text() == "*") box.SetText("**");
  box.SetText(WithLeadingZero(box.Text()));
}

void frmSkedFuncsWillow::StepTime(std::string (*next)(const std::string& part, int limit)) {
  const auto* focused = Form.FocusedControl();
  if (focused == &txtHour) {
    txtHour.SetText(next(txtHour.Text(), kHours));
  } else if (focused == &txtMinute) {
    txtMinute.SetText(next(txtMinute.Text(), kMinutes));
  } else {
    Form.Beep();
  }
}

// ---------------------------------------------------------------------------------------------- function code

void frmSkedFuncsWillow::FillFunctionCodes(std::string_view vSkedFunc) {
  cmbSkedCode.Clear();
  for (auto& entry : willow::FunctionEntries(panelType_)) cmbSkedCode.AddItem(std::move(entry));
  cmbSkedCode.SetListIndex(willow::FunctionRow(vSkedFunc, panelType_));
  // Selecting a row by code is no change of the text.
  lastValidCode_ = Left(cmbSkedCode.Text(), 3);
}

// What it does to the text changes the text again and runs it anew, until the text is valid.
void frmSkedFuncsWillow::cmbSkedCode_Change() {
  const auto text = cmbSkedCode.Text();
  const auto firstThree = Left(text, 3);
  const bool tooLong = firstThree != text;
  bool valid = text.empty();
  if (!tooLong && IsNumeric(text)) {
    const bool whole = text.size() == 3;
    valid = !whole || willow::HasFunction(NumericValue(text), panelType_);
    if (whole && valid) cmbSkedCode.SetListIndex(willow::FunctionRow(text, panelType_));
  }
  if (valid) {
    // Of the selected row, if there is one: " 12" is the code 012.
    lastValidCode_ = Left(cmbSkedCode.Text(), 3);
  } else if (tooLong) {
    cmbSkedCode.SetText(firstThree);
  } else {
    cmbSkedCode.SetText(lastValidCode_);
    Form.Beep();
  }
}

// ---------------------------------------------------------------------------------------------- OK

void frmSkedFuncsWillow::cmdOK_Click() {
  Form.SetExitCode(ExitCode::OK);
  if (optDate.Value()) {
    if (ValidateDate()) {
      skedData_ = dateText_;
    } else {
      Form.SetExitCode(ExitCode::Cancel);
    }
  }
  if (optDOW.Value()) skedData_ = dayBits_;
  if (Form.ExitCode() == ExitCode::OK && !optDisabled.Value() && !ValidateCode()) Form.SetExitCode(ExitCode::Cancel);
  if (Form.ExitCode() != ExitCode::OK) return;
  txtHour.SetText(WithLeadingZero(txtHour.Text()));
  txtMinute.SetText(WithLeadingZero(txtMinute.Text()));
  Form.Hide();
}

bool frmSkedFuncsWillow::ValidateDate() {
  const willow::Date date{cmbMonth.ListIndex(), cmbDay.ListIndex()};
  const bool hasMonth = date.Month != -1;
  const bool hasDay = date.Day != -1;
  if (hasMonth && hasDay) {
    dateText_ = willow::EncodeDate(date);
    return true;
  }
  if (hasDay) {
    TellMissing(1604, 1605, cmbMonth);
  } else if (hasMonth) {
    TellMissing(1606, 1607, cmbDay);
  } else {
    TellMissing(1608, 1609, cmbMonth);
  }
  return false;
}

bool frmSkedFuncsWillow::ValidateCode() {
  if (CharacterCount(cmbSkedCode.Text()) >= 3) return true;
  TellMissing(1610, 1611, cmbSkedCode);
  return false;
}

void frmSkedFuncsWillow::TellMissing(std::int16_t message, std::int16_t title, ComboBox& list) {
  SkipFailure([&] { Form.Beep(); },
              [&] { Form.ShowMessage(GetLocalText(message), Message::OkOnly, GetLocalText(title)); },
              [&] { list.SetFocus(); });
}

}  // namespace orlin
