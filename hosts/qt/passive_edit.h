#pragma once

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethod>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBoundaryFinder>
#include <QTextDocument>
#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "qt/local_text.h"
#include "qt/texts.h"

namespace orlin {

/// Where a key of the caret leads from a position, in UTF-16 units.
[[nodiscard]] inline int Moved(const QPlainTextEdit& field, int from, QTextCursor::MoveOperation move) {
  auto cursor = field.textCursor();
  cursor.setPosition(from);
  cursor.movePosition(move);
  return cursor.position();
}
[[nodiscard]] inline int Moved(const QLineEdit& field, int from, QTextCursor::MoveOperation move) {
  QTextDocument line;
  line.setPlainText(field.text());
  QTextCursor cursor(&line);
  cursor.setPosition(from);
  cursor.movePosition(move);
  return cursor.position();
}

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

/// Shows a text that is marked from one position to another, where the caret stands.
inline void Put(QLineEdit& field, const QString& text, int anchor, int caret) {
  if (field.text() != text) field.setText(text);
  if (anchor != caret) {
    field.setSelection(anchor, caret - anchor);
  } else {
    field.deselect();
    field.setCursorPosition(caret);
  }
}
inline void Put(QPlainTextEdit& field, const QString& text, int anchor, int caret) {
  // Only what is different is replaced: a new text would lose what is scrolled to, and cost its whole layout.
  const auto old = field.toPlainText();
  auto cursor = field.textCursor();
  if (old != text) {
    const auto shorter = std::min(old.size(), text.size());
    const auto same = std::mismatch(old.begin(), old.begin() + shorter, text.begin()).first - old.begin();
    const auto behind =
        std::mismatch(old.rbegin(), old.rbegin() + (shorter - same), text.rbegin()).first - old.rbegin();
    cursor.setPosition(static_cast<int>(same));
    cursor.setPosition(static_cast<int>(old.size() - behind), QTextCursor::KeepAnchor);
    cursor.insertText(text.mid(same, text.size() - behind - same));
  }
  cursor.setPosition(anchor);
  cursor.setPosition(caret, QTextCursor::KeepAnchor);
  field.setTextCursor(cursor);
}

/// A field in which an input method may be composing a text.
class Composing {
 public:
  Composing() = default;
  Composing(const Composing&) = delete;
  Composing& operator=(const Composing&) = delete;
  virtual ~Composing() = default;

  /// Ends it: what is composed is typed.
  void Commit() {
    if (std::exchange(composes_, false)) QGuiApplication::inputMethod()->commit();
  }

 protected:
  void SetComposes(bool composes) noexcept { composes_ = composes; }

 private:
  bool composes_ = false;
};

/// A field that shows a text and never changes it: all that the operator does goes to the control, by `Actions`.
template <class Field>
class PassiveEdit : public Field, public Composing {
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
    // A mark that is not the operator's own ends with the caret.
    if (!marking_) anchorFirst_ = true;
    Put(*this, InField(source_), UnitsInField(Anchor()), UnitsInField(Caret()));
    showing_ = false;
  }

