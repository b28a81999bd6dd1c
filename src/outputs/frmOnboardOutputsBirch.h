#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One onboard output of the Birch panels: a type, and one of up to five options, whose captions and usability depend
/// on the type.
class frmOnboardOutputsBirch {
 public:
  frmOnboardOutputsBirch();
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, const Value& SecurityLevels);

 private:
  void FillOnboardTypes();
  void FillOnboardOptions();
  /// All but the first option.
  void SetOptionsEnabled(bool on);

  void cmbType_Click();
  void optOption_Click(int index);

  Dialog Form{"frmOnboardOutputsBirch", 1241, kUsualLife};

  Label lblOutputFollows{Form, "lblOutputFollows", 1247};
  ComboBox cmbType{Form, "cmbType"};
  Frame fraOptions{Form, "fraOptions", 1242};
  ControlArray<OptionButton, 5> optOption{fraOptions, "optOption", {513, 1246, 1243, 1245, 1244}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // The option that was clicked last.
  std::int16_t SelectedOption = 0;
};

}  // namespace orlin
