#include <QComboBox>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyle>
#include <algorithm>

#include "qt/colours.h"
#include "qt/key_events.h"
#include "qt/mark_style.h"
#include "qt/passive_edit.h"
#include "qt/row_model.h"
#include "qt/text_actions.h"
#include "qt/texts.h"
#include "qt/views.h"

namespace orlin {
namespace {

constexpr int kRowsOfDropDown = 20;
constexpr int kFewestRows = 4;
constexpr int kMostRows = 10;

// ---------------------------------------------------------------------------------------------- combo boxes

/// A combo box that leaves the choice of a row to its control, and is as wide as its longest row.
class DropDown final : public QComboBox {
 public:
  DropDown(QWidget* parent, std::function<void()> onPress) : QComboBox(parent), onPress_(std::move(onPress)) {
    setFocusPolicy(Qt::TabFocus);
    setMaxVisibleItems(kRowsOfDropDown);
    setInsertPolicy(QComboBox::NoInsert);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }

  // The rows stand in Qt's own model: for another one Qt makes the drop-down list at once, which costs more than all
  // the rest of a small dialog.
  void Take(const shown::Control& list) {
    if (texts_.AreThoseOf(list)) return;
    texts_.Take(list);
    QList<QStandardItem*> items;
    for (const auto& text : texts_.Rows()) items.push_back(new QStandardItem(Shown(text)));
    auto& rows = dynamic_cast<QStandardItemModel&>(*model());
    // The open list has the size of the rows that it was opened with.
    if (IsOpen()) hidePopup();
    rows.clear();
    if (!items.isEmpty()) rows.invisibleRootItem()->appendRows(items);
  }

  [[nodiscard]] QSize sizeHint() const override {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const auto metrics = fontMetrics();
    const QSize content(std::max(texts_.Width(font()), metrics.averageCharWidth() * 8) + metrics.averageCharWidth(),
                        std::max(metrics.height(), 14) + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
  }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  // Asking for the view of a list that was never opened would make it.
  [[nodiscard]] bool IsOpen() const { return opened_ && view()->isVisible(); }
  /// Shows a row as the current one, also in the open list.
  void ShowRow(int row) {
    if (currentIndex() == row) return;
    setCurrentIndex(row);
    if (IsOpen()) view()->setCurrentIndex(model()->index(row, modelColumn()));
  }

  void showPopup() override {
    QComboBox::showPopup();
    opened_ = true;
    // What is typed into the open list is for the control, as in the closed one.
    view()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && IsOpen() && watched == view()) {
      const auto keys = KeysOf(dynamic_cast<const QKeyEvent&>(*event));
      if (!keys.empty() && keys.front().Character != 0 && !keys.front().Alt)
        return QCoreApplication::sendEvent(this, event);
    }
    return QComboBox::eventFilter(watched, event);
  }
  void mousePressEvent(QMouseEvent* event) override {
    onPress_();
    if (isEnabled() && isVisible()) QComboBox::mousePressEvent(event);
  }
  // Turning the wheel over a closed list picks no row.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void inputMethodEvent(QInputMethodEvent* event) override { event->accept(); }

 private:
  std::function<void()> onPress_;
  RowTexts texts_;
  bool opened_ = false;
};

class ComboBoxView final : public ViewOf<shown::RowList> {
 public:
  ComboBoxView(shown::Control& box, Desk& desk, QWidget* parent)
      : ViewOf(box, *box.AsRowList(), desk),
        list_(new DropDown(parent, [this] { At().Do([this] { return Control().Focus(); }); })),
        text_(*box.AsTextField()) {
    if (text_.HasEditField()) AddField();
    QObject::connect(list_, &QComboBox::activated, list_,
                     [this](int row) { At().Do([&] { return Its().PickRow(row); }), Present(); });
  }
  [[nodiscard]] QWidget* Widget() const override { return list_; }

  bool TakeWindowKey(const QKeyEvent& key) override {
    const bool alt = key.modifiers().testFlag(Qt::AltModifier);
    if (key.key() == Qt::Key_F4 || (alt && (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up))) {
      list_->showPopup();
      return true;
    }
    return field_ != nullptr && field_->TakeEditingKey(key);
  }
  [[nodiscard]] bool IsListOpen() const override { return list_->IsOpen(); }

  void Present() override {
    list_->Take(Control());
    list_->ShowRow(Its().ListIndex());
    list_->updateGeometry();
    if (field_ == nullptr) return;
    field_->setReadOnly(text_.Locked());
    field_->ShowState({text_.Text(), text_.SelStart(), text_.SelLength()});
  }

