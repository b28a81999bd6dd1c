#pragma once

#include <QAbstractListModel>
#include <QFont>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/host/controls.h"

namespace orlin {

/// The texts of a list, as people read them, as they were when the window was last brought up to date.
class RowTexts {
 public:
  [[nodiscard]] bool AreThoseOf(const shown::Control& list) const;
  void Take(const shown::Control& list);

  [[nodiscard]] const std::vector<std::string>& Rows() const noexcept { return rows_; }
  /// The width of the longest row in that font.
  [[nodiscard]] int Width(const QFont& font) const;

 private:
  std::vector<std::string> rows_;
  mutable int width_ = -1;
  mutable QFont font_;
};

/// The rows of a list box.
class RowModel final : public QAbstractListModel {
 public:
  explicit RowModel(QObject* parent) : QAbstractListModel(parent) {}

  /// Takes the rows over, with their check marks where they have some.
  void Take(const shown::Control& list);

  [[nodiscard]] int Width(const QFont& font) const { return texts_.Width(font); }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  RowTexts texts_;
  std::vector<bool> checked_;
  bool hasChecks_ = false;
};

/// The width of the widest of some texts.
[[nodiscard]] int WidthOfLongest(const std::vector<const std::string*>& texts, const QFontMetrics& metrics);

}  // namespace orlin
