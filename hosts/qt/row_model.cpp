#include "qt/row_model.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "qt/texts.h"

namespace orlin {

int WidthOfLongest(const std::vector<const std::string*>& texts, const QFontMetrics& metrics) {
  // Adding up letters costs a fraction of measuring texts as they are drawn. Qt draws at whole or at broken places, so
  // that the wider of both counts; a text of other letters is measured.
  const QFontMetricsF exact(metrics);
  std::array<double, 128> advances{};
  double widest = 0;
  for (const auto* text : texts) {
    double width = 0;
    for (const char c : *text) {
      const auto place = static_cast<unsigned char>(c);
      if (place >= advances.size()) {
        width = metrics.horizontalAdvance(Shown(*text));
        break;
      }
      auto& advance = advances[place];
      if (advance == 0) {
        advance = exact.horizontalAdvance(QChar(static_cast<int>(place)));
        advance = std::max(advance, std::round(advance));
      }
      width += advance;
    }
    widest = std::max(widest, width);
  }
  return static_cast<int>(std::ceil(widest));
}

bool RowTexts::AreThoseOf(const shown::Control& list) const {
  const auto& rows = *list.AsRowList();
  const auto count = static_cast<std::size_t>(rows.ListCount());
  bool same = count == rows_.size();
  for (std::size_t row = 0; same && row < count; ++row) {
    same = rows_[row] == list.Translated(rows.List(static_cast<int>(row)));
  }
  return same;
}

void RowTexts::Take(const shown::Control& list) {
  const auto& rows = *list.AsRowList();
  rows_.clear();
  for (int row = 0; row < rows.ListCount(); ++row) rows_.push_back(list.Translated(rows.List(row)));
  width_ = -1;
}

int RowTexts::Width(const QFont& font) const {
  if (width_ >= 0 && font == font_) return width_;
  std::vector<const std::string*> texts;
  texts.reserve(rows_.size());
  for (const auto& row : rows_) texts.push_back(&row);
  font_ = font;
  return width_ = WidthOfLongest(texts, QFontMetrics(font));
}

void RowModel::Take(const shown::Control& list) {
  const auto& rows = *list.AsRowList();
  if (!texts_.AreThoseOf(list)) {
    beginResetModel();
    texts_.Take(list);
    checked_.assign(texts_.Rows().size(), false);
    endResetModel();
  }
  hasChecks_ = rows.Choice() != shown::Choice::One;
  if (!hasChecks_ || rowCount() == 0) return;
  for (int row = 0; row < rowCount(); ++row) checked_[static_cast<std::size_t>(row)] = rows.Selected(row);
  emit dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

int RowModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(texts_.Rows().size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::DisplayRole || role == Qt::EditRole) return Shown(texts_.Rows()[row]);
  if (role == Qt::CheckStateRole && hasChecks_) return checked_[row] ? Qt::Checked : Qt::Unchecked;
  return {};
}

}  // namespace orlin
