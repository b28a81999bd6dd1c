#include "qt_driver/hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "qt/key_events.h"
#include "qt/passive_edit.h"

namespace orlin {
namespace {

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at) {
  const bool released = type == QEvent::MouseButtonRelease;
  const auto changed = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, widget.mapToGlobal(at), changed, released ? Qt::NoButton : Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void Click(QWidget& widget, QPoint at) {
  SendMouse(widget, QEvent::MouseButtonPress, at);
  SendMouse(widget, QEvent::MouseButtonRelease, at);
}

void SendKey(QWidget& target, const KeyPress& key) {
  QKeyEvent claim(QEvent::ShortcutOverride, key.Code, key.Modifiers, key.Text);
  QApplication::sendEvent(&target, &claim);
  QKeyEvent press(QEvent::KeyPress, key.Code, key.Modifiers, key.Text);
  QApplication::sendEvent(&target, &press);
  // The key may have ended the dialog or moved the focus; the release then goes nowhere.
}

shown::Control* Reachable(const shown::Dialog& dialog, const std::string& name) {
  auto* control = dialog.Find(name);
  return control != nullptr && control->WithinReach() ? control : nullptr;
}

bool CanBeCurrent(const shown::Table& grid, int row, int col) {
  return row >= grid.FixedRows() && row < grid.Rows() && col >= grid.FixedCols() && col < grid.Cols();
}

/// A visible point at that position of a text, or nothing where it is scrolled away.
std::optional<QPoint> PointAt(const QLineEdit& field, int units) {
  for (int x = 0; x < field.width(); ++x) {
    const QPoint at(x, field.height() / 2);
    if (PositionAt(field, at) == units) return at;
  }
  return std::nullopt;
}

}  // namespace

// ---------------------------------------------------------------------------------------------- actions

Refusal QtHands::Do(shown::Dialog& dialog, const actions::Select& action) {
  const auto* control = Reachable(dialog, action.Control);
  const auto* rows = control != nullptr ? control->AsRowList() : nullptr;
  const bool hasRow = rows != nullptr && action.Row >= 0 && action.Row < rows->ListCount();
  const bool fits = hasRow && action.On.has_value() == (rows->Choice() != shown::Choice::One);
  // A row that is as wanted already needs no press, which would turn it.
  if (!fits || (action.On && rows->Selected(action.Row) == *action.On)) return Directly(dialog, action);
  if (control->Kind() == ControlKind::ComboBox) {
    PickFromDropDown(*control, action.Row);
  } else {
    PressRow(*control, action.Row);
  }
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::Click& action) {
  const auto* control = Reachable(dialog, action.Control);
  auto* button = control != nullptr ? qobject_cast<QAbstractButton*>(window_->ViewOf(*control).Widget()) : nullptr;
  if (button == nullptr) return Directly(dialog, action);
  ::orlin::Click(*button, {button->height() / 2, button->height() / 2});
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::Type& action) {
  const auto* control = Reachable(dialog, action.Control);
  if (control == nullptr || !control->TakesFocus()) return Directly(dialog, action);
  if (!Focus(*control)) return Done();
  for (const auto& key : orlin::KeysOf(action.Text)) Press(key);
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::KeyStroke& action) {
  if (action.Control) {
    const auto* control = Reachable(dialog, *action.Control);
    if (control == nullptr || !control->TakesFocus()) return Directly(dialog, action);
    if (!Focus(*control)) return Done();
  }
  Press(action.Pressed);
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::Caret& action) {
  const auto* box = Reachable(dialog, action.Control);
  const auto* text = box != nullptr ? box->AsTextField() : nullptr;
  if (text == nullptr || !text->HasEditField()) return Directly(dialog, action);
  if (!Focus(*box)) return Done();
  auto* widget = window_->ViewOf(*box).Widget();
  auto* combo = qobject_cast<QComboBox*>(widget);
  auto* field = combo != nullptr ? combo->lineEdit() : qobject_cast<QLineEdit*>(widget);
  if (field == nullptr) return Directly(dialog, action);
  const int start = std::min(action.Start, text->TextLength());
  const int length = std::min(action.Length, text->TextLength() - start);
  const auto from = PointAt(*field, UnitsBefore(field->text(), start));
  const auto to = PointAt(*field, UnitsBefore(field->text(), start + length));
  if (!from || !to) return Directly(dialog, action);
  SendMouse(*field, QEvent::MouseButtonPress, *from);
  if (length > 0) SendMouse(*field, QEvent::MouseMove, *to);
  SendMouse(*field, QEvent::MouseButtonRelease, *to);
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::FocusOn& action) {
  const auto* control = Reachable(dialog, action.Control);
  if (control == nullptr || !control->TakesFocus()) return Directly(dialog, action);
  static_cast<void>(Focus(*control));
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::Step& action) {
  const auto* buttons = Reachable(dialog, action.Control);
  if (buttons == nullptr || buttons->AsStepper() == nullptr) return Directly(dialog, action);
  const auto pair = window_->ViewOf(*buttons).Widget()->findChildren<QToolButton*>();
  auto& button = *pair[action.Direction == shown::Direction::Up ? 0 : 1];
  for (int i = 0; i < action.Times && dialog.IsShown(); ++i) {
    if (!buttons->WithinReach()) return Directly(dialog, action);
    ::orlin::Click(button, button.rect().center());
  }
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::MakeCell& action) {
  const auto* grid = Reachable(dialog, action.Grid);
  const auto* table = grid != nullptr ? grid->AsTable() : nullptr;
  if (table == nullptr || !CanBeCurrent(*table, action.Row, action.Col)) return Directly(dialog, action);
  PressCell(*grid, action.Row, action.Col, QEvent::MouseButtonPress);
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::DoubleClick& action) {
  const auto* grid = Reachable(dialog, action.Grid);
  const auto* table = grid != nullptr ? grid->AsTable() : nullptr;
  if (table == nullptr || table->Row() < 0) return Directly(dialog, action);
  PressCell(*grid, table->Row(), table->Col(), QEvent::MouseButtonDblClick);
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::EditCell& action) {
  const auto& cell = action.Cell;
  if (auto refusal = Do(dialog, cell)) return refusal;
  if (auto refusal = Do(dialog, actions::DoubleClick{cell.Grid})) return refusal;
  const auto* grid = Reachable(dialog, cell.Grid);
  if (grid == nullptr || !grid->AsTable()->Editing()) return "the dialog does not let this cell be edited";
  SendKey(window_->KeyTarget(), {Qt::Key_A, Qt::ControlModifier, {}});
  auto typed = orlin::KeysOf(action.Text);
  if (typed.empty()) typed.push_back(Key::Named(keys::Backspace));
  typed.push_back(Key::Named(keys::Enter));
  for (const auto& key : typed) {
    if (!grid->AsTable()->Editing()) break;
    Press(key);
  }
  return Done();
}

Refusal QtHands::Do(shown::Dialog& dialog, const actions::Tick& action) { return Directly(dialog, action); }

Refusal QtHands::Do(shown::Dialog&, const actions::Close&) {
  window_->close();
  return Done();
}

// ---------------------------------------------------------------------------------------------- means

Refusal QtHands::Done() {
  QCoreApplication::sendPostedEvents();
  window_->Rethrow();
  return window_->TakeRefusal();
}

template <class Operation>
Refusal QtHands::Directly(shown::Dialog& dialog, const Operation& action) {
  window_->Do([&] { return direct_.Do(dialog, action); });
  return Done();
}

bool QtHands::Focus(const shown::Control& control) {
  QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(window_->ViewOf(control).KeyboardWidget(), &event);
  return control.Form().IsShown() && control.HasFocus() && control.WithinReach();
}

void QtHands::Press(const Key& key) { SendKey(window_->KeyTarget(), PressOf(key)); }

void QtHands::PickFromDropDown(const shown::Control& box, int row) {
  auto& list = dynamic_cast<QComboBox&>(*window_->ViewOf(box).Widget());
  QStyleOptionComboBox option;
  option.initFrom(&list);
  option.editable = list.isEditable();
  const auto arrow = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &list);
  SendMouse(list, QEvent::MouseButtonPress, arrow.center());
  auto& rows = *list.view();
  if (!rows.isVisible()) return;
  const auto index = list.model()->index(row, 0);
  rows.scrollTo(index);
  // The list stays open when the button is let go where it was pressed; the row takes a click of its own.
  SendMouse(*rows.viewport(), QEvent::MouseMove, rows.visualRect(index).center());
  ::orlin::Click(*rows.viewport(), rows.visualRect(index).center());
  if (rows.isVisible()) list.hidePopup();
}

void QtHands::PressRow(const shown::Control& list, int row) {
  auto& rows = dynamic_cast<QAbstractItemView&>(*window_->ViewOf(list).Widget());
  const auto index = rows.model()->index(row, 0);
  rows.scrollTo(index);
  ::orlin::Click(*rows.viewport(), rows.visualRect(index).center());
}

void QtHands::PressCell(const shown::Control& grid, int row, int col, QEvent::Type type) {
  auto& table = dynamic_cast<QAbstractItemView&>(*window_->ViewOf(grid).Widget());
  const int titleRows = grid.AsTable()->Rows() - table.model()->rowCount();
  const auto index = table.model()->index(row - titleRows, col);
  table.scrollTo(index);
  SendMouse(*table.viewport(), type, table.visualRect(index).center());
  SendMouse(*table.viewport(), QEvent::MouseButtonRelease, table.visualRect(index).center());
}

}  // namespace orlin
