#pragma once

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <functional>
#include <string>

#include "qt/texts.h"

namespace orlin {

/// A text with its mark, as a control holds it.
struct EditState {
  std::string Text;
  int SelStart = 0;
  int SelLength = 0;
};

/// What mouse, clipboard and input method do to a text. Positions count characters.
struct EditActions {
  std::function<void(int start, int length)> SetCaret;
  /// Presses the keys of a text.
  std::function<void(const QString& text)> Type;
  std::function<void(const QString& text)> Paste;
  /// Presses Delete.
  std::function<void()> Delete;
};

/// Where a point of a field is in its text, in UTF-16 units.
[[nodiscard]] inline int PositionAt(const QLineEdit& field, QPoint point) {
  // The method is not const in Qt, though it changes nothing.
  return const_cast<QLineEdit&>(field).cursorPositionAt(point);
}
[[nodiscard]] inline int PositionAt(const QPlainTextEdit& field, QPoint point) {
  return field.cursorForPosition(point).position();
}

inline void Put(QLineEdit& field, const QString& text, int start, int length) {
  if (field.text() != text) field.setText(text);
  if (length > 0) {
    field.setSelection(start, length);
  } else {
    field.deselect();
    field.setCursorPosition(start);
  }
}
inline void Put(QPlainTextEdit& field, const QString& text, int start, int length) {
  if (field.toPlainText() != text) field.setPlainText(text);
  auto cursor = field.textCursor();
  cursor.setPosition(start);
  cursor.setPosition(start + length, QTextCursor::KeepAnchor);
  field.setTextCursor(cursor);
}

/// A field that shows a text and never changes it: all that the operator does goes to the control, by `Actions`.
template <class Field>
class PassiveEdit : public Field {
 public:
  explicit PassiveEdit(QWidget* parent = nullptr) : Field(parent) {
    Field::setAcceptDrops(false);
    Field::setFocusPolicy(Qt::TabFocus);
    // Assistive tools can set the text of a field; that counts as typed.
    QObject::connect(this, &Field::textChanged, this, [this] { TakeStrayText(); });
  }

  EditActions Actions;

  /// A combo box of Qt sets the text of its field by itself: what it sets there is not typed.
  void RefuseStrayText() { pastesStrayText_ = false; }

  void ShowState(const EditState& state) {
    showing_ = true;
    source_ = Shown(state.Text);
    start_ = state.SelStart;
    length_ = state.SelLength;
    const int from = UnitsInField(start_);
    Put(*this, InField(source_), from, UnitsInField(start_ + length_) - from);
    showing_ = false;
  }

  /// Copy, cut, paste, mark all, and marks by Shift and a key of the caret.
  bool TakeEditingKey(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Copy)) return Copy(), true;
    if (key.matches(QKeySequence::Cut)) return Cut(), true;
    if (key.matches(QKeySequence::Paste)) return Paste(), true;
    if (key.matches(QKeySequence::SelectAll)) return Actions.SetCaret(0, Length()), true;
    if (!key.modifiers().testFlag(Qt::ShiftModifier)) return false;
    const int moving = anchorFirst_ ? start_ + length_ : start_;
    switch (key.key()) {
      case Qt::Key_Left:
        return Extend(moving - 1), true;
      case Qt::Key_Right:
        return Extend(moving + 1), true;
      case Qt::Key_Home:
        return Extend(0), true;
      case Qt::Key_End:
        return Extend(Length()), true;
      default:
        return false;
    }
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    anchor_ = At(event->position().toPoint());
    Actions.SetCaret(anchor_, 0);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons().testFlag(Qt::LeftButton)) Mark(anchor_, At(event->position().toPoint()));
  }
  void mouseReleaseEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, source_);
    const int at = UnitsBefore(source_, At(event->position().toPoint()));
    words.setPosition(at);
    const auto from = words.isAtBoundary() ? at : std::max<qsizetype>(words.toPreviousBoundary(), 0);
    words.setPosition(at);
    const auto next = words.toNextBoundary();
    const auto to = next < 0 ? source_.size() : next;
    Mark(CharactersBefore(source_, static_cast<int>(from)), CharactersBefore(source_, static_cast<int>(to)));
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    QMenu menu(this);
    const bool marked = length_ > 0;
    menu.addAction(QObject::tr("Cu&t"), this, [this] { Cut(); })->setEnabled(marked && !Field::isReadOnly());
    menu.addAction(QObject::tr("&Copy"), this, [this] { Copy(); })->setEnabled(marked);
    menu.addAction(QObject::tr("&Paste"), this, [this] { Paste(); })->setEnabled(!Field::isReadOnly());
    menu.addSeparator();
    menu.addAction(QObject::tr("Select &All"), this, [this] { Actions.SetCaret(0, Length()); });
    menu.exec(event->globalPos());
  }
  void inputMethodEvent(QInputMethodEvent* event) override {
    if (!event->commitString().isEmpty()) Actions.Type(event->commitString());
    event->accept();
  }
  // Keys come by the window.
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }

 private:
  // A field of several lines holds line ends as one unit.
  static QString InField(QString text) {
    if constexpr (std::is_base_of_v<QPlainTextEdit, Field>) text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text;
  }

  [[nodiscard]] int UnitsInField(int characters) const {
    return static_cast<int>(InField(source_.left(UnitsBefore(source_, characters))).size());
  }

  [[nodiscard]] int Length() const { return CharactersBefore(source_, static_cast<int>(source_.size())); }

  [[nodiscard]] int At(QPoint point) const {
    const int position = PositionAt(*this, point);
    int units = 0;
    for (int shown = 0; shown < position && units < source_.size(); ++shown) {
      units += InField(source_.mid(units, 2)).size() == 1 && source_.size() - units >= 2 ? 2 : 1;
    }
    return CharactersBefore(source_, units);
  }

  void Mark(int from, int to) {
    anchorFirst_ = from <= to;
    Actions.SetCaret(std::min(from, to), std::abs(to - from));
  }
  void Extend(int to) {
    if (length_ == 0) anchorFirst_ = to >= start_;
    Mark(anchorFirst_ ? start_ : start_ + length_, std::clamp(to, 0, Length()));
  }

  [[nodiscard]] QString Marked() const {
    const int from = UnitsBefore(source_, start_);
    return source_.mid(from, UnitsBefore(source_, start_ + length_) - from);
  }
  void Copy() {
    if (length_ > 0) QApplication::clipboard()->setText(Marked());
  }
  void Cut() {
    if (length_ == 0 || Field::isReadOnly()) return;
    Copy();
    Actions.Delete();
  }
  void Paste() { Actions.Paste(QApplication::clipboard()->text()); }

  void TakeStrayText() {
    if (showing_) return;
    if (pastesStrayText_) {
      const auto text = CurrentText(*this);
      Actions.SetCaret(0, Length());
      if (text.isEmpty()) {
        Actions.Delete();
      } else {
        Actions.Paste(text);
      }
    }
    ShowState({Given(source_), start_, length_});
  }
  static QString CurrentText(const QLineEdit& field) { return field.text(); }
  static QString CurrentText(const QPlainTextEdit& field) { return field.toPlainText(); }

  QString source_;
  int start_ = 0;
  int length_ = 0;
  int anchor_ = 0;
  bool anchorFirst_ = true;  // whether the mark grows at its end
  bool showing_ = false;
  bool pastesStrayText_ = true;
};

using PassiveLine = PassiveEdit<QLineEdit>;
using PassiveLines = PassiveEdit<QPlainTextEdit>;

}  // namespace orlin
