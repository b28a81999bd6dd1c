#pragma once

#include "frame/controls/control.h"

namespace orlin {

class StatusBar : public Control {
 public:
  StatusBar(const Container& in, std::string_view name, const ControlState& state = {})
      : Control(ControlKind::StatusBar, in, name, {}, state) {}

  [[nodiscard]] const std::string& Text() const noexcept { return Caption(); }
  void SetText(std::string text) { SetCaption(std::move(text)); }
};

}  // namespace orlin
