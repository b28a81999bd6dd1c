#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QTableWidget>

#include "window_system/window_system.h"

namespace orlin {

/// A table of parameters: Enter or a double-click opens the editor of one.
class TableWindow final : public QDialog {
 public:
  /// The table outlives the window.
  explicit TableWindow(ParameterTable& table);

  /// Lets the operator work until the window is closed.
  void Work();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Fill();
  void OpenRow(int row);

  ParameterTable& table_;
  QTableWidget* view_ = nullptr;
  QLabel* line_ = nullptr;
};

}  // namespace orlin
