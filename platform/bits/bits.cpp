#include "bits/bits.h"

#include <algorithm>

namespace orlin {
namespace {

constexpr std::int32_t kBits = 16;

bool IsBit(std::int64_t bit) { return bit >= 0 && bit < kBits; }

}  // namespace

std::int16_t Bits::BitGet0(const std::int16_t& value, std::int32_t bit) {
  return IsBit(bit) && ((value >> bit) & 1) != 0 ? 1 : 0;
}

void Bits::BitPack0(std::int16_t& value, std::int32_t bit, std::int32_t count, std::int16_t newValue) {
  for (std::int32_t i = 0; i < std::min(count, kBits); ++i) {
    const auto target = static_cast<std::int64_t>(bit) + i;
    if (!IsBit(target)) continue;
    const int mask = 1 << target;
    value = static_cast<std::int16_t>(BitGet0(newValue, i) != 0 ? value | mask : value & ~mask);
  }
}

}  // namespace orlin
