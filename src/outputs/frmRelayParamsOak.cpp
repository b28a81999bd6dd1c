#include "outputs/frmRelayParamsOak.h"

#include <algorithm>
#include <array>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

enum class Items { None, Points, Keys, Users };

struct RelayFunction {
  std::int16_t Text;
  Items CheckItems = Items::None;
};
// By function code.
constexpr std::array<RelayFunction, 25> kFunctions = {{
    {1494},                 //  0
    {1495, Items::Points},  //  1
    {1496, Items::Points},  //  2
    {1497, Items::Points},  //  3
    {1498, Items::Points},  //  4
    {1499, Items::Points},  //  5
    {1500, Items::Keys},    //  6
    {1501, Items::Keys},    //  7
    {1502, Items::Keys},    //  8
    {1503, Items::Users},   //  9
    {1504},                 // 10
    {1505},                 // 11
    {1506},                 // 12
    {1507},                 // 13
    {1508},                 // 14
    {1509},                 // 15
    {1510},                 // 16
    {1511},                 // 17
    {1216},                 // 18
    {1512},                 // 19
    {1513},                 // 20
    {1514},                 // 21
    {1515},                 // 22
    {1516},                 // 23
    {1317},                 // 24
}};

constexpr int kKeyItems = 3;
constexpr int kUserItems = 8;

struct Model {
  ePanelType Type;
  std::int16_t LastCode;
  std::int16_t MissingCode;  // has no line in the list; its number opens the line of the next code
  int PointItems;
};
constexpr std::int16_t kNoneMissing = 25;
constexpr std::array<Model, 3> kModels = {{
    {ePanelType::OakGrand, 24, kNoneMissing, 24},
    {ePanelType::OakMid, 18, kNoneMissing, 8},
    {ePanelType::OakBase, 24, 23, 6},
}};

const Model& ModelOf(ePanelType type) {
  return *std::find_if(kModels.begin(), kModels.end(), [&](const auto& model) { return model.Type == type; });
}

std::int16_t PositionOf(std::int16_t code, const Model& model) {
  return code > model.MissingCode ? static_cast<std::int16_t>(code - 1) : code;
}

std::int16_t CodeAt(std::int16_t position, const Model& model) {
  return position >= model.MissingCode ? static_cast<std::int16_t>(position + 1) : position;
}

}  // namespace

frmRelayParamsOak::frmRelayParamsOak() {
  cmbFunction.Click = [this] { cmbFunction_Click(); };
  lstMSParam.ItemCheck = [this](int Item) { lstMSParam_ItemCheck(Item); };
}

std::int32_t frmRelayParamsOak::Display(const Value& RelayNo, const Value& FunctionNo, Value& FunctionCode,
                                        Value& ParameterCode, const Value& SecurityLevels, ePanelType panelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    PanelType = panelType;
    FunctionKey = "Function " + ToText(FunctionNo);
    ParameterKey = "----Parameter " + ToText(FunctionNo);
    ParamBits = AsArray(ParameterCode);
    for (auto i = ParamBits.LowerBound(); i <= ParamBits.UpperBound(); ++i) {
      ParamBits.At(i) = static_cast<std::int16_t>(ToByte(ParamBits.At(i)));
    }
    FillFunctionList();
    cmbFunction.SelectRow(PositionOf(ToInteger(FunctionCode), ModelOf(PanelType)));
    ApplySecurityLevels(Form.SecurityLevels(),
                        {{FunctionKey, {lblFunction, cmbFunction}}, {ParameterKey, {lblParameter, lstMSParam}}});
    Form.SetCaption(ReplaceVariable(GetLocalText(1493, "RELAY", ToText(RelayNo)), "FUNCTION", ToText(FunctionNo)));
  };
  steps.Encode = [&] {
    FunctionCode = CodeAt(cmbFunction.ListIndex(), ModelOf(PanelType));
    auto& bits = AsArray(ParameterCode);
    const std::int32_t items = lstMSParam.ListCount();
    for (std::int32_t i = 0; i < items; ++i) bits.At(i) = static_cast<std::int16_t>(lstMSParam.Selected(i));
    for (auto i = items; i <= bits.UpperBound(); ++i) bits.At(i) = std::int16_t{0};
  };
  return RunDisplay(Form, steps);
}

void frmRelayParamsOak::FillFunctionList() {
  const auto& model = ModelOf(PanelType);
  cmbFunction.Clear();
  for (std::int16_t code = 0; code <= model.LastCode; ++code) {
    if (code == model.MissingCode) continue;
    SkipFailure([&] { cmbFunction.AddItem(GetLocalText(kFunctions[static_cast<std::size_t>(code)].Text)); });
  }
}

void frmRelayParamsOak::cmbFunction_Click() { FillParameterList(); }

void frmRelayParamsOak::FillParameterList() {
  const auto& model = ModelOf(PanelType);
  lstMSParam.Clear();
  // A right that has no record restricts nothing.
  bool enabled = true;
  SkipFailure([&] { enabled = MayEdit(Form.SecurityLevels(), ParameterKey); });
  lstMSParam.SetAllowed(enabled);
  switch (kFunctions[static_cast<std::size_t>(CodeAt(cmbFunction.ListIndex(), model))].CheckItems) {
    case Items::Points:
      return AddParameters(model.PointItems, 400, "POINT");
    case Items::Keys:
      return AddParameters(kKeyItems, 1517, "KEY");
    case Items::Users:
      return AddParameters(kUserItems, 1518, "USER");
    case Items::None:
      lstMSParam.SetEnabled(false);
  }
}

void frmRelayParamsOak::AddParameters(int count, std::int16_t text, const std::string& variable) {
  for (int item = 0; item < count; ++item) {
    // Keys are lettered from A.
    const auto number = variable == "KEY" ? HexText(item + 10) : std::to_string(item + 1);
    SkipFailure([&] { lstMSParam.AddItem(GetLocalText(text, variable, number)); },
                [&] { lstMSParam.SetSelected(item, ToInteger(ParamBits.At(item)) == 1); });
  }
}

void frmRelayParamsOak::lstMSParam_ItemCheck(int Item) {
  SkipFailure([&] { ParamBits.At(Item) = static_cast<std::int16_t>(lstMSParam.Selected(Item)); });
}

}  // namespace orlin
