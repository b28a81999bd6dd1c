#pragma once

#include <istream>
#include <ostream>

#include "window_system/window_system.h"

namespace orlin {

/// Runs orlin-host: data goes to `out`, messages for people to `err`. Returns the exit status; throws nothing but what
/// the streams themselves let through.
/// `windows` is asked when a window is wanted.
int RunCommand(int count, const char* const* words, std::istream& in, std::ostream& out, std::ostream& err,
               const WindowOpener& windows);

}  // namespace orlin
