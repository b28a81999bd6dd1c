#pragma once

#include "frame/controls/control.h"

namespace orlin {

class Button : public Control {
 public:
  Button(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {})
      : Control(ControlKind::Button, in, name, caption, state) {}

  Refusal Press() override;

  Event<> Click;

 private:
  friend class Dialog;
  void TakeKey(const Key& key) override;
};

}  // namespace orlin
