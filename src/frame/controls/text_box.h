#pragma once

#include <functional>

#include "frame/controls/text_field.h"

namespace orlin {

class TextBox : public Control, public TextField {
 public:
  TextBox(const Container& in, std::string_view name, const TextState& state = {})
      : Control(ControlKind::TextBox, in, name, {}, state.Common), TextField(static_cast<Control&>(*this), state) {}

  [[nodiscard]] shown::TextField* AsTextField() noexcept override { return this; }

 private:
  friend class UpDown;
  void TakeKey(const Key& key) override { TakeTextKey(key); }
  [[nodiscard]] bool KeepsEnter() const override { return MultiLine(); }
  /// Marks the text, unless it has lines.
  void EnterByTab() override {
    if (!MultiLine()) SelectAll();
  }
  void TextChanged() override {
    if (follow_) follow_();
  }

  std::function<void()> follow_;  // of an up-down whose value is the number in here
};

}  // namespace orlin
