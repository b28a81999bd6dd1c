#pragma once

class QWidget;

namespace orlin {

/// Lets the check marks and option marks of a widget be as large as its letters, where the style's own are smaller.
void GrowMarks(QWidget& widget);

}  // namespace orlin
