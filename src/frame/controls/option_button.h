#pragma once

#include <vector>

#include "frame/controls/control.h"

namespace orlin {

struct OptionState {
  bool Value = false;
  ControlState Common = {};
};

/// One of the options of its container, of which at most one is on.
class OptionButton : public Control, public shown::Mark {
 public:
  OptionButton(const Container& in, std::string_view name, const CaptionSource& caption = {},
               const OptionState& state = {}, int index = -1)
      : Control(ControlKind::OptionButton, in, name, caption, state.Common, index), value_(state.Value) {}

  [[nodiscard]] shown::Mark* AsMark() noexcept override { return this; }
  [[nodiscard]] bool IsOn() const noexcept override { return value_; }
  Refusal Press() override;

  [[nodiscard]] bool Value() const noexcept { return value_; }
  void SetValue(bool value);

  Event<> Click;

 private:
  void TakeKey(const Key& key) override;
  /// The options of a container are one stop of Tab: the one that is on, else the first.
  [[nodiscard]] bool IsTabStop() const override;
  void ClearOthers();
  /// The options of the container within reach.
  [[nodiscard]] std::vector<OptionButton*> Group() const;
  /// Presses the next (previous) option of the group, round its end.
  void PressNeighbour(int step);

  bool value_;
};

}  // namespace orlin
