#pragma once

#include "schedules/sked_funcs_dialog.h"

namespace orlin {

/// The sked function of the Arbor models.
class frmSkedFuncsArbor : public SkedFuncsDialog {
 public:
  frmSkedFuncsArbor() : SkedFuncsDialog("frmSkedFuncsArbor", sked::kArbor) {}
};

}  // namespace orlin
