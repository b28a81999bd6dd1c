#pragma once

#include <cstdint>
#include <string>

namespace orlin {

/// A fault as it went to the log.
struct LoggedFault {
  std::int32_t Number = 0;
  std::string Module;
  std::string Procedure;
  std::string AdditionalText;
  bool Shown = false;  ///< the operator has been shown it
};

}  // namespace orlin
