#include "schedules/frmSkedFuncsArbor.h"

namespace orlin {
namespace {

using enum ePanelType;

constexpr std::array<SkedModel, 9> kModels = {{
    // model, codes that it lacks, numbers of the codes 3 and 4, of the codes 6 and 7, items of the lists A, D, H
    {Rowan, {}, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 8},
    {Maple, {}, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 8},
    {RowanNova, {}, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 8},
    {Hazel, {18, 24}, {{1, 127}, {129, 247}}, {{1, 128}}, 8, 16, 0},
    {Aspen, {}, {{1, 75}}, {{1, 64}}, 8, 4, 2},
    {AspenNova, {}, {{1, 75}}, {{1, 64}}, 8, 4, 2},
    {Cedar, {}, {{1, 75}}, {{1, 64}}, 8, 4, 4},
    {Larch, {18, 24}, {{1, 75}}, {{1, 64}}, 8, 4, 0},
    {LarchNova, {16, 24}, {{1, 40}}, {{1, 24}}, 4, 4, 0},
}};

constexpr SkedFamily kFamily{kSkedFuncs, kModels};

}  // namespace

frmSkedFuncsArbor::frmSkedFuncsArbor() : SkedFuncsDialog("frmSkedFuncsArbor", kFamily) {}

}  // namespace orlin
