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

constexpr int kJanuary = 1156;
constexpr int kMonths = 12;
// Keys of the days' records, which are texts of the catalogue; Sunday's is the first.
constexpr int kFirstDayRecord = 1537;

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
  udTime.UpClick = [this] { StepTime(1); };
  udTime.DownClick = [this] { StepTime(-1); };
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

frmSkedFuncsWillow::Rights frmSkedFuncsWillow::RightsBy(std::string_view key, Rights withoutRecord) const {
  auto rights = withoutRecord;
  SkipFailure([&] {
    const auto own = Form.SecurityLevels().Item(kAuthorityLevel).ViewLevel;
    const auto& record = Form.SecurityLevels().Item(key);
    rights = {own >= record.ViewLevel, own >= record.EditLevel};
  });
  return rights;
}

void frmSkedFuncsWillow::ShowWithinRights(Frame& part, std::string_view key) {
  const auto rights = RightsBy(key, {true, true});
  if (rights.Visible) part.SetVisible(true);
  if (rights.Enabled) part.SetEnabled(true);
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
    SkipFailure([&] { key = GetLocalText(kFirstDayRecord + day); });
    // Unlike the other parts, a day needs a record that allows it.
    const auto rights = RightsBy(key, {false, false});
    chkDOW[day].SetVisible(rights.Visible);
    chkDOW[day].SetAllowed(rights.Enabled);
    visibleDays += rights.Visible ? 1 : 0;
    enabledDays += rights.Enabled ? 1 : 0;
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
    cmbMonth.AddItem(willow::kEvery, willow::DaysInMonth(0));
    for (int month = 1; month <= kMonths; ++month) {
      SkipFailure([&] { cmbMonth.AddItem(GetLocalText(kJanuary + month - 1), willow::DaysInMonth(month)); });
    }
  });
}

void frmSkedFuncsWillow::FillDays() {
  if (cmbMonth.ListIndex() == -1) return;
  const int days = cmbMonth.ItemData(cmbMonth.ListIndex());
  RefillKeepingRow(cmbDay, [&] {
    cmbDay.AddItem(willow::kEvery);
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
    if (NumericValue(text + static_cast<char>(key)) < limit) return;
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
  if (box.Text() == "*") box.SetText(willow::kEvery);
  box.SetText(WithLeadingZero(box.Text()));
}

void frmSkedFuncsWillow::StepTime(int by) {
  auto* box = txtHour.HasFocus() ? &txtHour : txtMinute.HasFocus() ? &txtMinute : nullptr;
  if (box == nullptr) return Form.Beep();
  // "**" stands behind the last number and before 0.
  const int every = box == &txtHour ? kHours : kMinutes;
  const int next = (box->Text() == willow::kEvery ? every : ToInteger(NumericValue(box->Text()))) + by;
  if (by > 0 && next > every) return box->SetText("00");
  const bool isEvery = by > 0 ? next == every : next < 0;
  box->SetText(isEvery ? willow::kEvery : TwoDigits(next));
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
  if (firstThree != text) return cmbSkedCode.SetText(firstThree);
  const bool whole = IsNumeric(text) && text.size() == 3;
  const int row = whole ? willow::FunctionRow(text, panelType_) : -1;
  const bool valid = whole ? row != -1 : text.empty() || IsNumeric(text);
  if (!valid) {
    cmbSkedCode.SetText(lastValidCode_);
    return Form.Beep();
  }
  if (whole) cmbSkedCode.SetListIndex(row);
  // Of the selected row, if there is one: " 12" is the code 012.
  lastValidCode_ = Left(cmbSkedCode.Text(), 3);
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
