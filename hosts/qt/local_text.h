#pragma once

#include <QString>
#include <cstdint>

namespace orlin {

/// A text that the windows themselves say, from the operator's catalogue; empty where that has none.
[[nodiscard]] QString LocalText(std::int16_t number);

}  // namespace orlin
