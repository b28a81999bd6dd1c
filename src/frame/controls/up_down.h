#pragma once

#include "frame/controls/text_box.h"

namespace orlin {

struct UpDownState {
  int Min = 0;
  int Max = 100;
  TextBox* Buddy = nullptr;  ///< outlives the up-down
  /// Whether the value follows the number in the box as it changes; else a press takes it up. Then a press at a limit
  /// does nothing, too.
  bool FollowsBuddy = false;
  ControlState Common = {};
};

class UpDown : public Control, public shown::Stepper {
 public:
  using Direction = shown::Direction;

  UpDown(const Container& in, std::string_view name, const UpDownState& state = {});

  [[nodiscard]] shown::Stepper* AsStepper() noexcept override { return this; }
  [[nodiscard]] std::int16_t Value() const noexcept override { return value_; }
  [[nodiscard]] std::int16_t Min() const noexcept override { return min_; }
  [[nodiscard]] std::int16_t Max() const noexcept override { return max_; }
  [[nodiscard]] const shown::Control* Buddy() const noexcept override { return buddy_; }
  Refusal Step(shown::Direction direction) override;

  /// `Failure` 380 outside the limits.
  void SetValue(int value);

  Event<> Change;
  Event<> UpClick;
  Event<> DownClick;

 private:
  /// The number that a press starts from, within the limits.
  [[nodiscard]] std::int16_t Start() const;
  void Put(int value, By by);

  std::int16_t min_;
  std::int16_t max_;
  std::int16_t value_;
  TextBox* buddy_;
  bool followsBuddy_;
};

}  // namespace orlin
