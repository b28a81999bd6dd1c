#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "frame/dialog/dialog.h"
#include "frame/services/services.h"
#include "frame/values/skip_failure.h"

namespace orlin {

/// Results of `Display`. Any other value is the number of a failure, or an exception that the dialog states.
inline constexpr std::int32_t kConfirmed = 0;
inline constexpr std::int32_t kNotConfirmed = 1;

/// What the `Display` of one dialog adds to the course that all share. The steps of one call are numbered as in
/// docs/architecture.md: 2, 3 and 12 are `CallDialog`'s, 5 is the dialog's first touch, 8 its `ShowModal`.
struct DisplaySteps {
  /// 4, 6, 7: keeps members, decodes the raw values, fills the lists, applies rights, sets the title.
  std::function<void()> Prepare;
  /// 9, after OK: encodes the controls into the arguments. After any other end the result is 1, and nothing happens.
  std::function<void()> Encode;
  /// 9 in dialogs with outcomes of their own: after any end of the show, stores what is due and gives the result.
  std::function<std::int32_t()> Conclude;
  /// 10: reports the failure that ended the course.
  std::function<void(const Failure&)> Report;
  /// The result of a failure, where that is not its number.
  std::optional<std::int32_t> FailureResult;
};

/// The course of one `Display`, 4 to 11: prepare, show, encode, clean up. The life of the dialog decides whether a
/// failure ends it with the failure's number as the result, or is skipped so that it goes on with the next step; and
/// what the clean-up does.
[[nodiscard]] std::int32_t RunDisplay(Dialog& form, const DisplaySteps& steps);

/// One call of a public class, 2 to 12: makes the dialog, runs its `Display` and drops it. A failure becomes the
/// result. For the classes that convert arguments once the dialog is there: `call` gets it.
template <class Form, class Call>
[[nodiscard]] std::int32_t CallDialogWith(Call call) {
  try {
    const RunningCall running;
    Form dialog;
    return call(dialog);
  } catch (const Failure& failure) {
    return failure.Number();
  }
}

/// The same for all other classes: the arguments go through as they are.
template <class Form, class... Arguments>
[[nodiscard]] std::int32_t CallDialog(Arguments&&... arguments) {
  return CallDialogWith<Form>([&](Form& dialog) { return dialog.Display(arguments...); });
}

/// The same in the public classes that have no failure handler: a failure reaches the host.
template <class Form, class... Arguments>
[[nodiscard]] std::int32_t CallDialogUnguarded(Arguments&&... arguments) {
  const RunningCall running;
  Form dialog;
  return dialog.Display(arguments...);
}

}  // namespace orlin
