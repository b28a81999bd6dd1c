#include "frame/controls/check_box.h"

#include "OrlinCustomDialogs/failure.h"

namespace orlin {

void CheckBox::SetValue(int value) {
  Touch();
  if (value != 0 && value != 1) throw Failure(failures::InvalidPropertyValue);
  if (value == value_) return;
  value_ = static_cast<std::int16_t>(value);
  Changed();
  Raise(By::Code, Click, "Click");
}

Refusal CheckBox::Press() {
  if (auto refusal = Approach()) return refusal;
  value_ = static_cast<std::int16_t>(1 - value_);
  Changed();
  Raise(By::Operator, Click, "Click");
  return {};
}

void CheckBox::TakeKey(const Key& key) {
  if (key.Code == keys::Space) Press();
}

}  // namespace orlin
