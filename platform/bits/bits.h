#pragma once

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// Single bits of 16-bit numbers. Bits beyond 0 to 15 read as 0, and writing them changes nothing.
class Bits : public BitRoutines {
 public:
  /// 1 or 0.
  std::int16_t BitGet0(const std::int16_t& value, std::int32_t bit) override;
  void BitPack0(std::int16_t& value, std::int32_t bit, std::int32_t count, std::int16_t newValue) override;
};

}  // namespace orlin
