#include "frame/controls/button.h"

namespace orlin {

Refusal Button::Press() {
  if (auto refusal = Approach()) return refusal;
  Raise(By::Operator, Click, "Click");
  return {};
}

void Button::TakeKey(const Key& key) {
  if (key.Code == keys::Space) Raise(By::Operator, Click, "Click");
}

}  // namespace orlin
