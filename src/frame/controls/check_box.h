#pragma once

#include "frame/controls/control.h"

namespace orlin {

class CheckBox : public Control, public shown::Mark {
 public:
  CheckBox(const Container& in, std::string_view name, const CaptionSource& caption = {},
           const ControlState& state = {}, int index = -1)
      : Control(ControlKind::CheckBox, in, name, caption, state, index) {}

  [[nodiscard]] shown::Mark* AsMark() noexcept override { return this; }
  [[nodiscard]] bool IsOn() const noexcept override { return value_ != 0; }
  Refusal Press() override;

  /// 0 or 1.
  [[nodiscard]] std::int16_t Value() const noexcept { return value_; }
  /// `Failure` 380 for anything but 0 and 1.
  void SetValue(int value);

  Event<> Click;

 private:
  void TakeKey(const Key& key) override;

  std::int16_t value_ = 0;
};

}  // namespace orlin
