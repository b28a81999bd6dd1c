#pragma once

#include <QDialog>

namespace orlin {

/// Lets a window that is on the stack stand over `parent`, where there is one, which may be destroyed before the
/// window: then the window and the dialogs in it are rejected. Before the window has any content.
void StandOver(QDialog& window, const QWidget* parent);

}  // namespace orlin
