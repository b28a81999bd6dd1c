#pragma once

#include <vector>

#include "OrlinCustomDialogs/public_classes.h"

namespace orlin {

// The public classes of each subsystem, which the component puts into one register.

[[nodiscard]] std::vector<PublicClass> NotesClasses();
[[nodiscard]] std::vector<PublicClass> OptionsClasses();
[[nodiscard]] std::vector<PublicClass> OutputsClasses();
[[nodiscard]] std::vector<PublicClass> SchedulesClasses();
[[nodiscard]] std::vector<PublicClass> VerificationClasses();
[[nodiscard]] std::vector<PublicClass> WirelessClasses();
[[nodiscard]] std::vector<PublicClass> ZonesClasses();

}  // namespace orlin
