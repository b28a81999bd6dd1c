#pragma once

#include <vector>

#include "OrlinCustomDialogs/public_classes.h"

namespace orlin {

/// The public classes of this subsystem.
[[nodiscard]] std::vector<PublicClass> NotesClasses();

}  // namespace orlin
