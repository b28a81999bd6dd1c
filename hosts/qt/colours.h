#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace orlin {

/// A colour of the library, 0xBBGGRR, or, with the highest bit, a colour of the desktop.
[[nodiscard]] QColor ColourOf(std::int32_t colour, const QPalette& palette);

/// How well one colour is read on another: 1 for not at all, 21 for black on white.
[[nodiscard]] double Contrast(const QColor& text, const QColor& background);

/// The least contrast of a text, and of a mark or an outline.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kMarkContrast = 3;

/// The colour, made darker or lighter until it has that contrast to the background.
[[nodiscard]] QColor Readable(const QColor& text, const QColor& background, double contrast = kTextContrast);

/// The palette with texts that can be read, disabled ones too.
[[nodiscard]] QPalette Legible(QPalette palette);

/// A palette for what stands in a window, not for the window itself: with outlines that can be seen on the ground of
/// the window and on that of a field. The style makes them out of the colour of windows, which is another one here.
[[nodiscard]] QPalette Outlined(QPalette palette);

/// Both, for windows whose palette would be `given`. They stay the same from window to window: styles keep what they
/// have drawn, and find it again by the palette.
struct WindowPalettes {
  QPalette Window;
  QPalette Inside;
};
[[nodiscard]] WindowPalettes PalettesFor(const QPalette& given);

/// What the style makes of such a palette: the outlines of fields and of marks, and the marks.
[[nodiscard]] QColor Outline(const QPalette& palette);
[[nodiscard]] QColor MarkOutline(const QPalette& palette);
[[nodiscard]] QColor Mark(const QPalette& palette, QPalette::ColorGroup group);

}  // namespace orlin
