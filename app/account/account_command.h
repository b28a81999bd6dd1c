#pragma once

#include <optional>
#include <string>

#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "window_system/window_system.h"

namespace orlin {

/// `orlin-host account`, as the command line tells it.
struct AccountOptions {
  std::string File;
  /// Pictures of all editors are saved there in place of windows.
  std::optional<std::string> PictureFolder;
  double FontScale = 1;
  bool Dark = false;
  StandardPlatformOptions Platform;
};

/// Shows the parameters of an account until the operator closes the window, and returns the exit status. `UsageError`
/// or `PlatformError` for what makes no sense.
int ShowAccount(AccountOptions options, const WindowOpener& windows);

}  // namespace orlin
