#include "app/calls/call.h"

#include <utility>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {

std::optional<std::int32_t> Outcome::Failure() const {
  constexpr std::int32_t lastOutcome = 2;  // numbers of failures lie above
  if (!Result) return Raised;
  if (*Result < 0 || *Result > lastOutcome) return Result;
  return std::nullopt;
}

Outcome Call(const PublicClass& publicClass, std::vector<Value> values, ValueForm form) {
  const bool stored = form == ValueForm::Stored;
  Outcome outcome;
  auto arguments = stored ? publicClass.ArgumentsFrom(values) : values;
  try {
    outcome.Result = publicClass.Display(arguments);
    outcome.Confirmed = publicClass.Confirmed(*outcome.Result, arguments);
  } catch (const Failure& failure) {
    outcome.Raised = failure.Number();
  }
  if (!stored) {
    outcome.Arguments = std::move(arguments);
  } else {
    outcome.Arguments = outcome.Confirmed ? publicClass.StoredFrom(std::move(values), arguments) : std::move(values);
  }
  return outcome;
}

}  // namespace orlin
