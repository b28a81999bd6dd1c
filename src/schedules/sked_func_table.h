#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "frame/services/modPanelTypes.h"

// The functions of a sked of three bytes, as data. The models have one table of functions between them; what a model
// lacks or limits stands beside it.

namespace orlin {

/// The items of a list.
struct SkedItems {
  constexpr SkedItems(std::int16_t firstText, std::initializer_list<std::int16_t> values)
      : FirstText(firstText), Count(values.size()) {
    std::copy(values.begin(), values.end(), Values.begin());
  }

  std::int16_t FirstText;  ///< number of the first item's text; the others follow it
  std::size_t Count;
  std::array<std::int16_t, 16> Values{};  ///< what the byte holds for an item
};

// A list of which many items are chosen has a bit of the byte for each, the highest first.
inline constexpr SkedItems kListA{1618, {128, 64, 32, 16, 8, 4, 2, 1}};
inline constexpr SkedItems kListB{743, {1, 0}};
inline constexpr SkedItems kListC{1638, {1, 2, 3, 4, 5, 6, 7, 8}};
inline constexpr SkedItems kListD{1646,
                                  {128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143}};
inline constexpr SkedItems kListE{1668, {128, 64, 32, 16, 8, 4, 2, 1}};
inline constexpr SkedItems kListF{1678, {64, 32, 16, 8, 4, 2, 1}};
inline constexpr SkedItems kListG{1685, {128, 64, 32, 16, 8, 4, 2}};
inline constexpr SkedItems kListH{1695, {128, 64, 32, 16, 8, 4, 2, 1}};

/// How a parameter is chosen.
enum class SkedChoice {
  None,
  Number,
  NumberFromOne,  ///< shown one higher than the byte
  Single,
  Multi,
};

struct SkedParam {
  SkedChoice Choice = SkedChoice::None;
  const SkedItems* Items = nullptr;
  std::int16_t Caption = 0;  ///< number of its text
};

struct SkedFunc {
  std::int16_t Code;
  std::int16_t Text;  ///< number
  SkedParam Param1 = {};
  SkedParam Param2 = {};
};

/// All functions, in the order of their codes. There are no codes 25 to 27.
inline constexpr std::array<SkedFunc, 27> kSkedFuncs = [] {
  using enum SkedChoice;
  return std::array<SkedFunc, 27>{{
      {0, 1616},
      {1, 1617, {Multi, &kListA, 1626}},
      {2, 1627, {Multi, &kListA, 1626}},
      {3, 1628, {NumberFromOne, nullptr, 1629}},
      {4, 1630, {NumberFromOne, nullptr, 1629}},
      {5, 1631, {Multi, &kListA, 1626}},
      {6, 997, {Number, nullptr, 1492}},
      {7, 996, {Number, nullptr, 1492}},
      {8, 1632},
      {9, 1633, {Single, &kListB, 1634}, {Single, &kListB, 1635}},
      {10, 1636, {Single, &kListB, 1634}},
      {11, 1637, {Single, &kListC, 1662}, {Single, &kListD, 1663}},
      {12, 1616},
      {13, 1665},
      {14, 1666},
      {15, 1667, {Multi, &kListE, 1676}},
      {16, 1677, {Multi, &kListF, 1692}, {Multi, &kListG, 1692}},
      {17, 1693, {Multi, &kListF, 1692}, {Multi, &kListG, 1692}},
      {18, 1694, {Multi, &kListH, 1703}},
      {19, 1704, {Multi, &kListH, 1703}},
      {20, 1705, {Multi, &kListH, 1703}},
      {21, 1706, {Multi, &kListH, 1703}},
      {22, 1707, {Multi, &kListH, 1703}},
      {23, 1708, {Multi, &kListH, 1703}},
      {24, 1709, {Multi, &kListH, 1703}},
      {28, 1710, {Single, &kListB, 1711}},
      {29, 1712, {Single, &kListB, 1711}},
  }};
}();

/// Whole numbers from one to another, both included; by default none.
struct SkedInterval {
  std::int16_t Min = 1;
  std::int16_t Max = 0;

  [[nodiscard]] constexpr bool Holds(std::int16_t number) const noexcept { return Min <= number && number <= Max; }
};

/// What the number of a function may be.
struct SkedLimits {
  SkedInterval First;
  SkedInterval Second = {};
};

/// How a model's functions differ from the whole table.
struct SkedModel {
  ePanelType PanelType;
  SkedInterval MissingCodes;
  SkedLimits Codes3And4;
  SkedLimits Codes6And7;
  // How many items of these lists, from the first one.
  std::size_t ItemsOfA;
  std::size_t ItemsOfD;
  std::size_t ItemsOfH;
};

/// Models whose skeds have the same dialog.
struct SkedFamily {
  std::span<const SkedFunc> Functions;
  std::span<const SkedModel> Models;
  /// Whether a given code is taken as the row; else as the function, and the first row stands for an unknown one.
  bool CodeIsRow = false;
};

}  // namespace orlin
