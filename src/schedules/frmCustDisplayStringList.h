#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One of a fixed list of times of day.
class frmCustDisplayStringList {
 public:
  frmCustDisplayStringList();
  std::int32_t Display(std::int16_t Index, Value& res);

 private:
  void List1_Click();

  Dialog Form{"frmCustDisplayStringList", 124, {.HandlesFailures = true}};

  Label Label1{Form, "Label1", 1174};
  ListBox List1{Form, "List1"};
  Frame Frame1{Form, "Frame1", 1169};
  TextBox txtValue{Frame1, "txtValue"};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  /// The position of the last choice, as a text; empty until there was one.
  Value ChosenIndex;
};

}  // namespace orlin
