#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/late_bound.h"
#include "OrlinCustomDialogs/value.h"

namespace [[using gnu: visibility("default")]] orlin {

/// What a parameter of `Display` takes.
enum class ParameterKind {
  Any,      ///< a value as it is
  Integer,  ///< a 16-bit integer
  Long,     ///< a 32-bit integer
  Boolean,
  String,
};

/// "Any", "Integer" ...
[[nodiscard]] std::string_view KindName(ParameterKind kind) noexcept;

/// A value as a parameter of that kind takes it. `Failure` 13 where it is not of the kind, 6 where it does not fit.
[[nodiscard]] Value Converted(const Value& value, ParameterKind kind);

struct Parameter {
  std::string Name;
  ParameterKind Kind = ParameterKind::Any;
  bool Changes = false;   ///< `Display` may write the argument
  bool Optional = false;  ///< an empty value stands for an argument that is not given
};

/// A public class as it is reached by name instead of by type.
class PublicClass {
 public:
  using Call = std::function<std::int32_t(std::vector<Value>&)>;

  PublicClass(std::string name, std::vector<Parameter> parameters, Call display);

  /// Without the name of the library: "clsZoneFunctionsWillow".
  [[nodiscard]] const std::string& Name() const noexcept { return name_; }
  [[nodiscard]] const std::vector<Parameter>& Parameters() const noexcept { return parameters_; }

  /// Calls `Display` on a new object of the class, with one argument for each parameter, in order. An argument of a
  /// parameter with a fixed type is converted as a whole; the arguments hold what comes back.
  /// `Failure` 5 for a wrong number of arguments, 13 or 6 for one that cannot be converted, before anything is done;
  /// and what the class itself lets through.
  std::int32_t Display(std::vector<Value>& arguments) const;

 private:
  std::string name_;
  std::vector<Parameter> parameters_;
  Call display_;
};

/// All public classes with an operation `Display`, by name.
[[nodiscard]] const std::vector<PublicClass>& PublicClasses();

/// The class of that name, with or without "OrlinCustomDialogs." before it, or null.
[[nodiscard]] const PublicClass* FindPublicClass(std::string_view name);

/// A new object of the class, whose one operation is `Display`.
///
///     DllRegisterServer();
///     auto object = std::dynamic_pointer_cast<orlin::LateBoundObject>(
///         orlin::CreateObject("OrlinCustomDialogs.clsZoneFunctionsWillow"));
///     std::vector<orlin::Value> arguments{std::int16_t{5}, "4000"};
///     if (object->Invoke("Display", arguments) == orlin::Value(0)) store(arguments[1]);
[[nodiscard]] std::shared_ptr<LateBoundObject> CreateLateBound(const PublicClass& publicClass);

}  // namespace orlin
