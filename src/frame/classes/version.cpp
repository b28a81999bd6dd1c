#include "OrlinCustomDialogs/version.h"

#include <string>

namespace orlin {

std::string_view LibraryVersion() {
  static const auto version = std::to_string(ORLIN_VERSION_MAJOR) + "." + std::to_string(ORLIN_VERSION_MINOR) + "." +
                              std::to_string(ORLIN_VERSION_REVISION);
  return version;
}

}  // namespace orlin
