#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One relay of a Birch octal relay module: a type, an option whose list depends on the type, and a data byte, which
/// is an event, a function number or a zone by the type. Each of these three has an input area of its own, of which
/// one shows.
class frmOctalRelaysBirch {
 public:
  frmOctalRelaysBirch();
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, Value& vData, const Value& SecurityLevels);

 private:
  void FillOctalTypes();
  void FillOctalOptions();
  void FillOctalFunctions();
  void ShowData(const Value& vData);
  [[nodiscard]] double EnteredData() const;
  void ShowInputArea();
  /// Shows and enables controls as the rights of a record allow.
  void ShowWithinRights(std::string_view key, const std::vector<AnyControl>& controls);
  void SetFunctionDisabled(TextBox& box, bool disabled);

  void cmbType_Click();
  void cmbFunction_Click();
  void chkDisabled_Click();
  void udFunction_Step();
  void txtFunction_KeyDown(int key);
  void txtFollowZone_Change();

  Dialog Form{"frmOctalRelaysBirch", 1189, kUsualLife};

  Label lblType{Form, "lblType", 234};
  ComboBox cmbType{Form, "cmbType"};
  Label lblOption{Form, "lblOption", 1190};
  ComboBox cmbOption{Form, "cmbOption"};
  Label lblFunction{Form, "lblFunction", 1191};
  ComboBox cmbFunction{Form, "cmbFunction"};
  TextBox txtFunction{Form, "txtFunction", {.Text = "1", .Locked = true}};
  UpDown udFunction{Form, "udFunction", {.Min = 1, .Max = 24, .Buddy = &txtFunction, .FollowsBuddy = true}};
  CheckBox chkDisabled{Form, "chkDisabled", 164};
  TextBox txtFollowZone{Form, "txtFollowZone", {.MaxLength = 3}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // The function to show again when chkDisabled is cleared. Also takes each new position of cmbFunction.
  std::int16_t FunctionMemory = 0;
  // The last text of txtFollowZone that passed the digit test, and whether its changes are tested.
  std::string LastFollowZone;
  bool ZoneFilterOn = false;
};

}  // namespace orlin
