#include "qt/control_view.h"

#include "qt/views.h"

namespace orlin {

bool ControlView::Update(bool isSeen) {
  if (presented_ && isSeen_ == isSeen && revision_ == Control().Revision()) return false;
  presented_ = true;
  isSeen_ = isSeen;
  revision_ = Control().Revision();
  if (auto* widget = Widget()) {
    // Also where nothing is new, these take their time.
    if (widget->isHidden() == isSeen) widget->setVisible(isSeen);
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
