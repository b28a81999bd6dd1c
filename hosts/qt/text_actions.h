#pragma once

#include "OrlinCustomDialogs/host/controls.h"

#include "qt/control_view.h"
#include "qt/passive_edit.h"

namespace orlin {

/// What a field of the screen does to a text box or to the edit field of a combo box.
[[nodiscard]] EditActions ActionsOn(shown::TextField& box, shown::Dialog& form, Desk& desk);

}  // namespace orlin
