#include "qt_driver/scripted_windows.h"

#include <QScopedValueRollback>

namespace orlin {

void ScriptedWindows::ShowModal(shown::Dialog& dialog) {
  trace_.Shown(dialog);
  DialogWindow window(dialog, DialogWindow::Timers::Stand, nullptr);
  const QScopedValueRollback<DialogWindow*> present(window_, &window);
  window.Open();
  window.Rethrow();
  static_cast<void>(window.TakeRefusal());
  player_.Play(dialog);
}

int ScriptedWindows::ShowMessage(const Message& message) {
  if (window_ != nullptr) window_->Present();
  return player_.AnswerTo(message);
}

void ScriptedWindows::HandlerFailed(const shown::Dialog&, std::string_view handler, const Failure& failure) {
  trace_.HandlerFailed(handler, failure.Number());
}

}  // namespace orlin
