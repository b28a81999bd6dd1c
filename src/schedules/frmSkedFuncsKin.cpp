#include "schedules/frmSkedFuncsKin.h"

namespace orlin {
namespace {

using enum ePanelType;
using enum SkedChoice;

// The texts of list E with other values.
constexpr SkedItems kListK{1668, {1, 2, 3, 4, 5, 6, 7, 8}};

// The functions that are others than those of the common table.
constexpr std::array<SkedFunc, 5> kOwnFunctions = {{
    {3, 1715, {NumberFromOne, nullptr, 1716}},
    {4, 1717, {NumberFromOne, nullptr, 1716}},
    {10, 1718, {Single, &kListB, 1634}},
    {11, 1637, {Single, &kListK, 1662}, {Single, &kListD, 1663}},
    {15, 1719, {Single, &kListK, 1662}},
}};

// The codes 0 to 15, which stand first in the common table, each in the row equal to its code.
constexpr std::array<SkedFunc, 16> kFunctions = [] {
  std::array<SkedFunc, 16> functions{};
  std::copy_n(kSkedFuncs.begin(), functions.size(), functions.begin());
  for (const auto& own : kOwnFunctions) functions[static_cast<std::size_t>(own.Code)] = own;
  return functions;
}();

constexpr std::array<SkedModel, 2> kModels = {{
    // model, codes that it lacks, numbers of the codes 3 and 4, of the codes 6 and 7, items of the lists A, D, H
    {HazelKin, {}, {{1, 71}, {73, 135}}, {{1, 128}}, 8, 16, 0},
    {LarchKin, {}, {{1, 48}}, {{1, 48}}, 8, 4, 0},
}};

constexpr SkedFamily kFamily{kFunctions, kModels, true};

}  // namespace

frmSkedFuncsKin::frmSkedFuncsKin() : SkedFuncsDialog("frmSkedFuncsKin", kFamily) {}

}  // namespace orlin
