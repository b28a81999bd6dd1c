#pragma once

#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/value.h"

namespace [[using gnu: visibility("default")]] orlin {

/// The members of a class, as the library knows them.
struct LateMembers;

/// An object whose members are reached by name instead of by type, upper and lower case being the same. `CreateObject`
/// makes one of each public class: those with a `Display` have that operation, `clsErrorMessageNova` has its properties
/// as well, and the value lists and their elements have all that `lists.h` declares.
///
///     DllRegisterServer();
///     auto choices = std::dynamic_pointer_cast<orlin::LateBoundObject>(
///         orlin::CreateObject("OrlinCustomDialogs.clsListItems"));
///     std::vector<orlin::Value> given{"1", "Yes", std::int16_t{1}};
///     const auto yes = choices->Invoke("Add", given);
///     std::dynamic_pointer_cast<orlin::LateBoundObject>(*yes.Get<orlin::ObjectPtr>())->Set("Color", 0x00FF00);
///     choices->Get("Count");  // 1
class LateBoundObject : public Object {
 public:
  LateBoundObject() noexcept;
  LateBoundObject(const LateBoundObject& other) noexcept;
  LateBoundObject& operator=(const LateBoundObject& other) = default;
  ~LateBoundObject() override;

  /// What a property holds. `Failure` 5 for one that the class does not have.
  [[nodiscard]] virtual Value Get(std::string_view property) const;

  /// Sets a property to a value, which is converted to the type of the property as a whole: `Failure` 13 or 6 where it
  /// cannot be. 5 for a property that the class does not have, or that can only be read.
  virtual void Set(std::string_view property, const Value& value);

  /// Calls an operation. The arguments stand in their order and hold what comes back; optional ones at the end may be
  /// left out. An operation without a result returns an empty value, one that returns no object an Object that is null.
  /// `Failure` 5 for an operation that the class does not have and for a wrong number of arguments; 13, 6 or 424 for an
  /// argument that cannot be converted; and what the operation itself lets through.
  virtual Value Invoke(std::string_view operation, std::vector<Value>& arguments);

 private:
  [[nodiscard]] virtual const LateMembers& Members() const;
};

}  // namespace orlin
