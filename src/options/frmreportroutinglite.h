#pragma once

#include <cstdint>

#include "frame/dialog/dialog.h"

namespace orlin {

/// Over which of two routes a report goes.
class frmreportroutinglite {
 public:
  frmreportroutinglite();
  std::int32_t Display(Value& vOption, const Value& SecurityLevels);

 private:
  void optOption_Click(int Index);

  Dialog Form{"frmreportroutinglite", 10561, {.ReleasesServices = true, .Unloads = true, .HandlesFailures = true}};

  Frame Frame1{Form, "Frame1", 1242};
  ControlArray<OptionButton, 4> optOption{Frame1, "optOption", {10565, 10562, 10563, 10564}};
  OKButton cmdOK{Form};
  CancelButton cmdCancel{Form};

  std::int16_t RouteOption = 0;
};

}  // namespace orlin
