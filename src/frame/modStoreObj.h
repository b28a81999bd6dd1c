#pragma once

#include <cstdint>

namespace orlin {

/// Makes the store object anew and sets it up. 0, or the number of a failure, which has been reported.
[[nodiscard]] std::int32_t InitStoreObj();

}  // namespace orlin
