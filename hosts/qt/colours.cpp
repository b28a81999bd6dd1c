#include "qt/colours.h"

#include <QCoreApplication>
#include <QVariant>
#include <algorithm>
#include <cmath>

namespace orlin {
namespace {

// Fusion, and what is built on it, draws outlines in the colour of windows made darker by that; of marks lighter again.
// Marks themselves are drawn in the colour of texts, made darker.
constexpr int kDarkerOutline = 140;
constexpr int kLighterMarkOutline = 110;
constexpr int kDarkerMark = 120;
constexpr double kStep = 0.05;

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

QColor FarFrom(const QColor& background) {
  return Contrast(Qt::white, background) > Contrast(Qt::black, background) ? Qt::white : Qt::black;
}

/// The colour, moved towards another one no farther than it takes.
template <class Enough>
QColor Changed(const QColor& colour, const QColor& towards, Enough enough) {
  for (double share = 0; share < 1; share += kStep) {
    const auto mixed = Mixed(colour, towards, share);
    if (enough(mixed)) return mixed;
  }
  return towards;
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

QColor Readable(const QColor& text, const QColor& background, double contrast) {
  const auto enough = [&](const QColor& mixed) { return Contrast(mixed, background) >= contrast; };
  return Changed(text, FarFrom(background), enough);
}

QColor Outline(const QPalette& palette) { return palette.color(QPalette::Window).darker(kDarkerOutline); }

QColor MarkOutline(const QPalette& palette) { return Outline(palette).lighter(kLighterMarkOutline); }

QColor Mark(const QPalette& palette, QPalette::ColorGroup group) {
  return palette.color(group, QPalette::Text).darker(kDarkerMark);
}

QPalette Legible(QPalette palette) {
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const auto colour = [&](QPalette::ColorRole role) { return palette.color(group, role); };
    const auto change = [&](QPalette::ColorRole role, const QColor& wanted) {
      if (colour(role) != wanted) palette.setColor(group, role, wanted);
    };
    change(QPalette::WindowText, Readable(colour(QPalette::WindowText), colour(QPalette::Window)));
    change(QPalette::ButtonText, Readable(colour(QPalette::ButtonText), colour(QPalette::Button)));
    const auto base = colour(QPalette::Base);
    change(QPalette::Text, Changed(colour(QPalette::Text), FarFrom(base), [&](const QColor& text) {
             return Contrast(text, base) >= kTextContrast && Contrast(text.darker(kDarkerMark), base) >= kMarkContrast;
           }));
    // What is selected keeps its white or black text.
    change(QPalette::Highlight, Readable(colour(QPalette::Highlight), colour(QPalette::HighlightedText)));
  }
  return palette;
}

QPalette Outlined(QPalette palette) {
  const auto window = palette.color(QPalette::Window);
  const auto base = palette.color(QPalette::Base);
  const auto enough = [&](const QColor& outline) {
    const auto seen = [&](const QColor& line) {
      return Contrast(line, window) >= kMarkContrast && Contrast(line, base) >= kMarkContrast;
    };
    return seen(outline) && seen(outline.lighter(kLighterMarkOutline));
  };
  const auto outline = Changed(window, FarFrom(window), enough);
  palette.setColor(QPalette::Window, outline.lighter(kDarkerOutline));
  return palette;
}

// Kept with the application, whose palette it is nearly always.
WindowPalettes PalettesFor(const QPalette& given) {
  constexpr const char* property = "OrlinWindowPalettes";
  const auto known = qApp->property(property).toList();
  if (known.size() == 3 && known[0].toLongLong() == given.cacheKey()) {
    return {known[1].value<QPalette>(), known[2].value<QPalette>()};
  }
  WindowPalettes made{Legible(given), {}};
  made.Inside = Outlined(made.Window);
  // One that leaves nothing to be taken from elsewhere is shared by all widgets as it is.
  for (auto* palette : {&made.Window, &made.Inside}) palette->setResolveMask(~QPalette::ResolveMask(0));
  qApp->setProperty(property, QVariantList{given.cacheKey(), made.Window, made.Inside});
  return made;
}

}  // namespace orlin
