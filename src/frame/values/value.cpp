#include "OrlinCustomDialogs/value.h"

#include "OrlinCustomDialogs/failure.h"

namespace orlin {

Array::Array(std::vector<Value> elements, std::int32_t lower) : lower_(lower), elements_(std::move(elements)) {}

std::int32_t Array::UpperBound() const noexcept { return lower_ + static_cast<std::int32_t>(elements_.size()) - 1; }

std::size_t Array::Place(std::int32_t index) const {
  const auto place = static_cast<std::int64_t>(index) - lower_;
  if (place < 0 || place >= static_cast<std::int64_t>(elements_.size())) throw Failure(failures::SubscriptOutOfRange);
  return static_cast<std::size_t>(place);
}

Value& Array::At(std::int32_t index) { return elements_[Place(index)]; }

const Value& Array::At(std::int32_t index) const { return elements_[Place(index)]; }

bool Array::operator==(const Array& other) const { return lower_ == other.lower_ && elements_ == other.elements_; }

bool Value::operator==(const Value& other) const { return held_ == other.held_; }

std::string_view KindName(Value::Kind kind) noexcept {
  switch (kind) {
    case Value::Kind::Empty:
      return "Empty";
    case Value::Kind::Integer:
      return "Integer";
    case Value::Kind::Long:
      return "Long";
    case Value::Kind::Double:
      return "Double";
    case Value::Kind::Boolean:
      return "Boolean";
    case Value::Kind::String:
      return "String";
    case Value::Kind::Array:
      return "Array";
    case Value::Kind::Object:
      return "Object";
  }
  return "";
}

}  // namespace orlin
