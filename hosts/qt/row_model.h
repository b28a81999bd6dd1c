#pragma once

#include <QAbstractListModel>
#include <QFont>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/controls.h"

namespace orlin {

/// The rows of a list as they were when the window was last brought up to date.
class RowModel final : public QAbstractListModel {
 public:
  explicit RowModel(QObject* parent) : QAbstractListModel(parent) {}

  /// Takes the rows over; `checks` shows which are chosen by check marks.
  void Take(const shown::RowList& list, const shown::ListBox* checks);

  /// The width of the longest row in that font.
  [[nodiscard]] int Width(const QFont& font) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<std::string> rows_;
  std::vector<bool> checked_;
  bool hasChecks_ = false;
  mutable int width_ = -1;
  mutable QFont font_;
};

/// The width of the widest of some texts.
[[nodiscard]] int WidthOfLongest(const std::vector<const std::string*>& texts, const QFontMetrics& metrics);

}  // namespace orlin
