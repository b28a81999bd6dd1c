#pragma once

#include "frame/dialog/dialog.h"

namespace orlin::testing {

/// A dialog with a control of every kind.
struct Sample {
  Dialog Form{"frmSample", "Every &kind", {}};
  Label lblName{Form, "lblName", "&Name:"};
  TextBox txtName{Form, "txtName", {.Text = "ab", .MaxLength = 5, .Common = {.Left = 10, .Top = 20, .Width = 30}}};
  Label lblPick{Form, "lblPick", "Pi&ck:"};
  ComboBox cmbPick{Form, "cmbPick"};
  ComboBox cmbEdit{Form, "cmbEdit", {.HasEditField = true}};
  Label lblLines{Form, "lblLines", "Lines:"};
  TextBox txtLines{Form, "txtLines", {.MultiLine = true}};
  TextBox txtLocked{Form, "txtLocked", {.Locked = true}};
  Frame fraMode{Form, "fraMode", "Mode"};
  OptionButton optA{fraMode, "optA", "&A", {.Value = true}};
  OptionButton optB{fraMode, "optB", "&B"};
  Label lblC{fraMode, "lblC", "C"};
  OptionButton optC{fraMode, "optC"};
  TextBox txtHour{fraMode, "txtHour", {.Text = "7", .MaxLength = 2}};
  UpDown udHour{fraMode, "udHour", {.Min = 1, .Max = 23, .Buddy = &txtHour}};
  Label lblUnit{fraMode, "lblUnit", "h", Label::Unit};
  CheckBox chkOn{Form, "chkOn", "&On"};
  ListBox lstOne{Form, "lstOne"};
  ListBox lstMany{Form, "lstMany", {.Choice = shown::Choice::Many}};
  ListBox lstChecks{Form, "lstChecks", {.Choice = shown::Choice::Checks}};
  StatusBar staLine{Form, "staLine"};
  Timer tmrClock{Form, "tmrClock", {.Interval = 1}};
  Grid grdTable{Form, "grdTable", {.Rows = 3, .Cols = 2, .FixedRows = 1}};
  Button cmdHidden{Form, "cmdHidden", "Hidden", {.Visible = false}};
  Button cmdAsk{Form, "cmdAsk", "Ask"};
  Button cmdFail{Form, "cmdFail", "Fail"};
  OKButton cmdOK{Form, "OK"};
  CancelButton cmdCancel{Form, "Cancel"};
  int Answered = 0;

  Sample() {
    for (const char* text : {"one", "two"}) {
      cmbPick.AddItem(text, 7), cmbEdit.AddItem(text);
      lstOne.AddItem(text), lstMany.AddItem(text), lstChecks.AddItem(text);
    }
    txtLines.KeyPress = [this](int& character) {
      if (character == '!') txtLines.SetEnabled(false);
    };
    grdTable.SetCellText(0, 0, "Title"), grdTable.SetCellText(1, 1, "old");
    grdTable.SetCellColor(1, 1, 255), grdTable.SetCellBold(2, 0, true);
    grdTable.DblClick = [this] { grdTable.EditCell(); };
    grdTable.StartEdit = [](int, int col, bool& cancel) { cancel = col == 0; };
    tmrClock.OnTimer = [this] { staLine.SetText("ticked"); };
    cmdAsk.Click = [this] { Answered = Form.ShowMessage("Sure?", Message::YesNo, "Title"); };
    cmdFail.Click = [this] { Form.Beep(), throw Failure(failures::InvalidPropertyValue); };
  }
};

}  // namespace orlin::testing
