#include "qt/colours.h"

#include <algorithm>
#include <cmath>

namespace orlin {
namespace {

constexpr double kEnough = 4.5;

double Linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

QColor Mixed(const QColor& from, const QColor& to, double share) {
  const auto part = [share](float a, float b) {
    return static_cast<float>(static_cast<double>(a) * (1 - share) + static_cast<double>(b) * share);
  };
  return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                          part(from.blueF(), to.blueF()));
}

}  // namespace

QColor ColourOf(std::int32_t colour, const QPalette& palette) {
  if (colour < 0) return palette.color(QPalette::Disabled, QPalette::Base);
  // What the logic calls white is the usual ground of a box, which is dark on a dark desktop.
  if (colour == 0xFFFFFF) return palette.color(QPalette::Active, QPalette::Base);
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

double Contrast(const QColor& text, const QColor& background) {
  const auto [dark, light] = std::minmax({Luminance(text), Luminance(background)});
  return (light + 0.05) / (dark + 0.05);
}

QColor Readable(const QColor& text, const QColor& background) {
  const QColor towards = Contrast(Qt::white, background) > Contrast(Qt::black, background) ? Qt::white : Qt::black;
  for (double share = 0; share < 1; share += 0.05) {
    const auto mixed = Mixed(text, towards, share);
    if (Contrast(mixed, background) >= kEnough) return mixed;
  }
  return towards;
}

}  // namespace orlin
