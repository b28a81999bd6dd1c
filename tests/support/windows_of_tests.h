#pragma once

#include "window_system/window_system.h"

namespace orlin::testing {

/// The windows in which every script is played a second time, with the same trace; null in a test program without.
[[nodiscard]] WindowSystem* WindowsOfTests();

}  // namespace orlin::testing
