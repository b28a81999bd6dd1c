#pragma once

#include <QPointer>
#include <QWidget>
#include <utility>

#include "OrlinCustomDialogs/host/dialog_host.h"

namespace orlin {

class DialogWindow;

/// Shows dialogs in windows. Needs a QApplication.
///
/// Dialogs and messages stand over a parent: the one that the host was made with or, within a `ParentForCalls`, that
/// one. While there is none, or where it has been destroyed before the call, it is the active window, if any.
///
/// A parent may be destroyed, hidden or closed at any time. Destroyed while a dialog is shown, it counts as the close
/// box of the dialog, which ends at once or, where a handler runs, when that has returned; a message that is shown, or
/// that the handler still wants, is answered as by Escape. A parent that is hidden or closed and lives on leaves the
/// dialog as it is. An application that quits ends dialogs in the same way.
class QtHost final : public DialogHost {
 public:
  explicit QtHost(QWidget* parent = nullptr) : parent_(parent) {}

  /// Gives the calls another parent while it lives, as a local variable. The host outlives it.
  class ParentForCalls {
   public:
    ParentForCalls(QtHost& host, QWidget* parent) : host_(host), before_(std::exchange(host.parent_, parent)) {}
    ParentForCalls(const ParentForCalls&) = delete;
    ParentForCalls& operator=(const ParentForCalls&) = delete;
    ~ParentForCalls() { host_.parent_ = before_; }

   private:
    QtHost& host_;
    QPointer<QWidget> before_;
  };

  [[nodiscard]] SizeInTwips Screen() const override;
  void ShowModal(shown::Dialog& dialog) override;
  int ShowMessage(const Message& message) override;
  void Beep() override;

 private:
  /// Whether what is shown is being closed, so that nobody is asked any more.
  [[nodiscard]] bool Closing() const;
  /// What the next window stands over; may be null.
  [[nodiscard]] QWidget* Parent() const;

  QPointer<QWidget> parent_;
  DialogWindow* window_ = nullptr;  // while a dialog is shown
};

}  // namespace orlin
