#pragma once

#include "schedules/sked_funcs_dialog.h"

namespace orlin {

/// The sked function of the Kin models.
class frmSkedFuncsKin : public SkedFuncsDialog {
 public:
  frmSkedFuncsKin() : SkedFuncsDialog("frmSkedFuncsKin", sked::kKin) {}
};

}  // namespace orlin
