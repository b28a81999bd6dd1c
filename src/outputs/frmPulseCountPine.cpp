#include "outputs/frmPulseCountPine.h"

#include <array>
#include <string>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr std::int16_t kHighestCount = 15;

constexpr auto kTimesOfInterval1 = TextRun<1473, 1480>();
constexpr auto kTimesOfInterval2 = TextRun<1481, 1488>();

/// The first two counts are stored the other way round than they are listed. Serves both ways.
std::int16_t SwapFirstTwo(std::int16_t count) {
  return count == 0 || count == 1 ? static_cast<std::int16_t>(1 - count) : count;
}

void AddText(ComboBox& list, std::int16_t number, const std::string& variable, std::int16_t value) {
  SkipFailure([&] { list.AddItem(GetLocalText(number, variable, std::to_string(value))); });
}

}  // namespace

frmPulseCountPine::frmPulseCountPine() {
  cbPulseCount.Click = [this] { cbPulseCount_Click(); };
}

std::int32_t frmPulseCountPine::Display(const Value& vName, const Value& vInterval1, const Value& vInterval2,
                                        Value& vPulseCount, Value& vPulseCountTime, const Value& SecurityLevels,
                                        ePanelType /*panelType*/) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    Interval1 = ToInteger(vInterval1);
    Interval2 = ToInteger(vInterval2);
    const auto count = ToInteger(vPulseCount);
    const auto time = ToInteger(vPulseCountTime);
    ApplySecurityLevels(Form.SecurityLevels(),
                        {{"Pulse Count", {cbPulseCount}}, {"Pulse Count Time", {cbPulseCountTime, lblWithin}}});
    Form.SetCaption(GetLocalText(1192, "ITEM", ToText(vName)));
    FillPulseTime(FillPulseCount(Interval1, Interval2, count), time);
  };
  steps.Encode = [&] {
    vPulseCount = SwapFirstTwo(cbPulseCount.ListIndex());
    vPulseCountTime = cbPulseCountTime.ListIndex();
  };
  return RunDisplay(Form, steps);
}

std::int16_t frmPulseCountPine::FillPulseCount(std::int16_t interval1, std::int16_t interval2, std::int16_t count) {
  AddText(cbPulseCount, 1468, "INTERVAL", interval1);
  AddText(cbPulseCount, 1468, "INTERVAL", interval2);
  for (std::int16_t pulses = 2; pulses <= kHighestCount; ++pulses) AddText(cbPulseCount, 1470, "COUNT", pulses);
  const auto position = SwapFirstTwo(count);
  SkipFailure([&] { cbPulseCount.SelectRow(position); });
  return position;
}

void frmPulseCountPine::FillPulseTime(std::int16_t count, std::int16_t time) {
  cbPulseCountTime.Clear();
  if (count == 0 || count == 1) {
    AddText(cbPulseCountTime, 1472, "INTERVAL", count == 0 ? Interval1 : Interval2);
    time = 0;
  } else if (count >= 2 && count <= kHighestCount) {
    for (const auto number : kTimesOfInterval1) AddText(cbPulseCountTime, number, "INTERVAL", Interval1);
    for (const auto number : kTimesOfInterval2) AddText(cbPulseCountTime, number, "INTERVAL", Interval2);
  } else {
    AddLocalText(cbPulseCountTime, 1489);
  }
  SkipFailure([&] { cbPulseCountTime.SetListIndex(time); });
}

void frmPulseCountPine::cbPulseCount_Click() { FillPulseTime(cbPulseCount.ListIndex(), cbPulseCountTime.ListIndex()); }

}  // namespace orlin
