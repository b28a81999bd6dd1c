#include "OrlinCustomDialogs/hosts/qt/qt_host.h"

#include <QApplication>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>

#include "qt/dialog_window.h"
#include "qt/local_text.h"
#include "qt/stand_over.h"
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

int AnswerOf(int button, int flags) {
  switch (button) {
    case QMessageBox::Ok:
      return answers::Ok;
    case QMessageBox::Yes:
      return answers::Yes;
    case QMessageBox::No:
      return answers::No;
    case QMessageBox::Cancel:
      return answers::Cancel;
    default:
      break;
  }
  // None was pressed: as Escape answers.
  switch (flags & kButtonsMask) {
    case Message::OkCancel:
      return answers::Cancel;
    case Message::YesNo:
      return answers::No;
    default:
      return answers::Ok;
  }
}

/// A message that leaves the field uncovered that it is about.
class MessageBox final : public QMessageBox {
 public:
  explicit MessageBox(DialogWindow* window) : QMessageBox(window), window_(window) {}

 protected:
  // Only what is about to be shown has its size.
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    const auto field = window_ != nullptr ? window_->FieldAtHand() : QRect();
    if (field.isEmpty()) return;
    const auto around = window_->frameGeometry();
    const auto border = around.size() - window_->size();
    move(PlaceBeside(field, around, size() + border, window_->screen()->availableGeometry()));
  }

 private:
  DialogWindow* window_;
};

}  // namespace

SizeInTwips QtHost::Screen() const {
  const auto* screen = QGuiApplication::primaryScreen();
  const auto twips = [&](int pixels, double perInch) { return static_cast<int>(pixels * kTwipsToTheInch / perInch); };
  return {twips(screen->size().width(), screen->logicalDotsPerInchX()),
          twips(screen->size().height(), screen->logicalDotsPerInchY())};
}

void QtHost::ShowModal(shown::Dialog& dialog) {
  if (Closing()) return dialog.Close();
  DialogWindow window(dialog, DialogWindow::Timers::Run, Parent());
  const QScopedValueRollback<DialogWindow*> present(window_, &window);
  window.Open();
  window.Work();
}

int QtHost::ShowMessage(const Message& message) {
  if (Closing()) return AnswerOf(QMessageBox::NoButton, message.Flags);
  if (window_ != nullptr) {
    window_->Present();
    window_->show();
  }
  MessageBox box(window_);
  StandOver(box, Parent());
  box.setTextFormat(Qt::PlainText);
  box.setText(Shown(message.Text));
  box.setWindowTitle(message.Title ? Shown(*message.Title) : QGuiApplication::applicationDisplayName());
  box.setStandardButtons(ButtonsOf(message.Flags));
  LabelButtons(box);
  const bool asks = (message.Flags & kButtonsMask) != Message::OkOnly;
  const bool warns = (message.Flags & Message::Warning) == Message::Warning;
  box.setIcon(warns ? QMessageBox::Warning : asks ? QMessageBox::Question : QMessageBox::Information);
  return AnswerOf(box.exec(), message.Flags);
}

bool QtHost::Closing() const { return window_ != nullptr && window_->Closing(); }

QWidget* QtHost::Parent() const {
  if (window_ != nullptr) return window_;
  return parent_ != nullptr ? parent_.data() : QApplication::activeWindow();
}

void QtHost::Beep() { QApplication::beep(); }

}  // namespace orlin
