#include "frame/dialog/display_protocol.h"

namespace orlin {
namespace {

std::int32_t Outcome(Dialog& form, const DisplaySteps& steps) {
  if (steps.Conclude) return steps.Conclude();
  if (form.ExitCode() != ExitCode::OK) return kNotConfirmed;
  steps.Encode();
  return kConfirmed;
}

/// Ends a failure with its number as the result.
std::int32_t RunHandled(Dialog& form, const DisplaySteps& steps) {
  try {
    steps.Prepare();
    form.ShowModal();
    return Outcome(form, steps);
  } catch (const Failure& failure) {
    if (steps.Report) steps.Report(failure);
    return steps.FailureResult.value_or(failure.Number());
  }
}

/// Carries on with the next step.
std::int32_t RunSkipping(Dialog& form, const DisplaySteps& steps) {
  std::int32_t result = kNotConfirmed;
  SkipFailure(
      steps.Prepare, [&] { form.ShowModal(); }, [&] { result = Outcome(form, steps); });
  return result;
}

/// Step 11: runs when `Display` ends, however it ends.
class CleanUp {
 public:
  explicit CleanUp(Dialog& form) : form_(form) {}
  CleanUp(const CleanUp&) = delete;
  CleanUp& operator=(const CleanUp&) = delete;
  ~CleanUp() {
    form_.DropSecurityLevels();
    if (form_.Life().ReleasesServices) ReleaseSharedServices();
    if (form_.Life().Unloads) form_.Unload();
  }

 private:
  Dialog& form_;
};

}  // namespace

std::int32_t RunDisplay(Dialog& form, const DisplaySteps& steps) {
  const CleanUp cleanUp(form);
  return form.Life().HandlesFailures ? RunHandled(form, steps) : RunSkipping(form, steps);
}

}  // namespace orlin
