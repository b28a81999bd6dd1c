#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// The name of the parameter that takes the rights of the operator.
inline constexpr const char* kSecurityLevels = "SecurityLevels";

/// The public class of that name; `UsageError` with those of a similar name where there is none.
[[nodiscard]] const PublicClass& ClassNamed(const std::string& name);

/// Which parameter has that name, counted from 0; `UsageError` with those that there are where none has.
[[nodiscard]] std::size_t PlaceOf(const PublicClass& publicClass, std::string_view parameter);

/// The arguments of one call, in the order of the parameters: what is named as "NAME=VALUE", converted to the fixed
/// type of its parameter; else empty, or 0. `SecurityLevels` is a collection of the records "NAME=VIEW,EDIT", unless
/// a value is named for it. `UsageError` for a text that makes no sense.
[[nodiscard]] std::vector<Value> BindArguments(const PublicClass& publicClass, const std::vector<std::string>& named,
                                               const std::vector<std::string>& levels);

/// Where two lists of arguments are different, counted from 0. The rights do not count.
[[nodiscard]] std::vector<std::size_t> DifferentPlaces(const PublicClass& publicClass, const std::vector<Value>& a,
                                                       const std::vector<Value>& b);

}  // namespace orlin
