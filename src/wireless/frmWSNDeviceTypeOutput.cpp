#include "wireless/frmWSNDeviceTypeOutput.h"

#include <algorithm>
#include <iterator>

namespace orlin {
namespace {

constexpr WSNDeviceType kDeviceTypes[] = {
    {10566, 0},  {10636, 5},  {10637, 8},  {10578, 15}, {10581, 18}, {10583, 20}, {10584, 21}, {10585, 22},
    {10586, 23}, {10587, 24}, {10588, 25}, {10589, 26}, {10590, 27}, {10591, 28}, {10592, 29}, {10593, 30},
};

constexpr WSNDeviceTypeTable kTable = {
    .DialogName = "frmWSNDeviceTypeOutput",
    .DeviceTypes = kDeviceTypes,
    .RelayPosition = 2,
    .OtherNoRelay = 3,
    .FreeCount = 32,
    .FirstFreeText = 10598,
    .InputText = 10674,
    .MappedText = 10635,
    .MappedFrame = "grpMappedPoint",
    .MappedLabel = "lblMappedPoint",
    .MappedList = "cmbMappedPoint",
};

// A device of the second position is always input only, and mapped to this number.
constexpr std::int16_t kFixedPosition = 1;
constexpr std::int16_t kFixedMapping = 35;

}  // namespace

frmWSNDeviceTypeOutput::frmWSNDeviceTypeOutput() : WSNDeviceTypeDialog(kTable) {}

int frmWSNDeviceTypeOutput::PositionOf(std::int16_t deviceType) const {
  if (deviceType >= 20) return deviceType - 15;
  const auto known = std::find_if(std::begin(kDeviceTypes), std::end(kDeviceTypes),
                                  [&](const auto& type) { return type.DeviceType == deviceType; });
  return known == std::end(kDeviceTypes) ? 0 : static_cast<int>(known - std::begin(kDeviceTypes));
}

void frmWSNDeviceTypeOutput::SelectMapped(std::int16_t mapped) {
  if (mapped >= 1 && mapped <= 32) {
    WSNDeviceTypeDialog::SelectMapped(mapped);
  } else if (!FreeIds.empty()) {
    cmbMapped.SelectRow(0);
  }
}

void frmWSNDeviceTypeOutput::BeforeEncoding() {
  if (cmbDeviceType.ListIndex() != kFixedPosition) return;
  RelayOption = 1;
  MappedOutput = kFixedMapping;
}

}  // namespace orlin
