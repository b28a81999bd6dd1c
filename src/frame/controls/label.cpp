#include "frame/controls/label.h"

#include <algorithm>

namespace orlin {

shown::Control* Label::Names() const {
  if (use_.Role != shown::LabelRole::Name) return nullptr;
  const auto& all = Form().Controls();
  shown::Control* first = nullptr;
  for (auto next = std::find(all.begin(), all.end(), this) + 1; next != all.end(); ++next) {
    auto* control = *next;
    if (control->Parent() != Parent() || (Index() >= 0 && control->Index() != Index())) continue;
    if (first != nullptr && control->Kind() == ControlKind::Label) break;
    // A control with a caption needs no label.
    if (!control->TakesFocus() || !control->Caption().empty()) continue;
    if (control->Visible()) return control;
    if (first == nullptr) first = control;
  }
  return first;
}

}  // namespace orlin
