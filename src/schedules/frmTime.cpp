#include "schedules/frmTime.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr int kMinutesPerHour = 60;
constexpr std::int32_t kTimeNotConfirmed = 2;

}  // namespace

frmTime::frmTime() {
  Form.KeyDown = [this](int& key) { Form_KeyDown(key); };
  txtHour.GotFocus = [this] { txtHour_GotFocus(); };
  txtHour.KeyPress = [this](int& character) { txtHour_KeyPress(character); };
  txtHour.LostFocus = [this] { txtHour_LostFocus(); };
  txtMinute.GotFocus = [this] { txtMinute_GotFocus(); };
  txtMinute.KeyPress = [this](int& character) { txtMinute_KeyPress(character); };
  txtMinute.LostFocus = [this] { txtMinute_LostFocus(); };
  UpDown1.UpClick = [this] { UpDown1_UpClick(); };
  UpDown1.DownClick = [this] { UpDown1_DownClick(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmTime::Display(std::int16_t Index, Value& res) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    txtHour.SetText(TwoDigits(Index / kMinutesPerHour));
    txtMinute.SetText(TwoDigits(Index % kMinutesPerHour));
  };
  steps.Conclude = [&] {
    if (Form.ExitCode() != ExitCode::OK) return kTimeNotConfirmed;
    res = TimeMinutes;
    return kConfirmed;
  };
  steps.Report = [](const Failure& failure) { ReportFault({"frmTime", "Display"}, failure, ""); };
  return RunDisplay(Form, steps);
}

void frmTime::Form_KeyDown(int& key) {
  ReportFailure({"frmTime", "Form_KeyDown"}, [&] {
    if (key == keys::Up || key == keys::PageUp) {
      UpDown1_UpClick();
    } else if (key == keys::Down || key == keys::PageDown) {
      UpDown1_DownClick();
    } else {
      return;
    }
    key = 0;
  });
}

void frmTime::txtHour_GotFocus() {
  ReportFailure({"frmTime", "txtHour_GotFocus"}, [&] { Enter(hour_); });
}

void frmTime::txtHour_KeyPress(int& character) {
  ReportFailure({"frmTime", "txtHour_KeyPress"}, [&] { TakeCharacter(hour_, character); });
}

void frmTime::txtHour_LostFocus() {
  ReportFailure({"frmTime", "txtHour_LostFocus"}, [&] { Leave(hour_); });
}

void frmTime::txtMinute_GotFocus() {
  ReportFailure({"frmTime", "txtMinute_GotFocus"}, [&] { Enter(minute_); });
}

void frmTime::txtMinute_KeyPress(int& character) {
  ReportFailure({"frmTime", "txtMinute_KeyPress"}, [&] { TakeCharacter(minute_, character); });
}

void frmTime::txtMinute_LostFocus() {
  ReportFailure({"frmTime", "txtMinute_LostFocus"}, [&] { Leave(minute_); });
}

void frmTime::UpDown1_UpClick() {
  ReportFailure({"frmTime", "UpDown1_UpClick"}, [&] { Step(1); });
}

void frmTime::UpDown1_DownClick() {
  ReportFailure({"frmTime", "UpDown1_DownClick"}, [&] { Step(-1); });
}

void frmTime::cmdOK_Click() {
  ReportFailure({"frmTime", "cmdOK_Click"}, [&] {
    TimeMinutes = ToInteger(kMinutesPerHour * NumericValue(txtHour.Text()) + NumericValue(txtMinute.Text()));
    Form.HideWith(ExitCode::OK);
  });
}

void frmTime::Enter(const Part& part) {
  part.Box.SelectAll();
  StatusBar1.SetText(GetLocalText(part.Prompt, "NUMBER", "1"));
}

void frmTime::TakeCharacter(const Part& part, int& character) {
  auto& box = part.Box;
  if (box.SelLength() > 0) box.SetText("");
  if (character == keys::Backspace) return;
  if (character >= '0' && character <= '9') {
    const std::string digit(1, static_cast<char>(character));
    // A digit before the one that is there makes it the second one.
    const auto trial = box.SelStart() == 0 ? digit + box.Text() : box.Text() + digit;
    if (NumericValue(trial) < part.Count) return;
  }
  character = 0;
  Form.Beep();
}

void frmTime::Leave(const Part& part) {
  if (part.Box.Text().empty()) part.Box.SetText("0");
  part.Box.SetText(TwoDigits(ToInteger(NumericValue(part.Box.Text()))));
  StatusBar1.SetText("");
}

void frmTime::Step(int by) {
  const auto* part = txtHour.HasFocus() ? &hour_ : txtMinute.HasFocus() ? &minute_ : nullptr;
  if (part == nullptr) return Form.Beep();
  part->Box.SetText(TwoDigits((ToInteger(NumericValue(part->Box.Text())) + by + part->Count) % part->Count));
}

}  // namespace orlin
