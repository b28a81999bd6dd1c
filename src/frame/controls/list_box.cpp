#include "frame/controls/list_box.h"

namespace orlin {

void ListBox::Select(int row, By by) {
  const bool another = row != ListIndex();
  PutListIndex(row);
  Changed();
  if (another && (by == By::Code || choice_ == shown::Choice::One)) Raise(by, Click, "Click");
}

void ListBox::Chosen(int row, By by) {
  if (choice_ == shown::Choice::Checks) {
    Raise(by, ItemCheck, "ItemCheck", row);
  } else {
    Raise(by, Click, "Click");
  }
}

void ListBox::SetSelected(int row, bool on) {
  Touch();
  Choose(row, on, By::Code);
}

void ListBox::TakeKey(const Key& key) {
  if (PickByKey(key)) return;
  if (key.Code == keys::Space && choice_ != shown::Choice::One) {
    if (HasRow(ListIndex())) Choose(ListIndex(), !Selected(ListIndex()), By::Operator);
  } else if (key.Character != 0) {
    PickByTyping(key.Character);
  }
}

}  // namespace orlin
