#include "qt/qt_host.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>

#include "qt/dialog_window.h"
#include "qt/texts.h"

namespace orlin {
namespace {

constexpr int kTwipsToTheInch = 1440;
constexpr int kButtonsMask = 0xF;

QMessageBox::StandardButtons ButtonsOf(int flags) {
  switch (flags & kButtonsMask) {
    case Message::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Message::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

int AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return answers::Yes;
    case QMessageBox::No:
      return answers::No;
    case QMessageBox::Cancel:
      return answers::Cancel;
    default:
      return answers::Ok;
  }
}

}  // namespace

SizeInTwips QtHost::Screen() const {
  const auto* screen = QGuiApplication::primaryScreen();
  const auto twips = [&](int pixels, double perInch) { return static_cast<int>(pixels * kTwipsToTheInch / perInch); };
  return {twips(screen->size().width(), screen->logicalDotsPerInchX()),
          twips(screen->size().height(), screen->logicalDotsPerInchY())};
}

void QtHost::ShowModal(shown::Dialog& dialog) {
  DialogWindow window(dialog, DialogWindow::Timers::Run, parent_);
  const QScopedValueRollback<DialogWindow*> present(window_, &window);
  window.Open();
  window.Work();
}

int QtHost::ShowMessage(const Message& message) {
  if (window_ != nullptr) {
    window_->Present();
    window_->show();
  }
  QMessageBox box(window_ != nullptr ? static_cast<QWidget*>(window_) : parent_);
  box.setTextFormat(Qt::PlainText);
  box.setText(Shown(message.Text));
  box.setWindowTitle(message.Title ? Shown(*message.Title) : QGuiApplication::applicationDisplayName());
  box.setStandardButtons(ButtonsOf(message.Flags));
  const bool asks = (message.Flags & kButtonsMask) != Message::OkOnly;
  const bool warns = (message.Flags & Message::Warning) == Message::Warning;
  box.setIcon(warns ? QMessageBox::Warning : asks ? QMessageBox::Question : QMessageBox::Information);
  return AnswerOf(box.exec());
}

void QtHost::Beep() { QApplication::beep(); }

}  // namespace orlin
