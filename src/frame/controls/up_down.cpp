#include "frame/controls/up_down.h"

#include <algorithm>

#include "OrlinCustomDialogs/failure.h"

#include "frame/values/conversions.h"

namespace orlin {

UpDown::UpDown(const Container& in, std::string_view name, const UpDownState& state)
    : Control(ControlKind::UpDown, in, name, {}, state.Common),
      min_(static_cast<std::int16_t>(state.Min)),
      max_(static_cast<std::int16_t>(state.Max)),
      value_(min_),
      buddy_(state.Buddy),
      followsBuddy_(state.FollowsBuddy) {
  if (!followsBuddy_) return;
  value_ = Start();
  buddy_->follow_ = [this] {
    value_ = Start();
    Changed();
  };
}

std::int16_t UpDown::Start() const {
  // A box that was emptied holds no number to take up.
  if (buddy_ == nullptr || buddy_->Text().empty()) return value_;
  return static_cast<std::int16_t>(std::clamp<double>(NumericValue(buddy_->Text()), min_, max_));
}

void UpDown::Put(int value, By by) {
  const bool another = value != value_;
  value_ = static_cast<std::int16_t>(value);
  Changed();
  if (buddy_ != nullptr) buddy_->PutText(std::to_string(value));
  if (another) Raise(by, Change, "Change");
}

void UpDown::SetValue(int value) {
  Touch();
  if (value < min_ || value > max_) throw Failure(failures::InvalidPropertyValue);
  if (value != value_) Put(value, By::Code);
}

Refusal UpDown::Step(shown::Direction direction) {
  if (auto refusal = OutOfReach()) return refusal;
  const int from = Start();
  const int to = std::clamp<int>(from + (direction == shown::Direction::Up ? 1 : -1), min_, max_);
  if (followsBuddy_ && to == from) return {};
  Put(to, By::Operator);
  if (direction == shown::Direction::Up) {
    Raise(By::Operator, UpClick, "UpClick");
  } else {
    Raise(By::Operator, DownClick, "DownClick");
  }
  return {};
}

}  // namespace orlin
