#pragma once

#include <string>
#include <vector>

#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// The name of the parameter that takes the rights of the operator.
inline constexpr const char* kSecurityLevels = "SecurityLevels";

/// The arguments of one call, in the order of the parameters: what is named as "NAME=VALUE", converted to the fixed
/// type of its parameter; else empty, or 0. `SecurityLevels` is a collection of the records "NAME=VIEW,EDIT", unless
/// a value is named for it. `UsageError` for a text that makes no sense.
[[nodiscard]] std::vector<Value> BindArguments(const PublicClass& publicClass, const std::vector<std::string>& named,
                                               const std::vector<std::string>& levels);

}  // namespace orlin
