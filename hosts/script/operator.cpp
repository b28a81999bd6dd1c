#include "script/operator.h"

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlin {
namespace {

/// Uses the control of that name, which has to be of a kind.
template <class Kind, class Use>
Refusal With(const shown::Dialog& dialog, const std::string& name, std::string_view kind, Use use) {
  auto* control = dialog.Find(name);
  if (control == nullptr) return "no control named " + name;
  auto* wanted = dynamic_cast<Kind*>(control);
  if (wanted != nullptr) return use(*wanted);
  return name + " (" + std::string(KindName(control->Kind())) + ") is not " + std::string(kind);
}

template <class Use>
Refusal WithAny(const shown::Dialog& dialog, const std::string& name, Use use) {
  return With<shown::Control>(dialog, name, "a control", use);
}

template <class Use>
Refusal WithGrid(const shown::Dialog& dialog, const std::string& name, Use use) {
  return With<shown::Grid>(dialog, name, "a grid", use);
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
  return With<shown::RowList>(dialog, action.Control, "a list", [&](auto& list) -> Refusal {
    if (!action.On) return list.PickRow(action.Row);
    auto* choices = dynamic_cast<shown::ListBox*>(&list);
    if (choices == nullptr) return action.Control + " is a list of one choice: its rows are picked";
    return choices->MarkRow(action.Row, *action.On);
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
  return With<shown::TextControl>(dialog, action.Control, "a text box",
                                  [&](auto& box) { return box.SetCaret(action.Start, action.Length); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::FocusOn& action) {
  return WithAny(dialog, action.Control, [](auto& control) { return control.Focus(); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Step& action) {
  return With<shown::UpDown>(dialog, action.Control, "an up-down", [&](auto& buttons) {
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
  return With<shown::Timer>(dialog, action.Timer, "a timer", [](auto& timer) { return timer.Tick(); });
}

Refusal DirectHands::Do(shown::Dialog& dialog, const actions::Close&) {
  dialog.Close();
  return {};
}

}  // namespace orlin
