#include <QAbstractTableModel>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>
#include <algorithm>
#include <limits>
#include <map>
#include <utility>

#include "qt/colours.h"
#include "qt/key_events.h"
#include "qt/passive_edit.h"
#include "qt/row_model.h"
#include "qt/texts.h"
#include "qt/views.h"

namespace orlin {
namespace {

constexpr int kMostRows = 12;
constexpr int kFewestRows = 4;
constexpr int kFewestLetters = 60;

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

/// What the colour of a text means in a dialog, where a label tells it. The sign tells it without the colour.
struct Meaning {
  QString Sign;
  QString Text;
};

/// The meanings of the colours that a dialog explains, told by number of their keys: "!", "!!" ...
std::map<std::int32_t, Meaning> MeaningsIn(const shown::Dialog& dialog) {
  std::map<std::int32_t, Meaning> meanings;
  for (const auto* key : dialog.Controls()) {
    if (key->Role() != shown::LabelRole::ColourKey || !key->BackColor() || key->ToldBy() == nullptr) continue;
    meanings[*key->BackColor()] = {SignOf(*key), SpokenCaption(key->ToldBy()->TranslatedCaption())};
  }
  return meanings;
}

constexpr int kSignRole = Qt::UserRole;

/// The cells of a grid as they were when the window was last brought up to date. The first fixed row is the title row,
/// the first fixed column the titles of the rows.
class CellModel final : public QAbstractTableModel {
 public:
  CellModel(const shown::Control& control, QWidget& view)
      : QAbstractTableModel(&view), control_(control), grid_(*control.AsTable()), view_(view) {}

  /// Tells whether anything is different.
  bool Take() {
    const bool reshaped = static_cast<int>(cells_.size()) != grid_.Rows() || cols_ != grid_.Cols();
    if (reshaped) beginResetModel();
    cols_ = grid_.Cols();
    meanings_ = MeaningsIn(control_.Form());
    cells_.resize(static_cast<std::size_t>(grid_.Rows()));
    bool different = reshaped;
    for (int row = 0; row < grid_.Rows(); ++row) {
      auto& cells = cells_[static_cast<std::size_t>(row)];
      cells.resize(static_cast<std::size_t>(cols_));
      for (int col = 0; col < cols_; ++col) {
        auto& mine = cells[static_cast<std::size_t>(col)];
        auto now = grid_.CellAt(row, col);
        now.Text = control_.Translated(now.Text);
        if (mine.Text == now.Text && mine.Color == now.Color && mine.Bold == now.Bold) continue;
        mine = std::move(now);
        different = true;
      }
    }
    if (reshaped) {
      endResetModel();
    } else if (different && rowCount() > 0 && cols_ > 0) {
      emit dataChanged(index(0, 0), index(rowCount() - 1, cols_ - 1));
      emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }
    return different;
  }

  [[nodiscard]] int TitleRows() const { return std::min(grid_.FixedRows(), 1); }
  [[nodiscard]] bool HasRowTitles() const { return grid_.FixedCols() > 0; }

  /// The width of a column's widest text.
  [[nodiscard]] int TextWidth(int col) const {
    std::vector<const std::string*> texts;
    texts.reserve(cells_.size());
    for (const auto& cells : cells_) texts.push_back(&cells[static_cast<std::size_t>(col)].Text);
    const QFontMetrics metrics(Bold(view_.font()));
    int sign = 0;
    for (const auto& [colour, meaning] : meanings_) sign = std::max(sign, metrics.horizontalAdvance(meaning.Sign));
    return WidthOfLongest(texts, metrics) + (sign > 0 ? sign + metrics.averageCharWidth() : 0);
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : std::max(static_cast<int>(cells_.size()) - TitleRows(), 0);
  }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : cols_; }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    const int row = index.row() + TitleRows();
    const auto& cell = cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(index.column())];
    const bool fixed = index.column() < grid_.FixedCols() || row < grid_.FixedRows();
    // The palette of what stands in a window has another colour for it.
    const auto ground =
        fixed ? view_.window()->palette().color(QPalette::Window) : view_.palette().color(QPalette::Base);
    switch (role) {
      case Qt::DisplayRole:
        return Shown(cell.Text);
      case Qt::FontRole:
        return cell.Bold ? QVariant(Bold(view_.font())) : QVariant();
      case Qt::BackgroundRole:
        return ground;
      case Qt::ForegroundRole:
        return cell.Color == 0 ? QVariant() : QVariant(Readable(ColourOf(cell.Color, view_.palette()), ground));
      case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
      case kSignRole:
        return MeaningOf(cell).Sign;
      case Qt::AccessibleDescriptionRole:
        return MeaningOf(cell).Text;
      default:
        return {};
    }
  }

  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation == Qt::Vertical) {
      return HasRowTitles() && section < rowCount() ? data(index(section, 0), role) : QVariant();
    }
    if (cells_.empty() || section >= cols_) return {};
    if (role == Qt::DisplayRole) return Shown(cells_.front()[static_cast<std::size_t>(section)].Text);
    if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
  }

 private:
  [[nodiscard]] Meaning MeaningOf(const shown::Cell& cell) const {
    const auto meaning = meanings_.find(cell.Color);
    return meaning == meanings_.end() ? Meaning() : meaning->second;
  }

  const shown::Control& control_;
  const shown::Table& grid_;
  QWidget& view_;
  std::map<std::int32_t, Meaning> meanings_;
  std::vector<std::vector<shown::Cell>> cells_;
  int cols_ = 0;
};

