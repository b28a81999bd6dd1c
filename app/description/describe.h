#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "app/calls/call.h"

namespace orlin {

/// `orlin-host describe`, as the command line tells it.
struct DescribeOptions {
  std::optional<std::string> Account;  ///< describes the parameters of this file in place of one class
  std::string Class;
  std::vector<std::string> Arguments;  ///< NAME=VALUE
  ValueForm Form = ValueForm::Arguments;
  std::vector<std::string> Levels;  ///< NAME=VIEW,EDIT
  bool Json = false;
  StandardPlatformOptions Platform;
};

/// Prints what raw values mean, in words, and returns the exit status: `Failed` where one of them cannot be shown.
/// Nothing is opened for anybody, and nothing changes; faults are recorded only where the platform names a file.
/// `UsageError` or `PlatformError` for what makes no sense.
int Describe(DescribeOptions options, std::ostream& out);

}  // namespace orlin
