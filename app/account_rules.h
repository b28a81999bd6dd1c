#pragma once

#include <cstdint>
#include <vector>

#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/value.h"

namespace orlin {

// What a host does around a call of `Display` for an editor whose raw values do not simply come back. For all other
// editors 0 confirms, and every argument that came back is the new raw value.

/// The arguments that the editor takes for the raw values that are kept.
[[nodiscard]] std::vector<Value> ArgumentsForCall(const PublicClass& editor, std::vector<Value> kept);

/// Whether the operator confirmed.
[[nodiscard]] bool Confirmed(const PublicClass& editor, std::int32_t result, const std::vector<Value>& returned);

/// The raw values to be kept after a confirmed call; `kept` are those from before.
[[nodiscard]] std::vector<Value> RawValuesAfter(const PublicClass& editor, const std::vector<Value>& kept,
                                                std::vector<Value> returned);

}  // namespace orlin
