#include "frame/controls/combo_box.h"

namespace orlin {

void ComboBox::Select(int row, By by) {
  PutListIndex(row);
  const bool another = hasEditField_ && PutText(List(row));
  Changed();
  if (another && by == By::Operator) Raise(by, Change, "Change");
  Raise(by, Click, "Click");
}

void ComboBox::TakeKey(const Key& key) {
  const bool ends = key.Code == keys::Home || key.Code == keys::End;
  const bool steps =
      key.Code == keys::Up || key.Code == keys::Down || key.Code == keys::PageUp || key.Code == keys::PageDown;
  const bool searches = key.Character != 0 && !hasEditField_;
  // In an edit field, Home and End are keys of the caret.
  if (!steps && !searches && !(ends && !hasEditField_)) return TakeTextKey(key);
  Key passed = key;
  Raise(By::Operator, KeyDown, "KeyDown", passed.Code);
  if (passed.Code == 0 || OutOfReach()) return;
  if (searches) {
    PickByTyping(key.Character);
  } else {
    PickByKey(passed);
  }
}

}  // namespace orlin
