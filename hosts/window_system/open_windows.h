#pragma once

#include "window_system/window_system.h"

namespace orlin {

/// Why no window can be opened.
inline constexpr const char* kNoDisplay =
    "there is no display to open a window on: name an operator's script with --script FILE";

/// The windows of Qt, which are there once in a process and go before it ends. What the environment says of the
/// platform of Qt counts on either screen. `std::runtime_error` where no display is named; where one is named that
/// cannot be reached, Qt itself ends the process.
[[nodiscard]] std::unique_ptr<WindowSystem> OpenWindows(Screen screen);

}  // namespace orlin
