#pragma once

#include "wireless/wsn_device_type.h"

namespace orlin {

/// The device type on a wireless input, and the free output that a relay device is mapped to.
class frmWSNDeviceTypeInput : public WSNDeviceTypeDialog {
 public:
  frmWSNDeviceTypeInput();

 private:
  [[nodiscard]] int PositionOf(std::int16_t deviceType) const override;
};

}  // namespace orlin
