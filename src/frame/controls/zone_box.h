#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/dialog/dialog.h"

// Text boxes for the number of a zone.

namespace orlin {

/// Backgrounds of a box that takes input, and of one that does not: white, and the border of inactive windows.
inline constexpr std::int32_t kOpenBoxColor = 0xFFFFFF;
inline constexpr std::int32_t kClosedBoxColor = 0xFCF7F4;

/// Whether every character of a text is a digit, which an empty text passes. The first other one sounds a beep.
[[nodiscard]] bool IsAllDigits(Dialog& form, std::string_view text);

/// The text of a zone number, or that of the highest zone where the number is beyond it.
[[nodiscard]] std::string LimitZone(const std::string& text);

/// What a zone box does on every change of its text, while `filterOn`. A text that is not all digits gives way to
/// `lastText`, the last one that was; the number of no zone becomes the highest zone. The filter is off while it sets
/// that number, so that `lastText` keeps what was typed.
void FilterZoneBox(Dialog& form, TextBox& box, std::string& lastText, bool& filterOn);

}  // namespace orlin
