#include "frame/controls/timer.h"

namespace orlin {

void Timer::SetInterval(int milliseconds) {
  Touch();
  interval_ = milliseconds;
  Changed();
}

bool Timer::Running() const noexcept { return Form().IsShown() && Enabled() && interval_ > 0; }

Refusal Timer::Tick() {
  if (!Form().IsShown()) return "the dialog is not shown";
  if (!Running()) return Name() + " is not running";
  Raise(By::Operator, OnTimer, "Timer");
  return {};
}

}  // namespace orlin
