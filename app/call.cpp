#include "app/call.h"

#include <utility>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {

std::optional<std::int32_t> Outcome::Failure() const {
  constexpr std::int32_t lastOutcome = 2;  // numbers of failures lie above
  if (!Result) return Raised;
  if (*Result < 0 || *Result > lastOutcome) return Result;
  return std::nullopt;
}

Outcome Call(const PublicClass& publicClass, std::vector<Value> arguments) {
  Outcome outcome;
  outcome.Arguments = std::move(arguments);
  try {
    outcome.Result = publicClass.Display(outcome.Arguments);
  } catch (const Failure& failure) {
    outcome.Raised = failure.Number();
  }
  return outcome;
}

}  // namespace orlin
