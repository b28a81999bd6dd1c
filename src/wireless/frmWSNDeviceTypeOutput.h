#pragma once

#include "wireless/wsn_device_type.h"

namespace orlin {

/// The device type on a wireless output, and the free point that a relay device is mapped to.
class frmWSNDeviceTypeOutput : public WSNDeviceTypeDialog {
 public:
  frmWSNDeviceTypeOutput();

 private:
  [[nodiscard]] int PositionOf(std::int16_t deviceType) const override;
  void SelectMapped(std::int16_t mapped) override;
  void BeforeEncoding() override;
};

}  // namespace orlin
