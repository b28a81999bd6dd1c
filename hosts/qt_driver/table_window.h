#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <cstdint>
#include <functional>

#include "window_system/window_system.h"

namespace orlin {

/// The workbench of a technician: a table of parameters, where Enter or a double-click opens the editor of one.
class TableWindow final : public QDialog {
 public:
  /// The table outlives the window.
  explicit TableWindow(ParameterTable& table);

  /// Lets the operator work until the window is closed.
  void Work();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QString Text(std::int16_t number) const;
  QTableWidget* MakeView();
  void AddShortcuts();
  void Fill();
  void Filter();
  /// Does what a line is told of, and shows both.
  void Do(const std::function<std::string()>& work);
  void OpenRow(int row);
  void LookAtFile();
  void Remember();
  void Recall();
  [[nodiscard]] std::size_t ParameterOf(int row) const;

  ParameterTable& table_;
  QLineEdit* filter_ = nullptr;
  QTableWidget* view_ = nullptr;
  QLabel* line_ = nullptr;
  QFileSystemWatcher watcher_;
  bool working_ = false;
  bool fileChanged_ = false;
};

}  // namespace orlin
