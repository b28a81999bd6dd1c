#pragma once

#include "frame/controls/control.h"

namespace orlin {

struct TimerState {
  int Interval = 0;
  ControlState Common = {};
};

class Timer : public Control, public shown::Ticker {
 public:
  Timer(const Container& in, std::string_view name, const TimerState& state = {})
      : Control(ControlKind::Timer, in, name, {}, state.Common), interval_(state.Interval) {}

  [[nodiscard]] shown::Ticker* AsTicker() noexcept override { return this; }
  [[nodiscard]] int Interval() const noexcept override { return interval_; }
  [[nodiscard]] bool Running() const noexcept override;
  Refusal Tick() override;

  void SetInterval(int milliseconds);

  /// The event "Timer".
  Event<> OnTimer;

 private:
  int interval_;
};

}  // namespace orlin
