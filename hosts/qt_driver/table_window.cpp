#include "qt_driver/table_window.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/texts.h"

namespace orlin {
namespace {

/// Rows are what one moves about in: Home and End go to the first and the last of them.
class RowTable final : public QTableWidget {
 public:
  using QTableWidget::QTableWidget;

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
    if (action == MoveHome) return model()->index(0, currentColumn());
    if (action == MoveEnd) return model()->index(rowCount() - 1, currentColumn());
    return QTableWidget::moveCursor(action, modifiers);
  }
};

}  // namespace

TableWindow::TableWindow(ParameterTable& table) : table_(table) {
  setWindowTitle(Shown(table.Title()));
  const auto columns = table.Columns();
  view_ = new RowTable(0, static_cast<int>(columns.size()), this);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    auto* title = new QTableWidgetItem(Shown(columns[i]));
    title->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view_->setHorizontalHeaderItem(static_cast<int>(i), title);
  }
  view_->setAccessibleName(windowTitle());
  view_->setSelectionBehavior(QAbstractItemView::SelectRows);
  view_->setSelectionMode(QAbstractItemView::SingleSelection);
  view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_->setTabKeyNavigation(false);
  view_->setAlternatingRowColors(true);
  view_->verticalHeader()->hide();
  view_->horizontalHeader()->setStretchLastSection(true);
  view_->horizontalHeader()->setHighlightSections(false);
  Fill();
  view_->resizeColumnsToContents();
  if (view_->rowCount() > 0) view_->setCurrentCell(0, 0);
  QObject::connect(view_, &QTableWidget::cellActivated, this, [this](int row, int) { OpenRow(row); });

  line_ = new QLabel(tr("Enter or a double-click opens the editor of a parameter."), this);
  line_->setTextFormat(Qt::PlainText);
  line_->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(view_);
  layout->addWidget(line_);
  const auto metrics = fontMetrics();
  resize(metrics.averageCharWidth() * 130, metrics.lineSpacing() * 36);
}

void TableWindow::Work() { exec(); }

void TableWindow::keyPressEvent(QKeyEvent* event) {
  // One Escape too many after an editor does not close the account.
  if (event->key() != Qt::Key_Escape) QDialog::keyPressEvent(event);
}

void TableWindow::Fill() {
  view_->setRowCount(static_cast<int>(table_.Rows()));
  for (int row = 0; row < view_->rowCount(); ++row) {
    const auto texts = table_.Row(static_cast<std::size_t>(row));
    for (int col = 0; col < view_->columnCount(); ++col) {
      view_->setItem(row, col, new QTableWidgetItem(Shown(texts.at(static_cast<std::size_t>(col)))));
    }
  }
}

void TableWindow::OpenRow(int row) {
  line_->setText(Shown(table_.Open(static_cast<std::size_t>(row))));
  // Others may have changed more than this row.
  Fill();
}

}  // namespace orlin
