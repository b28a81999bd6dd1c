#include "frame/controls/up_down.h"

#include <algorithm>

#include "OrlinCustomDialogs/failure.h"

#include "frame/conversions.h"

namespace orlin {

UpDown::UpDown(const Container& in, std::string_view name, const UpDownState& state)
    : Control(ControlKind::UpDown, in, name, {}, state.Common),
      min_(static_cast<std::int16_t>(state.Min)),
      max_(static_cast<std::int16_t>(state.Max)),
      value_(min_),
      buddy_(state.Buddy) {}

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
  double from = value_;
  // A box that was emptied holds no number to take up.
  if (buddy_ != nullptr && !buddy_->Text().empty()) from = NumericValue(buddy_->Text());
  const double step = direction == shown::Direction::Up ? 1 : -1;
  const double min = min_;
  const double max = max_;
  const auto fit = [=](double number) { return std::clamp(number, min, max); };
  Put(static_cast<int>(fit(fit(from) + step)), By::Operator);
  if (direction == shown::Direction::Up) {
    Raise(By::Operator, UpClick, "UpClick");
  } else {
    Raise(By::Operator, DownClick, "DownClick");
  }
  return {};
}

}  // namespace orlin
