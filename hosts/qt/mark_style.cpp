#include "qt/mark_style.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QWidget>

namespace orlin {
namespace {

/// The style of the application with marks of that size. One for all widgets of a window, which owns it.
class MarkStyle final : public QProxyStyle {
 public:
  MarkStyle(QStyle* style, int side, QObject* owner) : QProxyStyle(style), side_(side) { setParent(owner); }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        return side_;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

 private:
  int side_;
};

}  // namespace

void GrowMarks(QWidget& widget) {
  const int side = widget.fontMetrics().ascent();
  if (side <= widget.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget)) return;
  auto* window = widget.window();
  for (auto* child : window->children()) {
    if (auto* known = dynamic_cast<MarkStyle*>(child)) return widget.setStyle(known);
  }
  // A style that its name does not make anew stays as it is.
  auto* style = QStyleFactory::create(QApplication::style()->name());
  if (style != nullptr) widget.setStyle(new MarkStyle(style, side, window));
}

}  // namespace orlin
