#include "wireless/frmTransceiverConfiguration.h"

#include <array>
#include <span>

#include "frame/controls/fill_list.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// Raw values, in order of the lists.
constexpr std::array<std::int16_t, 2> kMotionRaw = {0, 4};
constexpr std::array<std::int16_t, 12> kInertiaRaw = {0, 1, 2, 3, 8, 9, 10, 11, 12, 13, 14, 15};

bool IsMotionSensor(std::int16_t vOption) { return vOption == 1 || vOption == 2; }
bool IsInertiaSensor(std::int16_t vOption) { return vOption == 10; }

/// The raw value of the selected row. A value that only the other list has opens without a row in this one, and an OK
/// that chose nothing keeps it.
void Encode(const ComboBox& list, std::span<const std::int16_t> rawValues, Value& res) {
  if (list.ListIndex() >= 0) res = rawValues[static_cast<std::size_t>(list.ListIndex())];
}

}  // namespace

std::int32_t frmTransceiverConfiguration::Display(std::int16_t vOption, Value& res) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    RaiseResult(InitApplicationVariables());
    InitTypes();
    SelectSensitivity(vOption, ToInteger(res));
    SetFrames(vOption);
  };
  steps.Encode = [&] {
    if (fraInertiaSensor.Enabled()) {
      Encode(cmbInertiaSensor, kInertiaRaw, res);
    } else if (fraMotionSensor.Enabled()) {
      Encode(cmbMotionSensor, kMotionRaw, res);
    }
  };
  return RunDisplay(Form, steps);
}

void frmTransceiverConfiguration::InitTypes() {
  AddLocalTexts(cmbMotionSensor, TextRun<10643, 10644>());
  AddLocalTexts(cmbInertiaSensor, TextRun<10645, 10656>());
}

void frmTransceiverConfiguration::SelectSensitivity(std::int16_t vOption, std::int16_t raw) {
  if (raw >= 5) {
    cmbInertiaSensor.SelectRow(raw - 4);
  } else if (IsMotionSensor(vOption)) {
    cmbMotionSensor.SelectRow(raw == 4 ? 1 : raw);
  } else if (IsInertiaSensor(vOption)) {
    cmbInertiaSensor.SelectRow(raw);
  } else {
    cmbMotionSensor.SelectRow(0);
  }
}

void frmTransceiverConfiguration::SetFrames(std::int16_t vOption) {
  const auto set = [](Frame& frame, bool inUse) {
    frame.SetEnabled(inUse);
    if (!inUse) frame.SetVisible(false);
  };
  set(fraMotionSensor, IsMotionSensor(vOption));
  set(fraInertiaSensor, IsInertiaSensor(vOption));
}

}  // namespace orlin
