#pragma once

#include <QDialog>
#include <QRect>

namespace orlin {

/// Lets a window that is on the stack stand over `parent`, where there is one, which may be destroyed before the
/// window: then the window and the dialogs in it are rejected. Before the window has any content.
void StandOver(QDialog& window, const QWidget* parent);

/// Where a box of that size stands so that it does not cover a field of a window: beside or below the window, else
/// beside or below the field, wherever the screen has room; all in coordinates of the screen. Where it has room
/// nowhere, as far from the field as it goes.
[[nodiscard]] QPoint PlaceBeside(const QRect& field, const QRect& window, QSize box, const QRect& screen);

}  // namespace orlin
