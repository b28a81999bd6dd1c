#pragma once

#include <memory>

#include "qt/control_view.h"

namespace orlin {

// One maker for each kind of control; see `MakeView`.

[[nodiscard]] std::unique_ptr<ControlView> MakeLabelView(shown::Label& label, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeFrameView(shown::Frame& frame, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeButtonView(shown::Button& button, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeCheckBoxView(shown::CheckBox& box, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeOptionView(shown::OptionButton& option, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeTextBoxView(shown::TextBox& box, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeComboBoxView(shown::ComboBox& box, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeListBoxView(shown::ListBox& list, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeUpDownView(shown::UpDown& buttons, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeStatusView(shown::StatusBar& line, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeTimerView(shown::Timer& timer, Desk& desk, QWidget* parent);
[[nodiscard]] std::unique_ptr<ControlView> MakeGridView(shown::Grid& grid, Desk& desk, QWidget* parent);

/// The property of a window that tells how wide its captions may be at least.
inline constexpr const char* kCaptionWidth = "captionWidth";

/// The widest that a caption may be before it is broken into lines.
[[nodiscard]] int CaptionWidth(const QWidget& widget);

/// How high a field of one line is beside that widget.
[[nodiscard]] int FieldHeight(const QWidget& widget);

}  // namespace orlin
