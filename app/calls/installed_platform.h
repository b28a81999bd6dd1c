#pragma once

#include <utility>

#include "OrlinCustomDialogs/platform.h"

namespace orlin {

/// A platform that the library uses as long as this lives.
class InstalledPlatform {
 public:
  explicit InstalledPlatform(Platform platform) { UsePlatform(std::move(platform)); }
  InstalledPlatform(const InstalledPlatform&) = delete;
  InstalledPlatform& operator=(const InstalledPlatform&) = delete;
  ~InstalledPlatform() { UsePlatform({}); }
};

}  // namespace orlin
