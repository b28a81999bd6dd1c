#pragma once

#include "qt/window_system.h"

namespace orlin {

/// The windows of Qt, which are there once in a process and go before it ends. `std::runtime_error` where no display is
/// named; where one is named that cannot be reached, the process ends with status 2 after the same line.
[[nodiscard]] std::unique_ptr<WindowSystem> OpenWindows();

}  // namespace orlin
