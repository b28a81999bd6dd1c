#include "outputs/frmRelayParamsOak.h"

#include <algorithm>
#include <array>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// The texts of the functions, by code.
constexpr std::array<std::int16_t, 25> kTexts = {1494, 1495, 1496, 1497, 1498, 1499, 1500, 1501, 1502,
                                                 1503, 1504, 1505, 1506, 1507, 1508, 1509, 1510, 1511,
                                                 1216, 1512, 1513, 1514, 1515, 1516, 1317};

struct Model {
  ePanelType Type;
  std::int16_t LastPosition;
  int PointItems;
};
constexpr std::array<Model, 3> kModels = {{
    {ePanelType::OakGrand, 24, 24},
    {ePanelType::OakMid, 18, 8},
    {ePanelType::OakBase, 23, 6},
}};

const Model& ModelOf(ePanelType type) { return *std::ranges::find(kModels, type, &Model::Type); }

// The code is the position, but for the last one of OakBase, which lacks the code of that number.
constexpr std::int16_t kLastCode = 24;
constexpr std::int16_t kLastPositionOnBase = 23;

std::int16_t PositionOf(std::int16_t code, ePanelType type) {
  return type == ePanelType::OakBase && code == kLastCode ? kLastPositionOnBase : code;
}

std::int16_t CodeAt(std::int16_t position, ePanelType type) {
  return type == ePanelType::OakBase && position == kLastPositionOnBase ? kLastCode : position;
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
    cmbFunction.SelectRow(PositionOf(ToInteger(FunctionCode), PanelType));
    ApplySecurityLevels(Form.SecurityLevels(),
                        {{FunctionKey, {lblFunction, cmbFunction}}, {ParameterKey, {lblParameter, lstMSParam}}});
    Form.SetCaption(ReplaceVariable(GetLocalText(1493, "RELAY", ToText(RelayNo)), "FUNCTION", ToText(FunctionNo)));
  };
  steps.Encode = [&] {
    FunctionCode = CodeAt(cmbFunction.ListIndex(), PanelType);
    auto& bits = AsArray(ParameterCode);
    const std::int32_t items = lstMSParam.ListCount();
    for (std::int32_t i = 0; i < items; ++i) bits.At(i) = static_cast<std::int16_t>(lstMSParam.Selected(i));
    for (auto i = items; i <= bits.UpperBound(); ++i) bits.At(i) = std::int16_t{0};
  };
  return RunDisplay(Form, steps);
}

void frmRelayParamsOak::FillFunctionList() {
  cmbFunction.Clear();
  for (std::int16_t position = 0; position <= ModelOf(PanelType).LastPosition; ++position) {
    AddLocalText(cmbFunction, kTexts[static_cast<std::size_t>(CodeAt(position, PanelType))]);
  }
}

void frmRelayParamsOak::cmbFunction_Click() { FillParameterList(); }

void frmRelayParamsOak::FillParameterList() {
  lstMSParam.Clear();
  // A right that has no record restricts nothing.
  bool enabled = true;
  SkipFailure([&] { enabled = MayEdit(Form.SecurityLevels(), ParameterKey); });
  lstMSParam.SetAllowed(enabled);
  const auto position = cmbFunction.ListIndex();
  if (position >= 1 && position <= 5) {
    AddParameters(ModelOf(PanelType).PointItems, 400, "POINT");
  } else if (position >= 6 && position <= 8) {
    AddParameters(3, 1517, "KEY", true);
  } else if (position == 9) {
    AddParameters(8, 1518, "USER");
  } else {
    lstMSParam.SetEnabled(false);
  }
}

void frmRelayParamsOak::AddParameters(int count, std::int16_t text, const std::string& variable, bool lettered) {
  for (int item = 0; item < count; ++item) {
    // Letters go on from the hexadecimal digit A.
    const auto number = lettered ? HexText(item + 10) : std::to_string(item + 1);
    SkipFailure([&] { lstMSParam.AddItem(GetLocalText(text, variable, number)); },
                [&] { lstMSParam.SetSelected(item, ToInteger(ParamBits.At(item)) == 1); });
  }
}

void frmRelayParamsOak::lstMSParam_ItemCheck(int Item) {
  SkipFailure([&] { ParamBits.At(Item) = static_cast<std::int16_t>(lstMSParam.Selected(Item)); });
}

}  // namespace orlin
