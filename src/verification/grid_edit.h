#pragma once

#include <string_view>

// What the dialogs with an editable grid have in common.

namespace orlin {

/// What `PrevCellValue` holds while no cell is being edited.
inline constexpr std::string_view kNoEdit = "DefaultValue";

/// Alignment of a cell or a column: left, centred vertically.
inline constexpr int kLeftAligned = 1;

}  // namespace orlin
