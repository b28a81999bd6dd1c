#include "qt/control_view.h"

#include "qt/views.h"

namespace orlin {

bool ControlView::Update() {
  if (seen_ && revision_ == Control().Revision()) return false;
  seen_ = true;
  revision_ = Control().Revision();
  if (auto* widget = Widget()) {
    // Also where nothing is new, these take their time.
    if (widget->isHidden() == Control().Visible()) widget->setVisible(Control().Visible());
    if (widget->isEnabledTo(widget->parentWidget()) != Control().Enabled()) widget->setEnabled(Control().Enabled());
  }
  Present();
  return true;
}

std::unique_ptr<ControlView> MakeView(shown::Control& control, Desk& desk, QWidget* parent) {
  if (!control.CodeLists().empty()) return MakeCodeView(control, desk, parent);
  switch (control.Kind()) {
    case ControlKind::TextBox:
      return MakeTextBoxView(control, desk, parent);
    case ControlKind::ComboBox:
      return MakeComboBoxView(control, desk, parent);
    case ControlKind::ListBox:
      return MakeListBoxView(control, desk, parent);
    case ControlKind::Grid:
      return MakeGridView(control, desk, parent);
    default:
      return MakeSimpleView(control, desk, parent);
  }
}

}  // namespace orlin
