#pragma once

#include "frame/controls/control.h"

namespace orlin {

class Label : public Control {
 public:
  Label(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {},
        int index = -1)
      : Control(ControlKind::Label, in, name, caption, state, index) {}

  /// The next control in order of declaration that takes the focus, has no caption of its own and stands in the same
  /// container. Where several take turns behind one label, it is the one that is visible. A label of an array names the
  /// control with its index in the array that follows.
  [[nodiscard]] shown::Control* Names() const override;
};

}  // namespace orlin
