#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// A time of day on a 24-hour clock.
class frmTime {
 public:
  frmTime();
  std::int32_t Display(std::int16_t Index, Value& res);

 private:
  /// A box for so many numbers from 0 on, and what the status line says while it has the focus.
  struct Part {
    TextBox& Box;
    int Count;
    std::int16_t Prompt;
  };

  void Form_KeyDown(int& key);
  void txtHour_GotFocus();
  void txtHour_KeyPress(int& character);
  void txtHour_LostFocus();
  void txtMinute_GotFocus();
  void txtMinute_KeyPress(int& character);
  void txtMinute_LostFocus();
  void UpDown1_UpClick();
  void UpDown1_DownClick();
  void cmdOK_Click();

  void Enter(const Part& part);
  void TakeCharacter(const Part& part, int& character);
  void Leave(const Part& part);
  /// Steps the box that has the focus.
  void Step(int by);

  Dialog Form{"frmTime", 1175, {.HandlesFailures = true}};

  TextBox txtHour{Form, "txtHour", {.Text = "00", .MaxLength = 2, .Common = {.Spoken = 20000}}};
  Label Label1{Form, "Label1", ":", Label::Separator};
  TextBox txtMinute{Form, "txtMinute", {.Text = "00", .MaxLength = 2, .Common = {.Spoken = 20001}}};
  Label lblIndicator{Form, "lblIndicator", "24", Label::Unit, {.Spoken = 20042}};
  UpDown UpDown1{Form, "UpDown1"};
  StatusBar StatusBar1{Form, "StatusBar1"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  const Part hour_{txtHour, 24, 1177};
  const Part minute_{txtMinute, 60, 1178};
  std::int16_t TimeMinutes = 0;
};

}  // namespace orlin
