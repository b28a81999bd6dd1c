#include "qt/code_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>
#include <vector>

#include "qt/local_text.h"
#include "qt/texts.h"
#include "qt/views.h"

namespace orlin {

/// The line of a code, as wide as its characters. Its keys come by the window.
class CodeLine final : public QLineEdit {
 public:
  CodeLine(QWidget* parent, std::function<void()> onFocus) : QLineEdit(parent), onFocus_(std::move(onFocus)) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
  void Edit(const QKeyEvent& key) {
    QKeyEvent copy(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat());
    QLineEdit::keyPressEvent(&copy);
  }
  [[nodiscard]] QSize sizeHint() const override {
    const int around = QLineEdit::sizeHint().width() - fontMetrics().horizontalAdvance(u'x') * 17;
    return {fontMetrics().horizontalAdvance(u'W') * (maxLength() + 1) + around, QLineEdit::sizeHint().height()};
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    onFocus_();
  }
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void contextMenuEvent(QContextMenuEvent* event) override {
    PopUpMenu(*this, {event->globalPos(), hasSelectedText(), isReadOnly()},
              {[this] { cut(); }, [this] { copy(); }, [this] { paste(); }, [this] { selectAll(); }});
  }

 private:
  std::function<void()> onFocus_;
};

namespace {

constexpr std::int16_t kIncomplete = 20101;
constexpr std::int16_t kImpossibleHere = 20102;
constexpr std::int16_t kImpossible = 20103;

using Lists = std::vector<shown::Control*>;

Lists VisibleLists(const shown::Control& code) {
  auto lists = code.CodeLists();
  std::erase_if(lists, [](const auto* list) { return !list->Visible(); });
  return lists;
}

bool StandsFor(const shown::RowList& list, int row, QChar character) {
  return Shown(list.List(row)).trimmed().startsWith(character, Qt::CaseInsensitive);
}

int RowFor(const shown::RowList& list, QChar character) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (StandsFor(list, row, character)) return row;
  }
  return -1;
}

/// Picks the rows of a code. Returns the characters that no row stands for.
std::map<const shown::Control*, QString> Pick(const Lists& lists, const QString& code) {
  std::map<const shown::Control*, QString> missing;
  // The rows of one list may depend on another, also on one behind it.
  bool moved = true;
  for (std::size_t rounds = 0; moved && rounds <= lists.size(); ++rounds) {
    moved = false;
    missing.clear();
    for (std::size_t i = 0; i < lists.size(); ++i) {
      auto& rows = *lists[i]->AsRowList();
      const auto character = code.at(static_cast<qsizetype>(i));
      if (StandsFor(rows, rows.ListIndex(), character)) continue;
      const int row = RowFor(rows, character);
      if (row < 0) missing[lists[i]] = character;
      // A list without a row has no character either, and the others are read from the wrong places: any row will do
      // until the right one is there.
      const int wanted = row < 0 && rows.ListIndex() < 0 ? 0 : row;
      if (wanted < 0) continue;
      if (rows.PickRow(wanted)) {
        missing[lists[i]] = character;
      } else {
        moved = true;
      }
    }
  }
  return missing;
}

}  // namespace

CodeView::CodeView(shown::Control& code, Desk& desk, QWidget* parent)
    : ViewOf(code, code, desk),
      whole_(new QWidget(parent)),
      field_(new CodeLine(whole_, [this] { Enter(); })),
      state_(new QLabel(whole_)) {
  auto* line = new QHBoxLayout(whole_);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(field_);
  line->addWidget(state_, 1);
  state_->setTextFormat(Qt::PlainText);
  const bool forPerson = desk.ServesPerson();
  field_->setFocusPolicy(forPerson ? Qt::ClickFocus : Qt::NoFocus);
  field_->setReadOnly(!forPerson);
  QObject::connect(field_, &QLineEdit::textChanged, whole_, [this](const QString& text) {
    if (!showing_) Take(text);
  });
}

QWidget* CodeView::KeyboardWidget() const { return field_; }

void CodeView::Present() {
  const auto lists = VisibleLists(Its());
  if (const auto length = static_cast<int>(lists.size()); field_->maxLength() != length) {
    field_->setMaxLength(length);
    field_->updateGeometry();
  }
  if (const auto* label = Its().ToldBy()) field_->setAccessibleName(SpokenCaption(label->TranslatedCaption()));
  ShowText();
}

