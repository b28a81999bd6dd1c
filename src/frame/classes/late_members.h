#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/late_bound.h"

#include "frame/classes/public_class_of.h"

namespace orlin {

/// Whether anybody still holds an object that can be called by name.
[[nodiscard]] bool AnyLiveObject() noexcept;

/// The tables by which a class answers to names.
struct LateMembers {
  struct Property {
    std::string_view Name;
    std::function<Value(const LateBoundObject&)> Get;
    std::function<void(LateBoundObject&, const Value&)> Set;  ///< empty: it can only be read
  };
  struct Operation {
    std::string_view Name;
    std::size_t Required = 0;  ///< arguments; the others are optional
    std::size_t Most = 0;
    std::function<Value(LateBoundObject&, std::vector<Value>&)> Call;
  };

  std::vector<Property> Properties;
  std::vector<Operation> Operations;
};

/// A field that can be read and set: `PropertyOf("Color", &clsListItem::Color)`.
template <class Class, class Field>
LateMembers::Property PropertyOf(std::string_view name, Field Class::*field) {
  return {name, [field](const LateBoundObject& object) { return Value(dynamic_cast<const Class&>(object).*field); },
          [field](LateBoundObject& object, const Value& value) {
            dynamic_cast<Class&>(object).*field = Crossing<Field>::In(Converted(value, Crossing<Field>::kKind));
          }};
}

/// An operation that `call` does on an object of the class with the arguments given.
template <class Class, class Call>
LateMembers::Operation OperationOf(std::string_view name, std::size_t required, std::size_t most, Call call) {
  return {name, required, most, [call](LateBoundObject& object, std::vector<Value>& arguments) {
            return Value(call(dynamic_cast<Class&>(object), arguments));
          }};
}

/// The object of a class that an argument holds; null where it is none on purpose. `Failure` 424 for a value that is no
/// object, 13 for an object of another class.
template <class Class>
std::shared_ptr<Class> ObjectOf(const Value& value) {
  const auto* object = value.Get<ObjectPtr>();
  if (object == nullptr) throw Failure(failures::ObjectRequired);
  auto found = std::dynamic_pointer_cast<Class>(*object);
  if (found == nullptr && *object != nullptr) throw Failure(failures::TypeMismatch);
  return found;
}

}  // namespace orlin
