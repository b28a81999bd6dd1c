#pragma once

#include <vector>

#include "frame/controls/control.h"

namespace orlin {

/// What a label is for, and of which label where that is a value or a colour.
struct LabelUse {
  LabelUse(shown::LabelRole role, Control* toldBy = nullptr) : Role(role), ToldBy(toldBy) {}

  shown::LabelRole Role;
  Control* ToldBy;
  std::vector<shown::Control*> CodeLists = {};
};

class Label : public Control {
 public:
  /// Names the next control.
  Label(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {},
        int index = -1)
      : Label(in, name, caption, shown::LabelRole::Name, state, index) {}
  Label(const Container& in, std::string_view name, const CaptionSource& caption, const LabelUse& use,
        const ControlState& state = {}, int index = -1)
      : Control(ControlKind::Label, in, name, caption, state, index), use_(use) {}

  static constexpr auto Text = shown::LabelRole::Text;
  static constexpr auto Unit = shown::LabelRole::Unit;
  static constexpr auto Separator = shown::LabelRole::Separator;
  static LabelUse ValueOf(Control& label) { return {shown::LabelRole::Value, &label}; }
  /// A value that is a code, one character from the row of each list.
  template <class Lists>
  static LabelUse CodeOf(Control& label, Lists& lists) {
    auto use = ValueOf(label);
    for (auto& list : lists) use.CodeLists.push_back(&list);
    return use;
  }
  static LabelUse ColourOf(Control& label) { return {shown::LabelRole::ColourKey, &label}; }

  [[nodiscard]] shown::LabelRole Role() const noexcept override { return use_.Role; }
  /// The next control in order of declaration that takes the focus, has no caption of its own and stands in the same
  /// container. Where several take turns behind one label, it is the one that is visible. A label of an array names the
  /// control with its index in the array that follows.
  [[nodiscard]] shown::Control* Names() const override;
  [[nodiscard]] shown::Control* ToldBy() const noexcept override { return use_.ToldBy; }
  [[nodiscard]] std::vector<shown::Control*> CodeLists() const override { return use_.CodeLists; }

 private:
  LabelUse use_;
};

}  // namespace orlin
