#include "qt/help_line.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include "qt/colours.h"

namespace orlin {
namespace {

constexpr int kLines = 2;

}  // namespace

HelpLine::HelpLine(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void HelpLine::Show(const QString& text) {
  if (text == text_) return;
  text_ = text;
  setAccessibleName(text);
  update();
}

QSize HelpLine::sizeHint() const { return {0, kLines * fontMetrics().lineSpacing()}; }

void HelpLine::paintEvent(QPaintEvent*) {
  if (text_.isEmpty()) return;
  QPainter painter(this);
  const auto metrics = fontMetrics();
  QTextLayout layout(text_, font(), this);
  layout.beginLayout();
  auto first = layout.createLine();
  first.setLineWidth(width());
  layout.endLayout();
  const auto rest = text_.mid(first.textLength()).trimmed();
  painter.drawText(0, metrics.ascent(), text_.left(first.textLength()));
  painter.drawText(0, metrics.lineSpacing() + metrics.ascent(), metrics.elidedText(rest, Qt::ElideRight, width()));
}

void FocusRing::paintEvent(QPaintEvent*) {
  if (widget() == nullptr) return;
  QPainter painter(this);
  const auto ground = window()->palette().color(QPalette::Window);
  const int around = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this);
  painter.setPen(QPen(Readable(palette().color(QPalette::Highlight), ground, kMarkContrast), around));
  const auto half = static_cast<double>(around) / 2;
  painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}

}  // namespace orlin
