#pragma once

#include <QMessageBox>
#include <QString>
#include <cstdint>
#include <functional>
#include <string_view>

// What the windows themselves say, in the language of the dialog. Qt's own translations would speak that of the user's
// locale, if they are installed.

namespace orlin {

/// A text of the operator's catalogue; `otherwise` where that has none.
[[nodiscard]] QString LocalText(std::int16_t number, std::string_view otherwise = {});

/// Gives the buttons of a message their words.
void LabelButtons(const QMessageBox& box);

/// Where the menu of a text field comes up, and what it can do there.
struct MenuState {
  QPoint At;
  bool Marked = false;
  bool ReadOnly = false;
};
struct MenuActions {
  std::function<void()> Cut, Copy, Paste, SelectAll;
};
/// Does not wait for the choice: the dialog may end while the menu is open.
void PopUpMenu(QWidget& field, const MenuState& state, const MenuActions& actions);

}  // namespace orlin
