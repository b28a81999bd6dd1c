#pragma once

#include <utility>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {

/// Runs each statement in turn; one that fails ends there, and the next one runs. For routines that carry on past a
/// failure with the next statement.
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

}  // namespace orlin
