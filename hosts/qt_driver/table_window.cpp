#include "qt_driver/table_window.h"

#include <QCollator>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>
#include <optional>
#include <utility>

#include "qt/texts.h"

namespace orlin {
namespace {

enum Column { kName, kMeaning, kRaw, kColumns };

// Texts of the catalogue.
constexpr std::int16_t kHeads[kColumns] = {20301, 20302, 20303};
constexpr std::int16_t kHint = 20304;
constexpr std::int16_t kFilter = 20305;
constexpr std::int16_t kShowPasscodes = 20306;
constexpr std::int16_t kBefore = 20307;

/// Rows are what one moves about in: Home and End go to the first and the last of them.
class RowTable final : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
    if (action != MoveHome && action != MoveEnd) return QTableWidget::moveCursor(action, modifiers);
    int row = action == MoveHome ? 0 : rowCount() - 1;
    const int step = action == MoveHome ? 1 : -1;
    while (row >= 0 && row < rowCount() && isRowHidden(row)) row += step;
    return model()->index(row, currentColumn());
  }
};

/// "Zone 5" comes before "Zone 12".
class Cell final : public QTableWidgetItem {
 public:
  using QTableWidgetItem::QTableWidgetItem;
  bool operator<(const QTableWidgetItem& other) const override {
    static const QCollator natural = [] {
      QCollator collator;
      collator.setNumericMode(true);
      return collator;
    }();
    return natural.compare(text(), other.text()) < 0;
  }
};

QSettings Places() { return QSettings(QStringLiteral("OrlinCustomDialogs"), QStringLiteral("orlin-host")); }

}  // namespace

TableWindow::TableWindow(ParameterTable& table) : table_(table) {
  setWindowTitle(Shown(table.Title()));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  filter_ = new QLineEdit(this);
  filter_->setClearButtonEnabled(true);
  QObject::connect(filter_, &QLineEdit::textChanged, this, [this] { Filter(); });
  auto* label = new QLabel(Text(kFilter), this);
  label->setBuddy(filter_);
  view_ = MakeView();
  line_ = new QLabel(Text(kHint), this);
  line_->setObjectName(QStringLiteral("outcome"));
  line_->setTextFormat(Qt::PlainText);
  line_->setWordWrap(true);

  auto* top = new QHBoxLayout;
  top->addWidget(label);
  top->addWidget(filter_);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(line_, 1);
  if (table_.HasSecrets()) {
    auto* secrets = new QCheckBox(Text(kShowPasscodes), this);
    QObject::connect(secrets, &QCheckBox::toggled, this, [this](bool shown) {
      table_.ShowSecrets(shown);
      Fill();
    });
    bottom->addWidget(secrets);
  }
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(view_);
  layout->addLayout(bottom);

  Fill();
  if (view_->rowCount() > 0) view_->setCurrentCell(0, kName);
  view_->setFocus();
  AddShortcuts();
  Recall();

  const QFileInfo file(QString::fromStdString(table_.File()));
  watcher_.addPaths({file.absoluteFilePath(), file.absolutePath()});
  for (const auto changed : {&QFileSystemWatcher::fileChanged, &QFileSystemWatcher::directoryChanged}) {
    QObject::connect(&watcher_, changed, this, [this] { LookAtFile(); });
  }
}

QTableWidget* TableWindow::MakeView() {
  auto* view = new RowTable(0, kColumns, this);
  for (int column = 0; column < kColumns; ++column) {
    auto* title = new QTableWidgetItem(Text(kHeads[column]));
    title->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view->setHorizontalHeaderItem(column, title);
  }
  view->setAccessibleName(windowTitle());
  view->setSelectionBehavior(QAbstractItemView::SelectRows);
  view->setSelectionMode(QAbstractItemView::SingleSelection);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setTabKeyNavigation(false);
  view->setAlternatingRowColors(true);
  view->setTextElideMode(Qt::ElideRight);
  view->setWordWrap(false);
  view->verticalHeader()->hide();
  view->horizontalHeader()->setStretchLastSection(true);
  view->horizontalHeader()->setHighlightSections(false);
  // A third click on a head brings the order of the file back.
  view->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  view->horizontalHeader()->setSortIndicatorClearable(true);
  QObject::connect(view->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this](int column) {
    if (column < 0) Fill();
  });
  QObject::connect(view, &QTableWidget::cellActivated, this, [this](int row, int) { OpenRow(row); });
  return view;
}

void TableWindow::AddShortcuts() {
  const auto add = [this](const QKeySequence& keys, auto work) {
    QObject::connect(new QShortcut(keys, this), &QShortcut::activated, this, work);
  };
  add(QKeySequence::Find, [this] {
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
  });
  add(QKeySequence(Qt::CTRL | Qt::Key_Z), [this] { Do([this] { return table_.Undo(); }); });
  add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), [this] { Do([this] { return table_.Redo(); }); });
}

