#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/services/modPanelTypes.h"

// The functions that a sked of the Willow panels can do, each with a code of three digits.

namespace orlin::willow {

/// What the panel can do, in code order: code, two blanks, text.
[[nodiscard]] std::vector<std::string> FunctionEntries(ePanelType panel);

/// The row of a code in `FunctionEntries`, counted from 0, or -1 for a code that the panel lacks: its row by the number
/// alone would be that of another function.
[[nodiscard]] int FunctionRow(std::string_view code, ePanelType panel);

}  // namespace orlin::willow
