#pragma once

#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/security_levels.h"

#include "frame/controls/control.h"

namespace orlin {

using SecurityLevelsPtr = std::shared_ptr<const SecurityLevels>;

/// The record that holds what the operator has.
inline constexpr std::string_view kAuthorityLevel = "AuthorityLevel";

/// The collection in an argument of `Display`. `Failure` 424 for a value that is no object, 13 for another object.
[[nodiscard]] SecurityLevelsPtr AsSecurityLevels(const Value& value);

/// The name of a part that every record stands for.
inline constexpr std::string_view kEveryRecord;

/// The controls that a record of the collection stands for. Names match exactly.
struct SecuredPart {
  std::string_view RecordName;
  std::vector<AnyControl> Controls;
};

/// Walks the collection and hides and disables the parts that the operator may not see or change. An empty collection
/// needs no record "AuthorityLevel"; in any other its lack is `Failure` 5.
void ApplySecurityLevels(const SecurityLevels& levels, const std::vector<SecuredPart>& parts);

/// The walk of the dialogs that hide a part on either level and disable none.
void HideBySecurityLevels(const SecurityLevels& levels, const std::vector<SecuredPart>& parts);

/// Whether the operator's levels reach those of the record with that key. `Failure` 5 where either is missing.
[[nodiscard]] bool MayView(const SecurityLevels& levels, std::string_view key);
[[nodiscard]] bool MayEdit(const SecurityLevels& levels, std::string_view key);

}  // namespace orlin
