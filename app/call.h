#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// What came of a call of `Display`.
struct Outcome {
  std::optional<std::int32_t> Result;  ///< nothing where the class let a failure through
  std::int32_t Raised = 0;             ///< the number of that failure
  std::vector<Value> Arguments;

  /// The number of the failure that ended the call, let through or returned; nothing after OK, Cancel or close.
  [[nodiscard]] std::optional<std::int32_t> Failure() const;
};

/// Calls `Display` on a new object of the class.
[[nodiscard]] Outcome Call(const PublicClass& publicClass, std::vector<Value> arguments);

}  // namespace orlin
