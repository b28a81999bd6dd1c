#include "qt_driver/pictures.h"

#include <QApplication>
#include <QDir>
#include <QStyleFactory>
#include <stdexcept>
#include <utility>

#include "qt/dialog_window.h"
#include "qt/texts.h"

namespace orlin {
namespace {

// Of a common screen, twice as fine, so that texts of twice the size fit.
constexpr QSize kScreen(3840, 2160);

QPalette DarkPalette() {
  QPalette palette(QColor(45, 45, 48));
  // Lighter than the window, as its outlines are darker: an empty check mark can be seen on both.
  palette.setColor(QPalette::Base, QColor(68, 68, 72));
  palette.setColor(QPalette::Highlight, QColor(53, 132, 228));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, QColor(235, 235, 235));
    palette.setColor(QPalette::Disabled, role, QColor(155, 155, 155));
  }
  return palette;
}

}  // namespace

PictureHost::PictureHost(PictureOptions options, std::function<std::string()> name)
    : options_(std::move(options)), name_(std::move(name)) {
  // The same pictures on every desktop.
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  if (options_.Dark) QApplication::setPalette(DarkPalette());
  auto font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * options_.FontScale);
  QApplication::setFont(font);
}

SizeInTwips PictureHost::Screen() const { return {15360, 11520}; }

void PictureHost::ShowModal(shown::Dialog& dialog) {
  DialogWindow window(dialog, DialogWindow::Timers::Stand, nullptr);
  window.SetRoom(kScreen);
  window.Open();
  window.Settle();
  QApplication::processEvents();
  const auto folder = Shown(options_.Folder);
  const auto file = QDir(folder).filePath(Shown(name_()) + QStringLiteral(".png"));
  const bool saved = QDir().mkpath(folder) && window.grab().save(file);
  dialog.Close();
  window.hide();
  window.Rethrow();
  if (!saved) throw std::runtime_error("cannot write " + Given(file));
}

int PictureHost::ShowMessage(const Message& message) {
  return (message.Flags & 0xF) == Message::YesNo ? answers::Yes : answers::Ok;
}

}  // namespace orlin
