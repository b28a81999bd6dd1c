#pragma once

#include "frame/controls/control.h"

namespace orlin {

/// A group of controls, which hides and disables them with itself.
class Frame : public Control {
 public:
  Frame(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {})
      : Control(ControlKind::Frame, in, name, caption, state) {}

 private:
  friend class Container;
};

}  // namespace orlin
