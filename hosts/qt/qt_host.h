#pragma once

#include "OrlinCustomDialogs/host/dialog_host.h"

class QWidget;

namespace orlin {

class DialogWindow;

/// Shows dialogs in windows. Needs a QApplication.
class QtHost final : public DialogHost {
 public:
  /// Dialogs stand over `parent`, where there is one.
  explicit QtHost(QWidget* parent = nullptr) : parent_(parent) {}

  [[nodiscard]] SizeInTwips Screen() const override;
  void ShowModal(shown::Dialog& dialog) override;
  int ShowMessage(const Message& message) override;
  void Beep() override;

 private:
  QWidget* parent_;
  DialogWindow* window_ = nullptr;  // while a dialog is shown
};

}  // namespace orlin
