#include "wireless/frmWSNDeviceTypeInput.h"

namespace orlin {
namespace {

constexpr WSNDeviceType kDeviceTypes[] = {
    {10566, 0},  {10567, 1},  {10568, 2},  {10569, 3},  {10570, 4},  {10571, 7},  {10572, 8},
    {10573, 9},  {10574, 10}, {10575, 11}, {10576, 13}, {10577, 14}, {10578, 15}, {10579, 16},
    {10580, 17}, {10581, 18}, {10582, 19}, {10583, 20}, {10584, 21}, {10585, 22}, {10586, 23},
    {10587, 24}, {10588, 25}, {10589, 26}, {10590, 27}, {10591, 28}, {10592, 29}, {10593, 30},
};

constexpr WSNDeviceTypeTable kTable = {
    .DialogName = "frmWSNDeviceTypeInput",
    .DeviceTypes = kDeviceTypes,
    .RelayPosition = 6,
    .OtherNoRelay = 0,
    .FreeCount = 4,
    .FirstFreeText = 10594,
    .InputText = 10632,
    .MappedText = 10634,
    .MappedFrame = "grpMappedOutput",
    .MappedLabel = "lblMappedOutput",
    .MappedList = "cmbMappedOutput",
};

}  // namespace

frmWSNDeviceTypeInput::frmWSNDeviceTypeInput() : WSNDeviceTypeDialog(kTable) {}

int frmWSNDeviceTypeInput::PositionOf(std::int16_t deviceType) const {
  if (deviceType < 5) return deviceType;
  if (deviceType < 12) return deviceType - 2;
  return deviceType == 12 ? 0 : deviceType - 3;
}

}  // namespace orlin
