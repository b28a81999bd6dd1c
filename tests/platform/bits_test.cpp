#include "bits/bits.h"

#include <gtest/gtest.h>

namespace orlin::testing {
namespace {

constexpr auto kMost = INT32_MAX;

TEST(Bits, AreReadFromTheLeastSignificantOne) {
  const struct {
    std::int16_t Value;
    std::int32_t Bit;
    int Read;
  } cases[] = {{1, 0, 1},       {1, 1, 0},   {64, 6, 1},  {64, 5, 0},         {-32768, 15, 1},   {-1, 15, 1},
               {0x7FFF, 15, 0}, {-1, -1, 0}, {-1, 16, 0}, {-1, INT32_MAX, 0}, {-1, INT32_MIN, 0}};
  for (const auto& one : cases) EXPECT_EQ(Bits().BitGet0(one.Value, one.Bit), one.Read) << one.Value << " " << one.Bit;
}

TEST(Bits, AreStoredWithoutTouchingTheOthers) {
  struct Case {
    std::int16_t Value;
    std::int32_t Bit, Count;
    std::int16_t New;
    int After;
  };
  const Case cases[] = {{0, 3, 1, 1, 8},          {0x7F, 3, 1, 0, 0x77}, {0, 3, 1, 2, 0},       {0, 15, 1, 1, -32768},
                        {-1, 15, 1, 0, 32767},    {0x0F, 2, 2, 1, 7},    {0, 14, 4, 13, 16384}, {5, 0, 0, 7, 5},
                        {5, 0, -1, 7, 5},         {5, 16, 1, 1, 5},      {5, -1, 1, 1, 5},      {0, -1, 2, 2, 1},
                        {5, kMost, kMost, -1, 5}, {0, 0, kMost, -2, -2}};
  for (auto [value, bit, count, replacement, after] : cases) {
    const auto before = value;
    Bits().BitPack0(value, bit, count, replacement);
    EXPECT_EQ(value, after) << before << " " << bit << " " << count << " " << replacement;
  }
}

}  // namespace
}  // namespace orlin::testing
