#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace orlin {

/// A colour of the library, 0xBBGGRR, or, with the highest bit, a colour of the desktop.
[[nodiscard]] QColor ColourOf(std::int32_t colour, const QPalette& palette);

/// How well one colour is read on another: 1 for not at all, 21 for black on white.
[[nodiscard]] double Contrast(const QColor& text, const QColor& background);

/// The colour, made darker or lighter until it can be read on the background: a contrast of 4.5 at least.
[[nodiscard]] QColor Readable(const QColor& text, const QColor& background);

}  // namespace orlin
