#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// What the values are that a call is given.
enum class ValueForm {
  Arguments,  ///< what `Display` takes and gives back
  Stored,     ///< what a host stores; it changes only where the operator confirms
};

/// What came of a call of `Display`.
struct Outcome {
  std::optional<std::int32_t> Result;  ///< nothing where the class let a failure through
  std::int32_t Raised = 0;             ///< the number of that failure
  bool Confirmed = false;
  std::vector<Value> Arguments;  ///< in the form in which they were given

  /// The number of the failure that ended the call, let through or returned; nothing after OK, Cancel or close.
  [[nodiscard]] std::optional<std::int32_t> Failure() const;
};

/// Calls `Display` on a new object of the class, with one value for each parameter.
[[nodiscard]] Outcome Call(const PublicClass& publicClass, std::vector<Value> values,
                           ValueForm form = ValueForm::Arguments);

}  // namespace orlin
