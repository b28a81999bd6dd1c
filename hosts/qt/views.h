#pragma once

#include <memory>

#include "qt/control_view.h"

namespace orlin {

// What `MakeView` is made of. The control is of a kind that the view shows.
[[nodiscard]] std::unique_ptr<ControlView> MakeSimpleView(shown::Control& control, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeCodeView(shown::Control& control, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeTextBoxView(shown::Control& control, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeComboBoxView(shown::Control& control, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeListBoxView(shown::Control& control, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeGridView(shown::Control& control, Desk& desk, QWidget* parent);

/// The property of a window that tells how wide its captions may be at least.
inline constexpr const char* kCaptionWidth = "captionWidth";

/// The widest that a caption may be before it is broken into lines.
[[nodiscard]] int CaptionWidth(const QWidget& widget);

/// What stands for a colour where colours are not seen: "!" for the first one that a dialog explains, "!!" for the
/// next.
[[nodiscard]] QString SignOf(const shown::Control& colourKey);

/// How high a field of one line is beside that widget.
[[nodiscard]] int FieldHeight(const QWidget& widget);

}  // namespace orlin
