#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One of a fixed list of times of day.
class frmCustDisplayStringList {
 public:
  frmCustDisplayStringList();
  std::int32_t Display(std::int16_t Index, Value& res);

 private:
  [[nodiscard]] static std::string Line(std::int16_t position);
  void List1_Click();

  // At the begin and at the end of the list; in English, whatever the language.
  static constexpr std::array<FixedText, 2> kFixedLines = {{{"DISABLED", 20018}, {"MIDNIGHT", 20019}}};

  Dialog Form{"frmCustDisplayStringList", 124, {.HandlesFailures = true}};

  Label Label1{Form, "Label1", 1174};
  ListBox List1{Form, "List1", {.Common = {.Fixed = kFixedLines}}};
  Frame Frame1{Form, "Frame1", 1169};
  TextBox txtValue{Frame1, "txtValue", {.Common = {.Fixed = kFixedLines}}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  /// The position of the last choice, as a text; empty until there was one.
  Value ChosenIndex;
};

}  // namespace orlin
