#include "qt/stand_over.h"

#include <QWindow>

namespace orlin {
namespace {

/// The style sheets that a child of that widget would have.
QString StyleSheetsIn(const QWidget& parent) {
  QString sheets;
  for (const auto* widget = &parent; widget != nullptr; widget = widget->parentWidget()) {
    const auto sheet = widget->styleSheet();
    const bool hasSelectors = sheet.contains(QLatin1Char('{'));
    if (!sheet.isEmpty()) sheets.prepend(hasSelectors ? sheet : QStringLiteral("* {%1}").arg(sheet));
  }
  return sheets;
}

}  // namespace

// The window is no child of a parent that may go first: it would be deleted with it, and the handler that runs with it.
// So the window system alone knows what it stands over; what else a child has from its parent is copied.
void StandOver(QDialog& window, const QWidget* parent) {
  // The host application does not end with an editor.
  window.setAttribute(Qt::WA_QuitOnClose, false);
  if (parent == nullptr || parent == window.parentWidget()) return;
  window.setStyleSheet(StyleSheetsIn(*parent));
  window.setWindowIcon(parent->windowIcon());
  window.setScreen(parent->screen());
  window.winId();  // makes the handle
  window.windowHandle()->setTransientParent(parent->window()->windowHandle());
  QObject::connect(parent, &QObject::destroyed, &window, [&window] {
    for (auto* within : window.findChildren<QDialog*>()) within->reject();
    window.reject();
  });
}

}  // namespace orlin
