#include "qt/stand_over.h"

#include <QWindow>
#include <algorithm>

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

constexpr int kGap = 8;

QRect Within(const QRect& screen, QRect box) {
  box.moveRight(std::min(box.right(), screen.right()));
  box.moveBottom(std::min(box.bottom(), screen.bottom()));
  box.moveLeft(std::max(box.left(), screen.left()));
  box.moveTop(std::max(box.top(), screen.top()));
  return box;
}

}  // namespace

QPoint PlaceBeside(const QRect& field, const QRect& window, QSize box, const QRect& screen) {
  QRect best;
  const auto covered = [&](const QRect& place) {
    const auto common = place.intersected(field);
    return common.isEmpty() ? 0 : common.width() * common.height();
  };
  // What is free, in the order in which an eye finds it from the field.
  for (const auto& kept : {window, field}) {
    const QPoint corners[] = {{kept.right() + kGap, field.top()},
                              {field.left(), kept.bottom() + kGap},
                              {kept.left() - kGap - box.width(), field.top()},
                              {field.left(), kept.top() - kGap - box.height()}};
    for (const auto& corner : corners) {
      const auto place = Within(screen, {corner, box});
      if (!place.intersects(kept)) return place.topLeft();
      if (best.isNull() || covered(place) < covered(best)) best = place;
    }
  }
  return best.topLeft();
}

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
