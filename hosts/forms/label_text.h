#pragma once

#include <algorithm>
#include <string>

#include "OrlinCustomDialogs/host/controls.h"
#include "OrlinCustomDialogs/host/keys.h"

// What the text of a label, or the kind of a control, says of its part in a form: for all that lay dialogs out or tell
// them, so that both see the same form. Bytes beyond ASCII are letters of some language.

namespace orlin {

[[nodiscard]] inline bool IsMark(const shown::Control& control) {
  return control.Kind() == ControlKind::CheckBox || control.Kind() == ControlKind::OptionButton;
}

/// "," or ":" between two boxes.
[[nodiscard]] inline bool IsSeparator(const shown::Control& label) {
  const auto text = PlainCaption(label.Caption());
  return !text.empty() && std::none_of(text.begin(), text.end(), [](unsigned char c) {
    return c >= 0x80 || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  });
}

/// A unit such as "Min"; longer texts are explanations, and those with a colon name something.
[[nodiscard]] inline bool IsUnit(const shown::Control& label) {
  constexpr auto longest = 10;
  const auto text = PlainCaption(label.Caption());
  const auto characters = std::count_if(text.begin(), text.end(), [](unsigned char c) { return (c & 0xC0) != 0x80; });
  return characters <= longest && !text.ends_with(':');
}

/// A raw value such as "1390C"; a word of any language has other letters.
[[nodiscard]] inline bool IsCode(const shown::Control& label) {
  const auto text = PlainCaption(label.Caption());
  return !text.empty() && std::none_of(text.begin(), text.end(),
                                       [](unsigned char c) { return c <= ' ' || c >= 0x7F || (c >= 'a' && c <= 'z'); });
}

}  // namespace orlin
