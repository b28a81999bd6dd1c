#pragma once

#include "window_system/window_system.h"

namespace orlin {

/// For a program without windows of its own: hands the command over to the program with windows that stands beside it,
/// and does not return. `UsageError` where there is none. To be called before anything is read or told.
[[noreturn]] void BecomeProgramWithWindows(const char* const* words);

}  // namespace orlin
