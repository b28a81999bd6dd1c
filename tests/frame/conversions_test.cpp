#include "frame/values/conversions.h"

#include <cmath>

#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

TEST(NumericValue, TakesTheLongestLeadingNumber) {
  const std::pair<const char*, double> cases[] = {
      {"", 0},     {"x", 0},     {"--1", 0},    {"&H", 0},      {"1e-400", 0}, {"1e", 1},
      {"1e+x", 1}, {" 12 ", 12}, {"12abc", 12}, {"-7", -7},     {"+7", 7},     {"1.5x", 1.5},
      {".5", 0.5}, {"5.", 5},    {"1e3", 1000}, {"2E14", 2e14}, {"&hff", 255}, {"&HF8zz", 248}};
  for (const auto& [text, number] : cases) EXPECT_EQ(NumericValue(text), number) << text;
  EXPECT_EQ(NumericValue("&HFFFFFFFFFFFF"), 281474976710655.0);
  EXPECT_TRUE(std::isinf(NumericValue("1e400")));
}

/// What a conversion gives, or the number of its failure.
template <class Convert>
std::string Outcome(Convert convert, const Value& value) {
  std::string outcome;
  const auto failure = FailureOf([&] { outcome = std::to_string(convert(value)); });
  return failure == 0 ? outcome : "fails " + std::to_string(failure);
}

TEST(Conversions, TakeAValueAsAWholeOrFail) {
  const Value shortNumber(std::int16_t{-5});
  const std::pair<Value, const char*> cases[] = {
      {Value(), "0"},      {0.5, "0"},         {1.5, "2"},        {2.5, "2"},     {-1.5, "-2"},
      {shortNumber, "-5"}, {"-.5e1", "-5"},    {true, "-1"},      {" 12 ", "12"}, {"1e2", "100"},
      {32767, "32767"},    {32767.4, "32767"}, {-32768, "-32768"}};
  const Value notANumber(std::nan(""));
  const std::pair<Value, const char*> refused[] = {
      {32768, "fails 6"},   {-32769, "fails 6"},   {32767.5, "fails 6"},     {notANumber, "fails 6"},
      {"1e999", "fails 6"}, {"", "fails 13"},      {"  ", "fails 13"},       {"12x", "fails 13"},
      {"&H10", "fails 13"}, {Array(), "fails 13"}, {ObjectPtr(), "fails 13"}};
  for (const auto& [value, outcome] : cases) EXPECT_EQ(Outcome(ToInteger, value), outcome) << KindName(value.kind());
  for (const auto& [value, outcome] : refused) EXPECT_EQ(Outcome(ToInteger, value), outcome) << KindName(value.kind());
  EXPECT_EQ(Outcome(ToLong, "2147483647") + Outcome(ToLong, 2147483648.0), "2147483647fails 6");
  EXPECT_EQ(Outcome(ToByte, 255.4) + Outcome(ToByte, std::int16_t{-1}), "255fails 6");
  EXPECT_TRUE(ToBoolean(" True "));
  EXPECT_FALSE(ToBoolean(std::int16_t{0}));
}

TEST(Conversions, TellNumbersFromOtherTexts) {
  const std::vector<Value> numbers = {"0", " -1.5 ", "2E14", ".5", "5.", Value()};
  const std::vector<Value> others = {"", " ", "&H10", "1 2", "1e", "-", ".", "1e999", Array()};
  for (const auto& number : numbers) EXPECT_TRUE(IsNumeric(number));
  for (const auto& other : others) EXPECT_FALSE(IsNumeric(other));
}

TEST(Texts, AreMadeFromNumbersAndParts) {
  const std::vector<std::string> made = {ToText(Value()),      ToText(std::int16_t{-5}),
                                         ToText(248.0),        ToText(0.1),
                                         ToText(1e300),        HexText(0),
                                         HexText(0xF8),        TwoDigits(7),
                                         TwoDigits(123),       Left("abc", 0),
                                         Mid("abc", 2, 9),     Mid("abc", 4, 1),
                                         Mid("a\u00E4c", 2, 1)};
  EXPECT_EQ(made, (std::vector<std::string>{"", "-5", "248", "0.1", "1e+300", "0", "F8", "07", "123", "", "bc", "",
                                            "\u00E4"}));
  EXPECT_EQ(FailureOf([] { return ToText(Array()); }), failures::TypeMismatch);
}

TEST(Values, KeepTheirKindAndTheirBounds) {
  EXPECT_NE(Value(std::int16_t{5}), Value(5));
  EXPECT_NE(Value("5"), Value(5));
  Array array({"a", std::int16_t{1}}, 3);
  EXPECT_EQ(array.UpperBound(), 4);
  EXPECT_EQ(array.At(4), Value(std::int16_t{1}));
  for (const int beyond : {2, 5}) EXPECT_EQ(FailureOf([&] { return array.At(beyond); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(Array({}, 1).UpperBound(), 0);
  Value copy(array);
  copy.Get<Array>()->At(3) = "b";
  EXPECT_EQ(array.At(3), Value("a"));
}

}  // namespace
}  // namespace orlin::testing
