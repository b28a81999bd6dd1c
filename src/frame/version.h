#pragma once

#include <string>

namespace orlin {

/// Major, minor and revision number, joined by ".".
[[nodiscard]] inline std::string LibraryVersion() { return ORLIN_VERSION; }

}  // namespace orlin
