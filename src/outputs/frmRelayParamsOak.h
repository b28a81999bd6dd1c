#pragma once

#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"
#include "frame/services/modPanelTypes.h"

namespace orlin {

/// One function of a relay of the Oak panels: a function code and its check items, which are points, keys or users by
/// the code. All codes share one array of bits, so that a change of code keeps them by position.
class frmRelayParamsOak {
 public:
  frmRelayParamsOak();
  std::int32_t Display(const Value& RelayNo, const Value& FunctionNo, Value& FunctionCode, Value& ParameterCode,
                       const Value& SecurityLevels, ePanelType panelType);

 private:
  void FillFunctionList();
  void FillParameterList();
  void AddParameters(int count, std::int16_t text, const std::string& variable, bool lettered = false);

  void cmbFunction_Click();
  void lstMSParam_ItemCheck(int Item);

  Dialog Form{"frmRelayParamsOak", 1490, kUsualLife};

  Label lblFunction{Form, "lblFunction", 1191};
  ComboBox cmbFunction{Form, "cmbFunction"};
  Label lblParameter{Form, "lblParameter", 1491};
  ListBox lstMSParam{Form, "lstMSParam", {.Choice = shown::Choice::Checks}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  // The records that stand for the two controls of the edited function.
  std::string FunctionKey;
  std::string ParameterKey;
  // The working copy of ParameterCode, with its bounds; each element is a byte.
  Array ParamBits;
  ePanelType PanelType = ePanelType::OakGrand;
};

}  // namespace orlin
