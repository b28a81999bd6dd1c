#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/dialog/dialog.h"
#include "frame/services/modPanelTypes.h"
#include "schedules/willow_sked_code.h"

namespace orlin {

/// One sked of the Willow panels: when it runs, on which date or days, and what it does.
class frmSkedFuncsWillow {
 public:
  frmSkedFuncsWillow();
  std::int32_t Display(const Value& SkedNo, Value& SkedType, Value& SkedTime, Value& TimeEdit, Value& SkedData,
                       Value& SkedFunc, const Value& SecurityLevels, ePanelType PanelType);

 private:
  void optDate_Click();
  void optDOW_Click();
  void optDisabled_Click();
  void HideSkedFrames();
  /// Without an object: January, the 1st.
  void DisplayDate(const Value* vSkedData);
  /// Without an object the days stay as they are.
  void DisplayDOW(const Value* vSkedData);

  struct Rights {
    bool Visible;
    bool Enabled;
  };
  /// What the operator's `ViewLevel` alone allows.
  [[nodiscard]] Rights RightsBy(std::string_view key, Rights withoutRecord) const;
  /// Shows and enables a part of a sked that was chosen, as far as the operator's rights go.
  void ShowWithinRights(Frame& part, std::string_view key);

  void chkDOW_Click(int Index);
  void FillMonths();
  void FillDays();
  void cmbDay_GotFocus();

  void TimeBox_KeyPress(TextBox& box, int limit, int& key);
  void TimeBox_LostFocus(TextBox& box);
  /// Steps the box that has the focus.
  void StepTime(int by);

  void FillFunctionCodes(std::string_view vSkedFunc);
  void cmbSkedCode_Change();

  void cmdOK_Click();
  /// Whether a date, a code is there; else the operator has been told.
  bool ValidateDate();
  bool ValidateCode();
  void TellMissing(std::int16_t message, std::int16_t title, ComboBox& list);

  Dialog Form{"frmSkedFuncsWillow", 1519, kUsualLife};

  Frame fraType{Form, "fraType", 1525};
  OptionButton optDate{fraType, "optDate", 1528};
  OptionButton optDOW{fraType, "optDOW", 1527};
  OptionButton optDisabled{fraType, "optDisabled", 1526};

  Frame fraTime{Form, "fraTime", 1520};
  TextBox txtHour{fraTime, "txtHour", {.Text = "00", .MaxLength = 2, .Common = {.Spoken = 20000}}};
  Label lblTimeColon{fraTime, "lblTimeColon", ":", Label::Separator};
  TextBox txtMinute{fraTime, "txtMinute", {.Text = "00", .MaxLength = 2, .Common = {.Spoken = 20001}}};
  Label lblIndicator{fraTime, "lblIndicator", "24", Label::Unit, {.Spoken = 20042}};
  UpDown udTime{fraTime, "udTime"};
  Label lblHourMinDef{fraTime, "lblHourMinDef", 1521, Label::Text};
  CheckBox chkTimeEdit{fraTime, "chkTimeEdit", 1522};

  Frame fraDate{Form, "fraDate", 1523};
  Label lblMonth{fraDate, "lblMonth", 1155};
  ComboBox cmbMonth{fraDate, "cmbMonth"};
  Label lblDay{fraDate, "lblDay", 1154};
  ComboBox cmbDay{fraDate, "cmbDay"};
  Label lblMonthDayDef{fraDate, "lblMonthDayDef", 1524, Label::Text};

  Frame fraDOW{Form, "fraDOW", 1529};
  ControlArray<CheckBox, willow::kDaysOfWeek> chkDOW{fraDOW, "chkDOW", {1536, 1535, 1534, 1533, 1532, 1531, 1530}};

  Frame fraCode{Form, "fraCode", 1265};
  ComboBox cmbSkedCode{fraCode, "cmbSkedCode", {.HasEditField = true}};

  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  ePanelType panelType_{};
  willow::SkedType skedType_ = willow::SkedType::Disabled;
  std::int16_t dayBits_ = 0;
  std::string dateText_;
  std::string lastValidCode_;
  /// What goes back as `SkedData`.
  Value skedData_;
};

}  // namespace orlin
