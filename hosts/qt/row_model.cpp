#include "qt/row_model.h"

#include <algorithm>
#include <array>

#include "qt/texts.h"

namespace orlin {

int WidthOfLongest(const std::vector<const std::string*>& texts, const QFontMetrics& metrics) {
  // The advances of single letters tell which texts can be the widest; only these are measured as they are drawn.
  std::array<int, 128> advances{};
  const auto roughWidth = [&](const std::string& text) {
    int width = 0;
    for (const char c : text) {
      const auto place = static_cast<unsigned char>(c) % advances.size();
      if (advances[place] == 0) advances[place] = metrics.horizontalAdvance(QChar(static_cast<int>(place)));
      width += advances[place];
    }
    return width;
  };
  std::vector<int> rough;
  rough.reserve(texts.size());
  for (const auto* text : texts) rough.push_back(roughWidth(*text));
  const int most = rough.empty() ? 0 : *std::max_element(rough.begin(), rough.end());
  int width = 0;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (rough[i] * 10 >= most * 9) width = std::max(width, metrics.horizontalAdvance(Shown(*texts[i])));
  }
  return width;
}

void RowModel::Take(const shown::RowList& list, const shown::ListBox* checks) {
  const auto count = static_cast<std::size_t>(list.ListCount());
  bool same = count == rows_.size();
  for (std::size_t row = 0; same && row < count; ++row) same = rows_[row] == list.List(static_cast<int>(row));
  if (!same) {
    beginResetModel();
    rows_.resize(count);
    for (std::size_t row = 0; row < count; ++row) rows_[row] = list.List(static_cast<int>(row));
    width_ = -1;
    endResetModel();
  }
  hasChecks_ = checks != nullptr;
  if (!hasChecks_ || count == 0) return;
  checked_.resize(count);
  for (std::size_t row = 0; row < count; ++row) checked_[row] = checks->Selected(static_cast<int>(row));
  emit dataChanged(index(0), index(static_cast<int>(count) - 1), {Qt::CheckStateRole});
}

int RowModel::Width(const QFont& font) const {
  if (width_ >= 0 && font == font_) return width_;
  std::vector<const std::string*> texts;
  texts.reserve(rows_.size());
  for (const auto& row : rows_) texts.push_back(&row);
  font_ = font;
  return width_ = WidthOfLongest(texts, QFontMetrics(font));
}

int RowModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::DisplayRole || role == Qt::EditRole) return Shown(rows_[row]);
  if (role == Qt::CheckStateRole && hasChecks_) return checked_[row] ? Qt::Checked : Qt::Unchecked;
  return {};
}

}  // namespace orlin
