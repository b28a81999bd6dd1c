#pragma once

#include <nlohmann/json_fwd.hpp>

#include "OrlinCustomDialogs/host/controls.h"

namespace orlin {

/// All that a control shows: what every kind has, then what its own kind adds.
[[nodiscard]] nlohmann::ordered_json StateOf(const shown::Control& control);

}  // namespace orlin
