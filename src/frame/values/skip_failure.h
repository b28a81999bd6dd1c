#pragma once

#include <cstdint>
#include <utility>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {

/// Runs each statement in turn; one that fails ends there, and the next one runs. For routines that carry on past a
/// failure with the next statement: there what can fail stands in it (texts, conversions, rows), and a handler that
/// a failure ends is wrapped as a whole where it is wired.
template <class... Statements>
void SkipFailure(Statements&&... statements) {
  const auto run = [](auto& statement) {
    try {
      statement();
    } catch (const Failure&) {
    }
  };
  (run(statements), ...);
}

/// Raises what a call returned, where that is the number of a failure.
inline void RaiseResult(std::int32_t result) {
  if (result != 0) throw Failure(result);
}

}  // namespace orlin