/// Draws the current cell with a border instead of another ground, on which the colours of texts could not be read.
class CellDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    painter->save();
    if (const auto sign = index.data(kSignRole).toString(); !sign.isEmpty()) {
      painter->setFont(Bold(option.font));
      painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
      const int edge = option.fontMetrics.averageCharWidth() / 2;
      painter->drawText(option.rect.adjusted(0, 0, -edge, 0), Qt::AlignRight | Qt::AlignVCenter, sign);
    }
    if (option.state.testFlag(QStyle::State_Selected)) {
      constexpr int width = 2;
      // While the keyboard is elsewhere, in the colour of texts, which is as plain on any ground.
      const bool hasKeyboard = option.widget != nullptr && option.widget->hasFocus();
      const auto colour = option.palette.color(QPalette::Active, hasKeyboard ? QPalette::Highlight : QPalette::Text);
      painter->setPen(QPen(Readable(colour, option.palette.color(QPalette::Base), kMarkContrast), width, Qt::SolidLine,
                           Qt::SquareCap, Qt::MiterJoin));
      painter->drawRect(option.rect.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    }
    painter->restore();
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
  }
};

/// The title above the titles of the rows, for which a table of Qt has no place.
class CornerTitle final : public QWidget {
 public:
  explicit CornerTitle(QTableView& table) : QWidget(&table), table_(table) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QStyleOptionHeader option;
    option.initFrom(this);
    option.position = QStyleOptionHeader::Beginning;
    option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.text = table_.model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString();
    QPainter painter(this);
    style()->drawControl(QStyle::CE_Header, &option, &painter, table_.horizontalHeader());
  }

 private:
  QTableView& table_;
};

class CellTable final : public QTableView {
 public:
  CellTable(shown::Control& control, Desk& desk, QWidget* parent)
      : QTableView(parent), control_(control), grid_(*control.AsTable()), desk_(desk) {
    model_ = new CellModel(control_, *this);
    setModel(model_);
    setItemDelegate(new CellDelegate(this));
    setFocusPolicy(Qt::TabFocus);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    // The titles of the rows stay in sight when the others are scrolled sideways.
    verticalHeader()->setVisible(model_->HasRowTitles());
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(FieldHeight(*this));
    horizontalHeader()->setVisible(model_->TitleRows() > 0);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    if (model_->HasRowTitles() && model_->TitleRows() > 0) corner_ = new CornerTitle(*this);
    QObject::connect(verticalHeader(), &QHeaderView::sectionPressed, this,
                     [this] { desk_.Do([this] { return control_.Focus(); }); });
    AddEditor();
  }

  [[nodiscard]] QWidget* KeyboardWidget() {
    if (grid_.Editing()) return editor_;
    return this;
  }
  bool TakeEditingKey(const QKeyEvent& key) { return grid_.Editing() && editor_->TakeEditingKey(key); }

  void Present() {
    // Column widths come from the texts, and from the widths that the dialog gives.
    const bool different = model_->Take();
    if (different || givenWidths_ != GivenWidths()) FitColumns();
    const auto current = model_->index(grid_.Row() - model_->TitleRows(), grid_.Col());
    if (current != currentIndex()) {
      selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
      if (current.isValid()) scrollTo(current);
    }
    if (grid_.Editing()) {
      editor_->ShowState({grid_.EditorText(), grid_.EditorSelStart(), grid_.EditorSelLength()});
    }
    PlaceEditor();
    editor_->setVisible(grid_.Editing());
  }

