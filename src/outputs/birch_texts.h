#pragma once

#include <array>
#include <cstdint>

#include "frame/controls/fill_list.h"

// Lists that several outputs of the Birch panels offer, behind "None".

namespace orlin {

inline constexpr std::array<std::int16_t, 1> kNone = {513};
inline constexpr std::array<std::int16_t, 3> kArmingOptions = {1196, 1197, 1198};
inline constexpr auto kZoneConditions = TextRun<1200, 1211>();

}  // namespace orlin
