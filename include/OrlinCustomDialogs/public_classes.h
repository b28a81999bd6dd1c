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
  bool Secret = false;    ///< holds passcodes of people: a host shows and records them only where it is asked to
};

/// How the values that a host stores of a class go through a call and come out of it. Values stand in the order of the
/// parameters. A rule that is left out is the usual one.
struct StoringRules {
  /// Whether the operator confirmed. Usual: the result is 0.
  std::function<bool(std::int32_t result, const std::vector<Value>& returned)> Confirmed = {};
  /// Turns the values that are stored into the arguments of a call. Usual: they are the same.
  std::function<void(std::vector<Value>& values)> ToArguments = {};
  /// Brings the values that are stored up to date after a confirmed call. Usual: each argument that `Display` may write
  /// takes the place of the value from before.
  std::function<void(std::vector<Value>& stored, const std::vector<Value>& returned)> Update = {};
  /// The places of the parameters that are `Parameter::Secret`. Usual: none.
  std::vector<std::size_t> Secrets = {};
};

/// A public class as it is reached by name instead of by type.
///
/// What a host stores is mostly what `Display` takes and gives back. Where it is not, the class knows: this is how a
/// host edits the values that it has stored of any class.
///
///     std::vector<orlin::Value> stored{std::int16_t{5}, "5111"};  // ZoneNum and ZoneCode
///     const auto& editor = *orlin::FindPublicClass("clsZoneFunctionsWillow");
///     auto arguments = editor.ArgumentsFrom(stored);
///     const auto result = editor.Display(arguments);
///     if (editor.Confirmed(result, arguments)) stored = editor.StoredFrom(stored, arguments);
class PublicClass {
 public:
  using Call = std::function<std::int32_t(std::vector<Value>&)>;

  PublicClass(std::string name, std::vector<Parameter> parameters, Call display, StoringRules storing = {});

  /// Without the name of the library: "clsZoneFunctionsWillow".
  [[nodiscard]] const std::string& Name() const noexcept { return name_; }
  [[nodiscard]] const std::vector<Parameter>& Parameters() const noexcept { return parameters_; }

  /// Calls `Display` on a new object of the class, with one argument for each parameter, in order. An argument of a
  /// parameter with a fixed type is converted as a whole; the arguments hold what comes back.
  /// `Failure` 5 for a wrong number of arguments, 13 or 6 for one that cannot be converted, before anything is done;
  /// and what the class itself lets through.
  std::int32_t Display(std::vector<Value>& arguments) const;

  // The operations below want one value for each parameter, in order, too: `Failure` 5 for another number of them.

  /// The arguments of a call, made from the values that are stored.
  [[nodiscard]] std::vector<Value> ArgumentsFrom(std::vector<Value> stored) const;

  /// Whether the operator confirmed, so that what came back counts: the result of `Display` and its arguments after it.
  [[nodiscard]] bool Confirmed(std::int32_t result, const std::vector<Value>& returned) const;

  /// The values to be stored after a confirmed call: those that were stored before it, with what is new in the
  /// arguments after it.
  [[nodiscard]] std::vector<Value> StoredFrom(std::vector<Value> stored, const std::vector<Value>& returned) const;

 private:
  void CheckNumber(const std::vector<Value>& values) const;

  std::string name_;
  std::vector<Parameter> parameters_;
  Call display_;
  StoringRules storing_;
};

/// All public classes with an operation `Display`, by name.
[[nodiscard]] const std::vector<PublicClass>& PublicClasses();

/// The class of that name, with or without "OrlinCustomDialogs." before it, or null.
[[nodiscard]] const PublicClass* FindPublicClass(std::string_view name);

/// A new object of the class, whose one operation is `Display`. The result and the arguments are those of
/// `PublicClass::Display`, which tells what to store of them.
///
///     DllRegisterServer();
///     auto object = std::dynamic_pointer_cast<orlin::LateBoundObject>(
///         orlin::CreateObject("OrlinCustomDialogs.clsZoneFunctionsWillow"));
///     const auto result = object->Invoke("Display", arguments);
[[nodiscard]] std::shared_ptr<LateBoundObject> CreateLateBound(const PublicClass& publicClass);

}  // namespace orlin