  [[nodiscard]] QSize sizeHint() const override { return HintFor(kMostRows); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    const auto few = HintFor(kFewestRows);
    return {std::min(few.width(), fontMetrics().averageCharWidth() * kFewestLetters), few.height()};
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    const auto cell = indexAt(event->position().toPoint());
    desk_.Do([&]() -> Refusal {
      const int row = cell.row() + model_->TitleRows();
      const bool canBeCurrent = cell.isValid() && row >= grid_.FixedRows() && cell.column() >= grid_.FixedCols();
      return canBeCurrent ? grid_.MakeCurrent(row, cell.column()) : control_.Focus();
    });
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    mousePressEvent(event);
    desk_.Do([&] { return grid_.DoubleClick(); });
  }
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void inputMethodEvent(QInputMethodEvent* event) override { event->accept(); }
  void scrollContentsBy(int dx, int dy) override {
    QTableView::scrollContentsBy(dx, dy);
    PlaceEditor();
  }
  void resizeEvent(QResizeEvent* event) override {
    QTableView::resizeEvent(event);
    PlaceEditor();
  }

  void updateGeometries() override {
    QTableView::updateGeometries();
    if (corner_ == nullptr) return;
    corner_->setGeometry(frameWidth(), frameWidth(), verticalHeader()->width(), horizontalHeader()->height());
    corner_->update();
  }

 private:
  void AddEditor() {
    editor_ = new PassiveLine(viewport());
    editor_->hide();
    editor_->Actions.SetCaret = [this](int start, int length) {
      desk_.Do([&] { return grid_.SetEditorCaret(start, length); });
    };
    editor_->Actions.Paste = [this](const QString& text) {
      desk_.Do([&] { return grid_.PasteIntoEditor(Given(text)); });
    };
    editor_->Actions.Type = [this](const QString& text) {
      for (const auto& key : KeysTyping(text)) desk_.Press(key, control_.Form());
    };
    editor_->Actions.Delete = [this] { desk_.Press(Key::Named(keys::Delete), control_.Form()); };
  }

  void PlaceEditor() {
    if (grid_.Editing()) editor_->setGeometry(visualRect(currentIndex()));
  }

  // Wide enough for every text; where there is room, in the proportions that the dialog gives.
  void FitColumns() {
    givenWidths_ = GivenWidths();
    titlesHeight_ = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sizeHint().height();
    const int around =
        2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + fontMetrics().averageCharWidth();
    widths_.assign(static_cast<std::size_t>(grid_.Cols()), 0);
    for (int col = 0; col < grid_.Cols(); ++col) {
      const int given = givenWidths_[static_cast<std::size_t>(col)] * logicalDpiX() / 1440;
      const auto header = horizontalHeader()->isHidden() ? 0 : horizontalHeader()->sectionSizeHint(col);
      auto& width = widths_[static_cast<std::size_t>(col)];
      width = std::max({given, header, model_->TextWidth(col) + around});
      if (columnWidth(col) != width) setColumnWidth(col, width);
    }
    if (!model_->HasRowTitles() || widths_.empty()) return;
    verticalHeader()->setFixedWidth(widths_.front());
    hideColumn(0);
  }

  [[nodiscard]] std::vector<int> GivenWidths() const {
    std::vector<int> given;
    for (int col = 0; col < grid_.Cols(); ++col) given.push_back(grid_.ColWidth(col));
    return given;
  }

  [[nodiscard]] QSize HintFor(int mostRows) const {
    int width = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    for (const int column : widths_) width += column;
    const int rows = std::clamp(model_->rowCount(), kFewestRows, mostRows);
    return {width, titlesHeight_ + rows * verticalHeader()->defaultSectionSize() + 2 * frameWidth()};
  }

  shown::Control& control_;
  shown::Table& grid_;
  Desk& desk_;
  CellModel* model_ = nullptr;
  PassiveLine* editor_ = nullptr;
  CornerTitle* corner_ = nullptr;  // where there are titles of both rows and columns
  std::vector<int> widths_;
  std::vector<int> givenWidths_;
  int titlesHeight_ = 0;  // takes its time to measure
};

class GridView final : public ViewOf<shown::Table> {
 public:
  GridView(shown::Control& grid, Desk& desk, QWidget* parent)
      : ViewOf(grid, *grid.AsTable(), desk), table_(new CellTable(grid, desk, parent)) {}
  [[nodiscard]] QWidget* Widget() const override { return table_; }
  [[nodiscard]] QWidget* KeyboardWidget() const override { return table_->KeyboardWidget(); }
  bool TakeWindowKey(const QKeyEvent& key) override { return table_->TakeEditingKey(key); }
  void Present() override { table_->Present(); }

 private:
  CellTable* table_;
};

}  // namespace

std::unique_ptr<ControlView> MakeGridView(shown::Control& control, Desk& desk, QWidget* parent) {
  return std::make_unique<GridView>(control, desk, parent);
}

}  // namespace orlin
