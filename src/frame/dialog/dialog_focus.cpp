#include <algorithm>
#include <utility>

#include "OrlinCustomDialogs/failure.h"

#include "frame/dialog/dialog.h"

// The operator's side of a dialog: focus and keys.

namespace orlin {

bool Dialog::TakesTab(const Control& control) {
  return control.TakesFocus() && control.WithinReach() && control.IsTabStop();
}

shown::Control* Dialog::Find(std::string_view name) const noexcept {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(), [&](const auto* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Dialog::Guard(std::string_view owner, std::string_view event, const std::function<void()>& handler) const {
  try {
    handler();
  } catch (const Failure& failure) {
    // Handlers of an array of controls are one routine, named without the index.
    std::string name(owner.substr(0, owner.find('(')));
    name.append("_").append(event);
    host_.HandlerFailed(*this, name, failure);
  }
}

void Dialog::Activate() {
  if (OnActivate) Guard("Form", "Activate", [this] { OnActivate(); });
  if (!shown_ || focus_ != nullptr) return;
  // Of a group of options too it is the first one, whichever is on: the group is one stop for Tab alone.
  for (auto* control : controls_) {
    auto& first = Own(*control);
    if (first.TakesFocus() && first.tabStop_ && first.WithinReach()) return MoveFocus(&first, By::Operator);
  }
}

void Dialog::MoveFocus(Control* to, By by) {
  if (focus_ == to) return;
  if (focus_ != nullptr) focus_->Leave(by);
  if (focus_ == to) return;
  focus_ = to;
  ++revision_;
  auto* const from = std::exchange(entered_, nullptr);
  if (from != nullptr) from->Raise(by, from->LostFocus, "LostFocus");
  // The handler may have sent the focus elsewhere, which then ends this move.
  if (focus_ != to || entered_ == to) return;
  entered_ = to;
  to->Raise(by, to->GotFocus, "GotFocus");
}

void Dialog::MoveFocusByTab(bool backwards) {
  const auto count = controls_.size();
  const auto at = std::find(controls_.begin(), controls_.end(), focus_);
  // Without a focus the search begins before the first control, or behind the last one.
  auto place = at != controls_.end() ? static_cast<std::size_t>(at - controls_.begin()) : backwards ? 0 : count - 1;
  for (std::size_t steps = 0; steps < count; ++steps) {
    place = (place + (backwards ? count - 1 : 1)) % count;
    auto* const next = &Own(*controls_[place]);
    if (!TakesTab(*next)) continue;
    if (next == focus_) return;
    MoveFocus(next, By::Operator);
    // Handlers may have sent the focus elsewhere.
    if (focus_ == next) next->EnterByTab();
    return;
  }
}

void Dialog::PressButton(Button* button) const {
  if (button != nullptr && button->WithinReach()) button->Raise(By::Operator, button->Click, "Click");
}

Refusal Dialog::PressAccessKey(char32_t letter) {
  for (auto* control : controls_) {
    // The text of a status line marks nothing. Of a caption that is translated for people, both letters lead there.
    const bool marks = control->Kind() != ControlKind::StatusBar &&
                       (AccessKey(control->Caption()) == letter || AccessKey(control->TranslatedCaption()) == letter);
    if (!marks || !control->WithinReach()) continue;
    if (control->Kind() == ControlKind::Label) {
      auto* named = control->Names();
      if (named != nullptr && named->WithinReach()) return named->Focus();
    } else if (control->Kind() == ControlKind::Frame) {
      const auto inside = std::find_if(controls_.begin(), controls_.end(), [&](const auto* candidate) {
        return candidate->Parent() == control && candidate->TakesFocus() && candidate->WithinReach();
      });
      if (inside != controls_.end()) return (*inside)->Focus();
    } else {
      return control->Press();
    }
  }
  return "no control within reach has that access key";
}

Refusal Dialog::PressKey(const Key& key) {
  if (!shown_) return "the dialog is not shown";
  if (key.Alt) return PressAccessKey(key.Character);

  auto* const target = focus_ != nullptr && focus_->WithinReach() ? focus_ : nullptr;
  if (key.Code == keys::Enter && (target == nullptr || !target->KeepsEnter())) {
    auto* const focused = dynamic_cast<Button*>(target);
    return PressButton(focused != nullptr ? focused : defaultButton_), Refusal();
  }
  if (key.Code == keys::Escape && (target == nullptr || !target->KeepsEscape()))
    return PressButton(cancelButton_), Refusal();
  if (key.Code == keys::Tab) return MoveFocusByTab(key.Shift), Refusal();
  if (target == nullptr) return "no control within reach has the focus";

  Key passed = key;
  if (KeyDown) Guard("Form", "KeyDown", [&] { KeyDown(passed.Code); });
  if (passed.Code != 0 && shown_ && focus_ == target) target->TakeKey(passed);
  return {};
}

}  // namespace orlin
