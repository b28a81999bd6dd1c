#pragma once

#include "OrlinCustomDialogs/hosts/script/operator.h"

#include "qt/dialog_window.h"

namespace orlin {

/// Hands that work a window with events of keyboard and mouse, as a person's would arrive. What the operator plainly
/// cannot do, such as a click on a disabled button, is left to `DirectHands`, which tell why.
class QtHands final : public OperatorHands {
 public:
  /// The window of the dialog that is shown, as it changes from one action to the next.
  explicit QtHands(DialogWindow* const& window) : window_(window) {}

  Refusal Do(shown::Dialog& dialog, const actions::Select& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Click& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Type& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::KeyStroke& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Caret& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::FocusOn& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Step& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::MakeCell& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::DoubleClick& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::EditCell& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Tick& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Close& action) override;

 private:
  /// Ends an action: what was posted arrives, and the refusal comes back.
  [[nodiscard]] Refusal Done();
  /// Lets `DirectHands` do it.
  template <class Operation>
  [[nodiscard]] Refusal Directly(shown::Dialog& dialog, const Operation& action);
  [[nodiscard]] bool Focus(const shown::Control& control);
  void Press(const Key& key);
  void PickFromDropDown(const shown::Control& box, int row);
  void PressRow(const shown::Control& list, int row);
  void PressCell(const shown::Control& grid, int row, int col, QEvent::Type type);

  DirectHands direct_;
  DialogWindow* const& window_;
};

}  // namespace orlin
