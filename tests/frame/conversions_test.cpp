#include "frame/conversions.h"

#include <cmath>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

TEST(NumericValue, TakesTheLongestLeadingNumber) {
  const std::pair<double, std::vector<const char*>> cases[] = {{0, {"", "x", "--1", "&H", "1e-400"}},
                                                               {1, {"1e", "1e+x"}},
                                                               {12, {"12", " 12 ", "12abc"}},
                                                               {-7, {"-7"}},
                                                               {7, {"+7"}},
                                                               {1.5, {"1.5x"}},
                                                               {0.5, {".5"}},
                                                               {5, {"5."}},
                                                               {1000, {"1e3"}},
                                                               {2e14, {"2E14"}},
                                                               {16, {"&H10"}},
                                                               {255, {"&hff"}},
                                                               {281474976710655.0, {"&HFFFFFFFFFFFF"}},
                                                               {248, {"&HF8zz"}}};
  for (const auto& [number, texts] : cases) {
    for (const auto* text : texts) EXPECT_EQ(NumericValue(text), number) << text;
  }
  EXPECT_TRUE(std::isinf(NumericValue("1e400")));
}

TEST(Conversions, TakeAValueAsAWholeOrFail) {
  constexpr int kMismatch = failures::TypeMismatch;
  constexpr int kOverflow = failures::Overflow;
  const std::pair<int, std::vector<Value>> numbers[] = {
      {0, {Value(), 0.5}}, {2, {1.5, 2.5}}, {-2, {-1.5}},   {-5, {std::int16_t{-5}, "-.5e1"}},
      {-1, {true}},        {12, {" 12 "}},  {100, {"1e2"}}, {32767, {32767, 32767.4}}};
  for (const auto& [number, values] : numbers) {
    for (const auto& value : values) EXPECT_EQ(ToInteger(value), number) << KindName(value.kind());
  }
  const std::pair<int, std::vector<Value>> refused[] = {{kOverflow, {32768, -32769, 32767.5, std::nan(""), "1e999"}},
                                                        {kMismatch, {"", "  ", "12x", "&H10", Array(), ObjectPtr()}}};
  for (const auto& [failure, values] : refused) {
    for (const auto& value : values) {
      EXPECT_EQ(FailureOf([&] { static_cast<void>(ToInteger(value)); }), failure) << KindName(value.kind());
    }
  }
  EXPECT_EQ(ToLong("2147483647"), 2147483647);
  EXPECT_EQ(FailureOf([] { static_cast<void>(ToLong(2147483648.0)); }), kOverflow);
  EXPECT_EQ(ToByte(255.4), 255);
  EXPECT_EQ(FailureOf([] { static_cast<void>(ToByte(std::int16_t{-1})); }), kOverflow);
  EXPECT_TRUE(ToBoolean(" True "));
  EXPECT_FALSE(ToBoolean(std::int16_t{0}));
}

TEST(Conversions, TellNumbersFromOtherTexts) {
  for (const char* number : {"0", " -1.5 ", "2E14", ".5", "5."})
    EXPECT_TRUE(IsNumeric(std::string_view(number))) << number;
  for (const char* other : {"", " ", "&H10", "1 2", "1e", "-", ".", "1e999"})
    EXPECT_FALSE(IsNumeric(std::string_view(other))) << other;
  EXPECT_TRUE(IsNumeric(Value()));
  EXPECT_FALSE(IsNumeric(Value("x")));
  EXPECT_FALSE(IsNumeric(Value(Array())));
}

TEST(Texts, AreMadeFromNumbersAndParts) {
  EXPECT_EQ(ToText(Value()), "");
  EXPECT_EQ(ToText(std::int16_t{-5}), "-5");
  EXPECT_EQ(ToText(248.0), "248");
  EXPECT_EQ(ToText(0.1), "0.1");
  EXPECT_EQ(ToText(1e300), "1e+300");
  EXPECT_EQ(FailureOf([] { static_cast<void>(ToText(Array())); }), failures::TypeMismatch);
  EXPECT_EQ(HexText(0), "0");
  EXPECT_EQ(HexText(0xF8), "F8");
  EXPECT_EQ(TwoDigits(7), "07");
  EXPECT_EQ(TwoDigits(123), "123");
  EXPECT_EQ(Mid("abc", 2, 9), "bc");
  EXPECT_EQ(Mid("abc", 4, 1), "");
  EXPECT_EQ(Mid("a\xC3\xA4"
                "c",
                2, 1),
            "\xC3\xA4");
  EXPECT_EQ(Left("abc", 0), "");
}

TEST(Values, KeepTheirKindAndTheirBounds) {
  EXPECT_NE(Value(std::int16_t{5}), Value(5));
  EXPECT_NE(Value("5"), Value(5));
  Array array({"a", std::int16_t{1}}, 3);
  EXPECT_EQ(array.UpperBound(), 4);
  EXPECT_EQ(array.At(4), Value(std::int16_t{1}));
  EXPECT_EQ(FailureOf([&] { static_cast<void>(array.At(2)); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(array.At(5)); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(Array({}, 1).UpperBound(), 0);
  Value copy(array);
  copy.Get<Array>()->At(3) = "b";
  EXPECT_EQ(array.At(3), Value("a"));
}

}  // namespace
}  // namespace orlin::testing
