#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/public_classes.h"

namespace orlin {

/// How an argument of one type crosses a late-bound call: converted on the way in, stored back where the class may
/// change it.
template <class Argument>
struct Crossing {
  using Plain = std::remove_cvref_t<Argument>;
  static constexpr bool kChanges =
      std::is_lvalue_reference_v<Argument> && !std::is_const_v<std::remove_reference_t<Argument>>;
  static constexpr ParameterKind kKind = std::is_same_v<Plain, std::int16_t>   ? ParameterKind::Integer
                                         : std::is_same_v<Plain, std::int32_t> ? ParameterKind::Long
                                         : std::is_same_v<Plain, bool>         ? ParameterKind::Boolean
                                         : std::is_same_v<Plain, std::string>  ? ParameterKind::String
                                                                               : ParameterKind::Any;

  /// The argument, which has been converted to the kind of the parameter.
  static Plain In(const Value& value) {
    if constexpr (kKind == ParameterKind::Any) {
      return value;
    } else {
      return *value.Get<Plain>();
    }
  }
};

/// The register's entry of a public class, made from the signature of its `Display`:
///
///     PublicClassOf("clsZoneFunctionsWillow", &clsZoneFunctionsWillow::Display, {"ZoneNum", "ZoneCode"})
///
/// `storing` tells how a host stores its values. Parameters beyond the first `required` are optional.
template <class Class, class... Arguments>
PublicClass PublicClassOf(std::string name, std::int32_t (Class::*display)(Arguments...),
                          const std::array<const char*, sizeof...(Arguments)>& names, StoringRules storing = {},
                          std::size_t required = sizeof...(Arguments)) {
  std::vector<Parameter> parameters{{"", Crossing<Arguments>::kKind, Crossing<Arguments>::kChanges}...};
  for (std::size_t i = 0; i < names.size(); ++i) {
    parameters[i].Name = names[i];
    parameters[i].Optional = i >= required;
  }

  const auto call = [display]<std::size_t... Places>(std::vector<Value> & arguments, std::index_sequence<Places...>) {
    std::tuple<typename Crossing<Arguments>::Plain...> plain{Crossing<Arguments>::In(arguments[Places])...};
    const auto storeBack = [&] { ((arguments[Places] = Value(std::get<Places>(plain))), ...); };
    try {
      const auto result = (Class().*display)(static_cast<Arguments>(std::get<Places>(plain))...);
      storeBack();
      return result;
    } catch (const Failure&) {
      storeBack();
      throw;
    }
  };
  const auto callWithAll = [call](std::vector<Value>& arguments) {
    return call(arguments, std::index_sequence_for<Arguments...>());
  };
  return PublicClass(std::move(name), std::move(parameters), callWithAll, std::move(storing));
}

}  // namespace orlin
