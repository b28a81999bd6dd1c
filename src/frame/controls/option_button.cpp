#include "frame/controls/option_button.h"

#include <algorithm>

namespace orlin {

void OptionButton::ClearOthers() {
  for (auto* control : Form().Controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option == nullptr || option == this || option->Parent() != Parent() || !option->value_) continue;
    option->value_ = false;
    option->Changed();
  }
}

void OptionButton::SetValue(bool value) {
  Touch();
  if (value == value_) return;
  value_ = value;
  Changed();
  if (!value) return;
  ClearOthers();
  Raise(By::Code, Click, "Click");
}

Refusal OptionButton::Press() {
  if (auto refusal = Approach()) return refusal;
  value_ = true;
  Changed();
  ClearOthers();
  Raise(By::Operator, Click, "Click");
  return {};
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (auto* control : Form().Controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && option->Parent() == Parent() && option->WithinReach()) group.push_back(option);
  }
  return group;
}

bool OptionButton::IsTabStop() const {
  const auto group = Group();
  const auto on = std::find_if(group.begin(), group.end(), [](const auto* option) { return option->value_; });
  const auto stop = on != group.end() ? on : group.begin();
  return Control::IsTabStop() && stop != group.end() && *stop == this;
}

void OptionButton::PressNeighbour(int step) {
  const auto group = Group();
  const auto size = static_cast<std::ptrdiff_t>(group.size());
  const auto place = std::find(group.begin(), group.end(), this) - group.begin();
  // A handler of the dialog that saw the key first may have taken the option out of reach.
  if (place != size) group[static_cast<std::size_t>((place + step + size) % size)]->Press();
}

void OptionButton::TakeKey(const Key& key) {
  if (key.Code == keys::Space) {
    Press();
  } else if (key.Code == keys::Down || key.Code == keys::Right) {
    PressNeighbour(1);
  } else if (key.Code == keys::Up || key.Code == keys::Left) {
    PressNeighbour(-1);
  }
}

}  // namespace orlin
