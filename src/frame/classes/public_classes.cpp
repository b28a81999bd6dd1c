#include "OrlinCustomDialogs/public_classes.h"

#include <algorithm>
#include <utility>

#include "OrlinCustomDialogs/failure.h"

#include "frame/values/conversions.h"

namespace orlin {

std::string_view KindName(ParameterKind kind) noexcept {
  switch (kind) {
    case ParameterKind::Any:
      return "Any";
    case ParameterKind::Integer:
      return "Integer";
    case ParameterKind::Long:
      return "Long";
    case ParameterKind::Boolean:
      return "Boolean";
    case ParameterKind::String:
      return "String";
  }
  return "";
}

Value Converted(const Value& value, ParameterKind kind) {
  switch (kind) {
    case ParameterKind::Any:
      break;
    case ParameterKind::Integer:
      return ToInteger(value);
    case ParameterKind::Long:
      return ToLong(value);
    case ParameterKind::Boolean:
      return ToBoolean(value);
    case ParameterKind::String:
      return ToText(value);
  }
  return value;
}

PublicClass::PublicClass(std::string name, std::vector<Parameter> parameters, Call display, StoringRules storing)
    : name_(std::move(name)),
      parameters_(std::move(parameters)),
      display_(std::move(display)),
      storing_(std::move(storing)) {
  for (const auto place : storing_.Secrets) parameters_.at(place).Secret = true;
}

void PublicClass::CheckNumber(const std::vector<Value>& values) const {
  if (values.size() == parameters_.size()) return;
  throw Failure(failures::InvalidCall, name_ + " takes " + std::to_string(parameters_.size()) + " arguments");
}

std::int32_t PublicClass::Display(std::vector<Value>& arguments) const {
  CheckNumber(arguments);
  std::vector<Value> converted(arguments.size());
  std::transform(arguments.begin(), arguments.end(), parameters_.begin(), converted.begin(),
                 [](const Value& value, const Parameter& parameter) { return Converted(value, parameter.Kind); });
  arguments = std::move(converted);
  return display_(arguments);
}

std::vector<Value> PublicClass::ArgumentsFrom(std::vector<Value> stored) const {
  CheckNumber(stored);
  if (storing_.ToArguments) storing_.ToArguments(stored);
  return stored;
}

bool PublicClass::Confirmed(std::int32_t result, const std::vector<Value>& returned) const {
  CheckNumber(returned);
  return storing_.Confirmed ? storing_.Confirmed(result, returned) : result == 0;
}

std::vector<Value> PublicClass::StoredFrom(std::vector<Value> stored, const std::vector<Value>& returned) const {
  CheckNumber(stored);
  CheckNumber(returned);
  if (storing_.Update) {
    storing_.Update(stored, returned);
  } else {
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
      if (parameters_[i].Changes) stored[i] = returned[i];
    }
  }
  return stored;
}

namespace {

class ObjectOfPublicClass final : public LateBoundObject {
 public:
  explicit ObjectOfPublicClass(const PublicClass& publicClass) : class_(publicClass) {}

  Value Invoke(std::string_view operation, std::vector<Value>& arguments) override {
    if (!SameName(operation, "Display")) {
      throw Failure(failures::InvalidCall, class_.Name() + " has no operation " + std::string(operation));
    }
    return class_.Display(arguments);
  }

 private:
  PublicClass class_;
};

}  // namespace

std::shared_ptr<LateBoundObject> CreateLateBound(const PublicClass& publicClass) {
  return std::make_shared<ObjectOfPublicClass>(publicClass);
}

}  // namespace orlin