void CodeView::ShowText() {
  const QScopedValueRollback<bool> own(showing_, true);
  const auto lists = VisibleLists(Its());
  const auto text = typed_.value_or(Shown(Its().Caption()));
  if (field_->text() != text) field_->setText(text);
  QString state;
  if (typed_ && typed_->size() < static_cast<qsizetype>(lists.size())) {
    state = LocalText(kIncomplete);
    state.replace(QLatin1String("%TYPED%"), QString::number(typed_->size()));
    state.replace(QLatin1String("%ALL%"), QString::number(lists.size()));
  } else if (typed_) {
    state = LocalText(kImpossible);
  }
  state_->setText(state);
  field_->setAccessibleDescription(state);
}

QString CodeView::RemarkOn(const shown::Control& list) const {
  const auto found = impossible_.find(&list);
  if (found == impossible_.end()) return Shown(list.Objection());
  auto remark = LocalText(kImpossibleHere);
  remark.replace(QLatin1String("%CHARACTER%"), found->second);
  return remark.replace(QLatin1String("%CODE%"), typed_.value_or(QString()));
}

// ---------------------------------------------------------------------------------------------- the operator

void CodeView::Act(const std::function<Refusal()>& action) {
  const QScopedValueRollback<bool> own(acts_, true);
  At().Do(action);
}

void CodeView::Take(const QString& text) {
  const auto lists = VisibleLists(Its());
  impossible_.clear();
  typed_ = text;
  Act([&]() -> Refusal {
    if (text.size() < static_cast<qsizetype>(lists.size())) return ShowText(), Refusal();
    const auto before = Shown(Its().Caption());
    impossible_ = Pick(lists, text);
    if (impossible_.empty()) {
      typed_.reset();
    } else if (before.size() == text.size()) {
      // A code that is not possible changes nothing.
      static_cast<void>(Pick(lists, before));
    }
    ShowText();
    return {};
  });
}

void CodeView::GiveBack() {
  typed_.reset();
  impossible_.clear();
  ShowText();
}

void CodeView::Leave() {
  entered_ = false;
  GiveBack();
}

void CodeView::Enter() {
  if (entered_) return;
  const auto lists = VisibleLists(Its());
  if (lists.empty() || !At().ServesPerson()) return;
  entered_ = true;
  // So that no button has the focus, which Enter would press.
  Act([&] { return lists.front()->Focus(); });
  field_->selectAll();
}

bool CodeView::TakeTab(const QKeyEvent& key) {
  const bool back = key.key() == Qt::Key_Backtab;
  const auto lists = VisibleLists(Its());
  if ((!back && key.key() != Qt::Key_Tab) || lists.empty() || !At().ServesPerson()) return false;
  auto& dialog = Its().Form();
  auto* first = lists.front();
  const bool atFirst = dialog.FocusedControl() == first;
  if (entered_) {
    At().Do([&] { return first->Focus(); });
    if (back) At().Press(Key::ShiftTab(), dialog);
  } else if (back && atFirst) {
    Enter();
  } else {
    At().Press(back ? Key::ShiftTab() : Key::Named(keys::Tab), dialog);
    if (!back && !atFirst && dialog.IsShown() && dialog.FocusedControl() == first) Enter();
  }
  return true;
}

bool CodeView::TakeWindowKey(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Escape:
      if (!typed_) return false;
      Act([this]() -> Refusal { return GiveBack(), Refusal(); });
      field_->selectAll();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // What would be stored is not what stands here.
      if (typed_) QApplication::beep();
      return typed_.has_value();
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      // Not for the list that has the focus of the dialog.
      return true;
    default:
      break;
  }
  const bool alt = key.modifiers().testFlag(Qt::AltModifier) && !key.modifiers().testFlag(Qt::ControlModifier);
  if (alt) return false;
  field_->Edit(key);
  return true;
}

std::unique_ptr<ControlView> MakeCodeView(shown::Control& control, Desk& desk, QWidget* parent) {
  return std::make_unique<CodeView>(control, desk, parent);
}

}  // namespace orlin
