#pragma once

#include <memory>
#include <vector>

#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

#include "app/calls/call.h"
#include "app/description/description.h"

namespace orlin {

/// Tells what values mean, in words. The library stands on a platform of its own while it does.
class Describer {
 public:
  /// Faults are recorded only where the platform names a file. `PlatformError` for one that makes no sense.
  explicit Describer(StandardPlatformOptions platform, Wording wording = Wording::Translated);

  /// Opens nothing for anybody, and changes nothing.
  [[nodiscard]] Description Describe(const PublicClass& publicClass, std::vector<Value> values, ValueForm form);

 private:
  class Host;
  static orlin::Platform PlatformFor(const std::shared_ptr<Host>& host, StandardPlatformOptions options);

  std::shared_ptr<Host> host_;
  orlin::Platform platform_;
};

}  // namespace orlin
