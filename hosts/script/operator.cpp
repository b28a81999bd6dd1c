#include "OrlinCustomDialogs/hosts/script/operator.h"

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlin {
namespace {

template <class Use>
Refusal WithAny(const shown::Dialog& dialog, const std::string& name, Use use) {
  auto* control = dialog.Find(name);
  return control != nullptr ? use(*control) : "no control named " + name;
}

/// Uses what controls of some kinds have, by the function that tells it.
template <class Part, class Use>
Refusal With(const shown::Dialog& dialog, const std::string& name, Part* (shown::Control::*part)() noexcept,
             std::string_view kind, Use use) {
  return WithAny(dialog, name, [&](auto& control) -> Refusal {
    if (auto* wanted = (control.*part)()) return use(*wanted);
    return name + " (" + std::string(KindName(control.Kind())) + ") is not " + std::string(kind);
  });
}

template <class Use>
Refusal WithGrid(const shown::Dialog& dialog, const std::string& name, Use use) {
  return With<shown::Table>(dialog, name, &shown::Control::AsTable, "a grid", use);
}

/// Presses keys while the dialog is shown, each wherever the focus is by then; tells the first refusal.
Refusal Press(shown::Dialog& dialog, const std::vector<Key>& typed) {
  Refusal first;
  for (const auto& key : typed) {
    if (!dialog.IsShown()) break;
    auto refusal = dialog.PressKey(key);
    if (!first) first = std::move(refusal);
  }
  return first;
}

}  // namespace

std::vector<Key> KeysOf(std::u32string_view text) {
  std::vector<Key> typed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == U'\r' || text[i] == U'\n') {
      typed.push_back(Key::Named(keys::Enter));
      if (text.substr(i, 2) == U"\r\n") ++i;
    } else {
      typed.push_back(text[i] == U'\t' ? Key::Named(keys::Tab) : Key::Typing(text[i]));
    }
  }
  return typed;
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Select& action) {
  return With<shown::RowList>(dialog, action.Control, &shown::Control::AsRowList, "a list", [&](auto& list) {
    return action.On ? list.MarkRow(action.Row, *action.On) : list.PickRow(action.Row);
  });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Click& action) {
  return WithAny(dialog, action.Control, [](auto& control) { return control.Press(); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Type& action) {
  return WithAny(dialog, action.Control, [&](auto& control) -> Refusal {
    if (auto refusal = control.Focus()) return refusal;
    return Press(dialog, KeysOf(action.Text));
  });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::KeyStroke& action) {
  if (!action.Control) return dialog.PressKey(action.Pressed);
  return WithAny(dialog, *action.Control, [&](auto& control) {
    auto refusal = control.Focus();
    return refusal ? refusal : dialog.PressKey(action.Pressed);
  });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Caret& action) {
  return With<shown::TextField>(dialog, action.Control, &shown::Control::AsTextField, "a text box",
                                [&](auto& box) { return box.SetCaret(action.Start, action.Length); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::FocusOn& action) {
  return WithAny(dialog, action.Control, [](auto& control) { return control.Focus(); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Step& action) {
  return With<shown::Stepper>(dialog, action.Control, &shown::Control::AsStepper, "an up-down", [&](auto& buttons) {
    Refusal refusal;
    for (int i = 0; i < action.Times && dialog.IsShown() && !refusal; ++i) refusal = buttons.Step(action.Direction);
    return refusal;
  });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::MakeCell& action) {
  return WithGrid(dialog, action.Grid, [&](auto& grid) { return grid.MakeCurrent(action.Row, action.Col); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::DoubleClick& action) {
  return WithGrid(dialog, action.Grid, [](auto& grid) { return grid.DoubleClick(); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::EditCell& action) {
  return WithGrid(dialog, action.Cell.Grid, [&](auto& grid) -> Refusal {
    if (auto refusal = grid.MakeCurrent(action.Cell.Row, action.Cell.Col)) return refusal;
    if (auto refusal = grid.DoubleClick()) return refusal;
    if (!grid.Editing()) return "the dialog does not let this cell be edited";
    static_cast<void>(grid.SetEditorCaret(0, std::numeric_limits<int>::max()));
    auto typed = KeysOf(action.Text);
    if (typed.empty()) typed.push_back(Key::Named(keys::Backspace));
    typed.push_back(Key::Named(keys::Enter));
    for (const auto& key : typed) {
      // A key that ends the edit leaves none for the others, which would go to the dialog.
      if (!grid.Editing()) return {};
      if (auto refusal = dialog.PressKey(key)) return refusal;
    }
    return {};
  });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Tick& action) {
  return With<shown::Ticker>(dialog, action.Timer, &shown::Control::AsTicker, "a timer",
                             [](auto& timer) { return timer.Tick(); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Close&) {
  dialog.Close();
  return {};
}

}  // namespace orlin