QString TableWindow::Text(std::int16_t number) const { return Shown(table_.Text(number)); }

void TableWindow::Work() {
  exec();
  Remember();
}

void TableWindow::keyPressEvent(QKeyEvent* event) {
  const bool filtering = filter_->hasFocus();
  if (filtering && (event->key() == Qt::Key_Down || event->key() == Qt::Key_Return)) return view_->setFocus();
  if (event->key() == Qt::Key_Escape) {
    // One Escape too many after an editor does not close the account.
    filter_->clear();
    return view_->setFocus();
  }
  QDialog::keyPressEvent(event);
}

std::size_t TableWindow::ParameterOf(int row) const {
  return view_->item(row, kName)->data(Qt::UserRole).toULongLong();
}

void TableWindow::Fill() {
  const auto current = view_->currentRow() >= 0 ? std::optional(ParameterOf(view_->currentRow())) : std::nullopt;
  const int column = std::max(view_->currentColumn(), 0);
  const auto& rows = table_.Rows();
  view_->setSortingEnabled(false);
  view_->setRowCount(static_cast<int>(rows.size()));
  for (int row = 0; row < view_->rowCount(); ++row) {
    const auto& parameter = rows[static_cast<std::size_t>(row)];
    const auto add = [&](Column at, const QString& text, const QString& before) {
      auto* cell =
          new Cell(before.isEmpty() ? text : text + u'\n' + Text(kBefore).replace(QStringLiteral("%VALUE%"), before));
      cell->setToolTip(at == kName ? Shown(parameter.Hint) : cell->text());
      if (parameter.Before) {
        auto font = view_->font();
        font.setBold(true);
        cell->setFont(font);
      }
      view_->setItem(row, at, cell);
    };
    const auto before = parameter.Before.value_or(ShownValues());
    add(kName, Shown(parameter.Name), {});
    add(kMeaning, Shown(parameter.Now.Words), Shown(before.Words));
    add(kRaw, Shown(parameter.Now.Raw), Shown(before.Raw));
    view_->item(row, kName)->setData(Qt::UserRole, static_cast<qulonglong>(row));
  }
  view_->setSortingEnabled(true);
  view_->resizeRowsToContents();
  Filter();
  for (int row = 0; current && row < view_->rowCount(); ++row) {
    if (ParameterOf(row) == *current) view_->setCurrentCell(row, column);
  }
}

void TableWindow::Filter() {
  const auto wanted = filter_->text().trimmed();
  int first = -1;
  for (int row = view_->rowCount() - 1; row >= 0; --row) {
    const bool found = view_->item(row, kName)->text().contains(wanted, Qt::CaseInsensitive) ||
                       view_->item(row, kMeaning)->text().contains(wanted, Qt::CaseInsensitive);
    view_->setRowHidden(row, !found);
    if (found) first = row;
  }
  const bool lost = view_->currentRow() < 0 || view_->isRowHidden(view_->currentRow());
  if (lost && first >= 0) view_->setCurrentCell(first, kName);
}

void TableWindow::Do(const std::function<std::string()>& work) {
  if (std::exchange(working_, true)) return;
  const auto told = work();
  working_ = false;
  if (!told.empty()) line_->setText(Shown(told));
  // Others may have changed more than this row.
  Fill();
  if (std::exchange(fileChanged_, false)) LookAtFile();
}

void TableWindow::OpenRow(int row) {
  const auto parameter = ParameterOf(row);
  Do([&] { return table_.Open(parameter); });
}

void TableWindow::LookAtFile() {
  // Whoever writes puts another file in its place, which is watched from now on.
  watcher_.addPath(QString::fromStdString(table_.File()));
  // An editor that is open goes by what stood there when it was opened.
  if (working_) {
    fileChanged_ = true;
  } else if (const auto told = table_.Refresh(); !told.empty()) {
    line_->setText(Shown(told));
    Fill();
  }
}

void TableWindow::Remember() {
  auto places = Places();
  places.setValue(QStringLiteral("account/geometry"), saveGeometry());
  places.setValue(QStringLiteral("account/columns"), view_->horizontalHeader()->saveState());
}

void TableWindow::Recall() {
  const auto metrics = fontMetrics();
  resize(metrics.averageCharWidth() * 140, metrics.lineSpacing() * 36);
  view_->setColumnWidth(kName, metrics.averageCharWidth() * 32);
  view_->setColumnWidth(kMeaning, metrics.averageCharWidth() * 64);
  const auto places = Places();
  restoreGeometry(places.value(QStringLiteral("account/geometry")).toByteArray());
  view_->horizontalHeader()->restoreState(places.value(QStringLiteral("account/columns")).toByteArray());
}

}  // namespace orlin