 private:
  void AddField() {
    field_ = new PassiveLine(list_);
    field_->Actions = ActionsOn(text_, Control().Form(), At());
    field_->RefuseStrayText();
    list_->setEditable(true);
    list_->setLineEdit(field_);
    list_->setCompleter(nullptr);
    // Qt picks the row whose text stands in the field when the field is left.
    QObject::disconnect(field_, &QLineEdit::editingFinished, list_, nullptr);
    QObject::disconnect(field_, &QLineEdit::returnPressed, list_, nullptr);
  }

  DropDown* list_;
  shown::TextField& text_;
  PassiveLine* field_ = nullptr;
};

// ---------------------------------------------------------------------------------------------- list boxes

class RowsView final : public QListView {
 public:
  RowsView(QWidget* parent, std::function<void(int row)> onPress) : QListView(parent), onPress_(std::move(onPress)) {
    rows_ = new RowModel(this);
    setModel(rows_);
    setFocusPolicy(Qt::TabFocus);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
  }

  [[nodiscard]] RowModel& Rows() const { return *rows_; }

  [[nodiscard]] QSize sizeHint() const override { return HintFor(kMostRows); }
  [[nodiscard]] QSize minimumSizeHint() const override { return HintFor(kFewestRows); }

 protected:
  void showEvent(QShowEvent* event) override {
    QListView::showEvent(event);
    if (currentIndex().isValid()) scrollTo(currentIndex(), PositionAtCenter);
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) onPress_(indexAt(event->position().toPoint()).row());
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void inputMethodEvent(QInputMethodEvent* event) override { event->accept(); }
  // The row is grey while the keyboard is elsewhere.
  void initViewItemOption(QStyleOptionViewItem* option) const override {
    QListView::initViewItemOption(option);
    if (hasFocus() || !isEnabled()) return;
    const auto base = palette().color(QPalette::Base);
    const auto grey = Readable(base, base, kMarkContrast);
    option->palette.setColor(QPalette::Highlight, grey);
    option->palette.setColor(QPalette::HighlightedText, Readable(palette().color(QPalette::Text), grey));
  }

 private:
  [[nodiscard]] QSize HintFor(int mostRows) const {
    const auto metrics = fontMetrics();
    const int checkMark = hasChecks ? style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                                          2 * style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing)
                                    : 0;
    const int width = std::max(rows_->Width(font()), metrics.averageCharWidth() * 12) + checkMark +
                      4 * style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + metrics.averageCharWidth() +
                      verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    const int rowHeight = rows_->rowCount() > 0 ? sizeHintForRow(0) : metrics.lineSpacing();
    const int rows = std::clamp(rows_->rowCount(), kFewestRows, mostRows);
    return {width, rowHeight * rows + 2 * frameWidth()};
  }

  std::function<void(int row)> onPress_;
  RowModel* rows_;

 public:
  bool hasChecks = false;
};

class ListBoxView final : public ViewOf<shown::RowList> {
 public:
  ListBoxView(shown::Control& list, Desk& desk, QWidget* parent)
      : ViewOf(list, *list.AsRowList(), desk), rows_(new RowsView(parent, [this](int row) { Press(row); })) {
    rows_->hasChecks = Its().Choice() != shown::Choice::One;
    if (rows_->hasChecks) GrowMarks(*rows_);
  }
  [[nodiscard]] QWidget* Widget() const override { return rows_; }

  void Present() override {
    rows_->Rows().Take(Control());
    rows_->updateGeometry();
    const auto current = rows_->Rows().index(Its().ListIndex());
    rows_->selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
    if (current.isValid()) rows_->scrollTo(current);
  }

 private:
  void Press(int row) {
    At().Do([&]() -> Refusal {
      if (row < 0) return Control().Focus();
      if (Its().Choice() == shown::Choice::One) return Its().PickRow(row);
      return Its().MarkRow(row, !Its().Selected(row));
    });
  }

  RowsView* rows_;
};

}  // namespace

std::unique_ptr<ControlView> MakeComboBoxView(shown::Control& control, Desk& desk, QWidget* parent) {
  return std::make_unique<ComboBoxView>(control, desk, parent);
}

std::unique_ptr<ControlView> MakeListBoxView(shown::Control& control, Desk& desk, QWidget* parent) {
  return std::make_unique<ListBoxView>(control, desk, parent);
}

}  // namespace orlin