  /// Copy, cut, paste, mark all, and marks by Shift and a key of the caret.
  bool TakeEditingKey(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Copy)) return Copy(), true;
    if (key.matches(QKeySequence::Cut)) return Cut(), true;
    if (key.matches(QKeySequence::Paste)) return Paste(), true;
    if (key.matches(QKeySequence::SelectAll)) return Actions.SetCaret(0, Length()), true;
    if constexpr (kHasLines) {
      // The caret stays, as with any operator; what is seen moves.
      auto* const bar = Field::verticalScrollBar();
      if (key.key() == Qt::Key_PageUp) bar->triggerAction(QScrollBar::SliderPageStepSub);
      if (key.key() == Qt::Key_PageDown) bar->triggerAction(QScrollBar::SliderPageStepAdd);
    }
    const bool marks = key.modifiers().testFlag(Qt::ShiftModifier);
    // The control knows the keys of the caret, one character or line at a time.
    if (!marks && !key.modifiers().testFlag(Qt::ControlModifier)) return false;
    const auto move = MoveOf(key);
    if (move == QTextCursor::NoMove) return false;
    const int to = CharactersAt(Moved(*this, UnitsInField(Caret()), move));
    Mark(marks ? Anchor() : to, to);
    return true;
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
    PopUpMenu(*this, {event->globalPos(), length_ > 0, Field::isReadOnly()},
              {[this] { Cut(); }, [this] { Copy(); }, [this] { Paste(); }, [this] { Actions.SetCaret(0, Length()); }});
  }
  // What is being composed stands in the field alone; the control gets what is committed.
  void inputMethodEvent(QInputMethodEvent* event) override {
    event->accept();
    if (Field::isReadOnly()) return;
    const auto committed = event->commitString();
    const auto composed = event->preeditString();
    SetComposes(!composed.isEmpty());
    QInputMethodEvent shown(composed, event->attributes());
    showing_ = true;
    Field::inputMethodEvent(&shown);
    showing_ = false;
    if (composed.isEmpty()) ShowState({Given(source_), start_, length_});
    if (event->replacementLength() > 0) {
      const int caret = UnitsBefore(source_, start_ + length_);
      const int from = CharactersBefore(source_, caret + event->replacementStart());
      const int to = CharactersBefore(source_, caret + event->replacementStart() + event->replacementLength());
      Actions.SetCaret(from, to - from);
    }
    if (!committed.isEmpty()) Actions.Type(committed);
  }
  // Keys come by the window.
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  // A line of Qt marks itself where Tab, or the opening of its window, leads to it; here only the control marks.
  void focusInEvent(QFocusEvent* event) override {
    const bool marks = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QFocusEvent plain(QEvent::FocusIn, marks ? Qt::OtherFocusReason : event->reason());
    Field::focusInEvent(&plain);
  }

 private:
  static constexpr bool kHasLines = std::is_base_of_v<QPlainTextEdit, Field>;

  // A field of several lines holds line ends as one unit.
  static QString InField(QString text) {
    if (kHasLines) text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return text;
  }

  [[nodiscard]] int UnitsInField(int characters) const {
    return static_cast<int>(InField(source_.left(UnitsBefore(source_, characters))).size());
  }

  [[nodiscard]] int Length() const { return CharactersBefore(source_, static_cast<int>(source_.size())); }

  [[nodiscard]] int At(QPoint point) const { return CharactersAt(PositionAt(*this, point)); }

  // The other direction of `UnitsInField`.
  [[nodiscard]] int CharactersAt(int unitsInField) const {
    int units = 0;
    for (; unitsInField > 0 && units < source_.size(); --unitsInField) units += IsLineEnd(units) ? 2 : 1;
    return CharactersBefore(source_, units);
  }

  [[nodiscard]] bool IsLineEnd(int units) const {
    return kHasLines && units + 1 < source_.size() && source_.at(units) == u'\r' && source_.at(units + 1) == u'\n';
  }

  [[nodiscard]] int Anchor() const { return anchorFirst_ ? start_ : start_ + length_; }
  [[nodiscard]] int Caret() const { return anchorFirst_ ? start_ + length_ : start_; }

  void Mark(int from, int to) {
    anchorFirst_ = from <= to;
    const QScopedValueRollback<bool> own(marking_, true);
    Actions.SetCaret(std::min(from, to), std::abs(to - from));
  }
  static QTextCursor::MoveOperation MoveOf(const QKeyEvent& key) {
    const bool far = key.modifiers().testFlag(Qt::ControlModifier);
    switch (key.key()) {
      case Qt::Key_Left:
        return far ? QTextCursor::PreviousWord : QTextCursor::PreviousCharacter;
      case Qt::Key_Right:
        return far ? QTextCursor::NextWord : QTextCursor::NextCharacter;
      case Qt::Key_Home:
        return far ? QTextCursor::Start : QTextCursor::StartOfLine;
      case Qt::Key_End:
        return far ? QTextCursor::End : QTextCursor::EndOfLine;
      case Qt::Key_Up:
        return kHasLines ? QTextCursor::Up : QTextCursor::NoMove;
      case Qt::Key_Down:
        return kHasLines ? QTextCursor::Down : QTextCursor::NoMove;
      default:
        return QTextCursor::NoMove;
    }
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
  bool marking_ = false;
  bool showing_ = false;
  bool pastesStrayText_ = true;
};

using PassiveLine = PassiveEdit<QLineEdit>;
using PassiveLines = PassiveEdit<QPlainTextEdit>;

}  // namespace orlin
