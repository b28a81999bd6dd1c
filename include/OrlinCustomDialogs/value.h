#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace [[using gnu: visibility("default")]] orlin {

class Value;

/// Whatever a `Value` can refer to: a collection of rights, a value list, a component.
class Object {
 public:
  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;
  Object(Object&&) = default;
  Object& operator=(Object&&) = default;
  virtual ~Object() = default;
};

using ObjectPtr = std::shared_ptr<Object>;

/// An array of values, indexed from any lower bound.
class Array {
 public:
  Array() = default;
  explicit Array(std::vector<Value> elements, std::int32_t lower = 0);

  [[nodiscard]] std::int32_t LowerBound() const noexcept { return lower_; }
  /// One below the lower bound where the array holds nothing.
  [[nodiscard]] std::int32_t UpperBound() const noexcept;

  /// The element at an index from `LowerBound` to `UpperBound`; `Failure` 9 outside.
  [[nodiscard]] Value& At(std::int32_t index);
  [[nodiscard]] const Value& At(std::int32_t index) const;

  /// All elements in order, from the lower bound.
  [[nodiscard]] const std::vector<Value>& Elements() const noexcept { return elements_; }

  bool operator==(const Array& other) const;

 private:
  [[nodiscard]] std::size_t Place(std::int32_t index) const;

  std::int32_t lower_ = 0;
  std::vector<Value> elements_;
};

/// What crosses `Display`: a raw parameter of a panel in the form in which the host keeps it.
///
/// The kind is part of the value: 5 as an Integer, as a Long and as the text "5" are three different
/// values, and a copy keeps its kind. Texts are UTF-8.
class Value {
 public:
  /// In the order of the alternatives that a value holds.
  enum class Kind { Empty, Integer, Long, Double, Boolean, String, Array, Object };

  Value() = default;
  Value(std::int16_t number) : held_(number) {}
  Value(std::int32_t number) : held_(number) {}
  Value(double number) : held_(number) {}
  Value(bool flag) : held_(flag) {}
  Value(std::string text) : held_(std::move(text)) {}
  Value(std::string_view text) : held_(std::string(text)) {}
  Value(const char* text) : held_(std::string(text)) {}
  Value(Array array) : held_(std::move(array)) {}
  template <class T, class = std::enable_if_t<std::is_base_of_v<Object, T>>>
  Value(std::shared_ptr<T> object) : held_(ObjectPtr(std::move(object))) {}

  [[nodiscard]] Kind kind() const noexcept { return static_cast<Kind>(held_.index()); }
  [[nodiscard]] bool IsEmpty() const noexcept { return kind() == Kind::Empty; }

  /// What the value holds, if it is of that very type, else nothing:
  /// `value.Get<std::string>()`, `value.Get<std::int16_t>()`, `value.Get<Array>()`.
  template <class T>
  [[nodiscard]] const T* Get() const noexcept {
    return std::get_if<T>(&held_);
  }
  template <class T>
  [[nodiscard]] T* Get() noexcept {
    return std::get_if<T>(&held_);
  }

  /// Equal in kind and content. Objects are equal when they are the same object.
  bool operator==(const Value& other) const;

 private:
  std::variant<std::monostate, std::int16_t, std::int32_t, double, bool, std::string, Array, ObjectPtr> held_;
};

/// "Integer", "Long", "String" ...
[[nodiscard]] std::string_view KindName(Value::Kind kind) noexcept;

}  // namespace orlin
