#include "qt/control_view.h"

#include "qt/views.h"

namespace orlin {

void ControlView::Update() {
  if (seen_ && revision_ == Control().Revision()) return;
  seen_ = true;
  revision_ = Control().Revision();
  if (auto* widget = Widget()) {
    widget->setVisible(Control().Visible());
    widget->setEnabled(Control().Enabled());
  }
  Present();
}

std::unique_ptr<ControlView> MakeView(shown::Control& control, Desk& desk, QWidget* parent) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return MakeLabelView(dynamic_cast<shown::Label&>(control), desk, parent);
    case ControlKind::Frame:
      return MakeFrameView(dynamic_cast<shown::Frame&>(control), desk, parent);
    case ControlKind::Button:
      return MakeButtonView(dynamic_cast<shown::Button&>(control), desk, parent);
    case ControlKind::CheckBox:
      return MakeCheckBoxView(dynamic_cast<shown::CheckBox&>(control), desk, parent);
    case ControlKind::OptionButton:
      return MakeOptionView(dynamic_cast<shown::OptionButton&>(control), desk, parent);
    case ControlKind::TextBox:
      return MakeTextBoxView(dynamic_cast<shown::TextBox&>(control), desk, parent);
    case ControlKind::ComboBox:
      return MakeComboBoxView(dynamic_cast<shown::ComboBox&>(control), desk, parent);
    case ControlKind::ListBox:
      return MakeListBoxView(dynamic_cast<shown::ListBox&>(control), desk, parent);
    case ControlKind::UpDown:
      return MakeUpDownView(dynamic_cast<shown::UpDown&>(control), desk, parent);
    case ControlKind::StatusBar:
      return MakeStatusView(dynamic_cast<shown::StatusBar&>(control), desk, parent);
    case ControlKind::Timer:
      return MakeTimerView(dynamic_cast<shown::Timer&>(control), desk, parent);
    case ControlKind::Grid:
      return MakeGridView(dynamic_cast<shown::Grid&>(control), desk, parent);
  }
  return nullptr;
}

}  // namespace orlin
