#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "frame/services/modPanelTypes.h"

// The functions of a sked of three bytes, as data: what they are, and what each model lacks or limits.

namespace orlin::sked {

/// Whole numbers from one to another, both included; with the highest 0, none.
struct Range {
  std::int16_t Min = 0;
  std::int16_t Max = 0;
};
struct Ranges {
  Range First;
  Range Second = {};
};

/// What a model has of the functions of its family.
struct Model {
  ePanelType PanelType;
  std::int16_t LastCode;  ///< before 28
  Ranges Codes3And4;
  Ranges Codes6And7;
  // How many items of these lists, from the first one.
  std::size_t ItemsOfA;
  std::size_t ItemsOfD;
  std::size_t ItemsOfH;
};

/// The items of a list.
struct ItemList {
  constexpr ItemList(std::int16_t firstText, std::initializer_list<std::int16_t> values,
                     std::size_t Model::*limit = nullptr)
      : FirstText(firstText), Count(values.size()), Limit(limit) {
    std::copy(values.begin(), values.end(), Values.begin());
  }
  [[nodiscard]] constexpr std::size_t CountOn(const Model& model) const {
    return Limit == nullptr ? Count : model.*Limit;
  }

  std::int16_t FirstText;  ///< number of the first item's text; the others follow it
  std::size_t Count;
  std::size_t Model::*Limit;              ///< of a list that is shorter on some models
  std::array<std::int16_t, 16> Values{};  ///< what the byte holds for an item
};

// A list of which many items are chosen has a bit of the byte for each, the highest first.
inline constexpr ItemList kListA{1618, {128, 64, 32, 16, 8, 4, 2, 1}, &Model::ItemsOfA};
inline constexpr ItemList kListB{743, {1, 0}};
inline constexpr ItemList kListC{1638, {1, 2, 3, 4, 5, 6, 7, 8}};
inline constexpr ItemList kListD{
    1646, {128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143}, &Model::ItemsOfD};
inline constexpr ItemList kListE{1668, {128, 64, 32, 16, 8, 4, 2, 1}};
inline constexpr ItemList kListF{1678, {64, 32, 16, 8, 4, 2, 1}};
inline constexpr ItemList kListG{1685, {128, 64, 32, 16, 8, 4, 2}};
inline constexpr ItemList kListH{1695, {128, 64, 32, 16, 8, 4, 2, 1}, &Model::ItemsOfH};
// The texts of list E with other values.
inline constexpr ItemList kListK{1668, {1, 2, 3, 4, 5, 6, 7, 8}};

/// How the parameters of a function are chosen.
enum class Choice {
  None,
  Number,
  NumberFromOne,  ///< shown one higher than the byte
  Single,
  Multi,
};

struct Parameter {
  std::int16_t Caption = 0;  ///< number of its text; 0 where there is no parameter
  const ItemList* Items = nullptr;
};

struct Function {
  std::int16_t Code;
  std::int16_t Text;  ///< number
  Choice ParamChoice = Choice::None;
  Parameter Param1 = {};
  Parameter Param2 = {};
};

/// The functions of the Arbor models, in the order of their codes. There are no codes 25 to 27.
inline constexpr auto kArborFunctions = [] {
  using enum Choice;
  return std::array<Function, 27>{{
      {0, 1616},
      {1, 1617, Multi, {1626, &kListA}},
      {2, 1627, Multi, {1626, &kListA}},
      {3, 1628, NumberFromOne, {1629}},
      {4, 1630, NumberFromOne, {1629}},
      {5, 1631, Multi, {1626, &kListA}},
      {6, 997, Number, {1492}},
      {7, 996, Number, {1492}},
      {8, 1632},
      {9, 1633, Single, {1634, &kListB}, {1635, &kListB}},
      {10, 1636, Single, {1634, &kListB}},
      {11, 1637, Single, {1662, &kListC}, {1663, &kListD}},
      {12, 1616},
      {13, 1665},
      {14, 1666},
      {15, 1667, Multi, {1676, &kListE}},
      {16, 1677, Multi, {1692, &kListF}, {1692, &kListG}},
      {17, 1693, Multi, {1692, &kListF}, {1692, &kListG}},
      {18, 1694, Multi, {1703, &kListH}},
      {19, 1704, Multi, {1703, &kListH}},
      {20, 1705, Multi, {1703, &kListH}},
      {21, 1706, Multi, {1703, &kListH}},
      {22, 1707, Multi, {1703, &kListH}},
      {23, 1708, Multi, {1703, &kListH}},
      {24, 1709, Multi, {1703, &kListH}},
      {28, 1710, Single, {1711, &kListB}},
      {29, 1712, Single, {1711, &kListB}},
  }};
}();

/// The functions of the Kin models: the codes 0 to 15, some of them others.
inline constexpr auto kKinFunctions = [] {
  using enum Choice;
  std::array<Function, 16> functions{};
  std::copy_n(kArborFunctions.begin(), functions.size(), functions.begin());
  for (const auto& own : {
           Function{3, 1715, NumberFromOne, {1716}},
           Function{4, 1717, NumberFromOne, {1716}},
           Function{10, 1718, Single, {1634, &kListB}},
           Function{11, 1637, Single, {1662, &kListK}, {1663, &kListD}},
           Function{15, 1719, Single, {1662, &kListK}},
       }) {
    functions[static_cast<std::size_t>(own.Code)] = own;
  }
  return functions;
}();

// model, last code before 28, numbers of the codes 3 and 4, of the codes 6 and 7, items of the lists A, D, H
inline constexpr auto kArborModels = std::to_array<Model>({
    {ePanelType::Rowan, 24, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 8},
    {ePanelType::Maple, 24, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 8},
    {ePanelType::RowanNova, 24, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 8},
    {ePanelType::Hazel, 17, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 0},
    {ePanelType::Aspen, 24, {{1, 75}}, {{1, 64}}, 8, 4, 2},
    {ePanelType::AspenNova, 24, {{1, 75}}, {{1, 64}}, 8, 4, 2},
    {ePanelType::Cedar, 24, {{1, 75}}, {{1, 64}}, 8, 4, 4},
    {ePanelType::Larch, 17, {{1, 75}}, {{1, 64}}, 8, 4, 0},
    {ePanelType::LarchNova, 15, {{1, 40}}, {{1, 24}}, 4, 4, 0},
});
inline constexpr auto kKinModels = std::to_array<Model>({
    {ePanelType::HazelKin, 15, {{1, 71}, {73, 135}}, {{1, 128}}, 8, 16, 0},
    {ePanelType::LarchKin, 15, {{1, 48}}, {{1, 48}}, 8, 4, 0},
});

/// Models whose skeds have the same dialog.
struct Family {
  std::span<const Function> Functions;
  std::span<const Model> Models;
  /// Whether a given code is taken as the row; else as the function, and the first row stands for an unknown one.
  bool CodeIsRow = false;
};
inline constexpr Family kArbor{kArborFunctions, kArborModels};
inline constexpr Family kKin{kKinFunctions, kKinModels, true};

}  // namespace orlin::sked
