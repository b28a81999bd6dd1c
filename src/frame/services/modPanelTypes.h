#pragma once

#include <cstdint>

namespace orlin {

/// The panel model that a dialog serves.
enum class ePanelType : std::int32_t {
  Rowan = 1,
  Hazel = 2,
  Aspen = 3,
  Larch = 4,
  Cedar = 5,
  Maple = 6,
  Pine = 8,
  WillowDuo = 9,
  WillowAce = 16,
  HazelKin = 17,
  LarchKin = 18,
  OakGrand = 21,
  OakMid = 22,
  OakBase = 23,
  Spruce = 24,
  RowanNova = 49,
  AspenNova = 50,
  LarchNova = 51,
};

}  // namespace orlin
