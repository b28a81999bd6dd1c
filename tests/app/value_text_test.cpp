#include "app/calls/value_text.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "app/usage/usage_error.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

Value Long(std::int32_t number) { return number; }
Value Elements(std::vector<Value> elements) { return Array(std::move(elements)); }

TEST(ValueText, ReadsEachKind) {
  const std::pair<const char*, Value> values[] = {
      {"5", Integer(5)},
      {"-5", Integer(-5)},
      {"007", Integer(7)},
      {"32767", Integer(32767)},
      {"-32768", Integer(-32768)},
      {"32768", Long(32768)},
      {"-32769", Long(-32769)},
      {"2147483647", Long(2147483647)},
      {"2147483648", 2147483648.0},
      {"99999999999999999999", 1e20},
      {"5L", Long(5)},
      {"-5L", Long(-5)},
      {"2.5", 2.5},
      {"-0.25", -0.25},
      {"5D", 5.0},
      {"-5D", -5.0},
      {"2.5D", 2.5},
      {"true", true},
      {"false", false},
      {"empty", Value()},
      {"\"5\"", "5"},
      {R"("\"\\\t\n\r")", "\"\\\t\n\r"},
      {"\"\"", ""},
      {"\"a\xFF\"", "a\xFF"},
      {"[]", Elements({})},
      {R"([1,0,"x"])", Elements({Integer(1), Integer(0), "x"})},
      {R"( [1])", " [1]"},
      {R"([ 1 , "a,]" , b c , true ])", Elements({Integer(1), "a,]", "b c", true})},
      {R"(["1234",""*2,5L * 2,7*0])", Elements({"1234", "", "", Long(5), Long(5)})},
      {"[[1]*2,[]]", Elements({Elements({Integer(1)}), Elements({Integer(1)}), Elements({})})},
      {"", ""},
      {"text", "text"},
      {"-", "-"},
      {"+5", "+5"},
      {"L", "L"},
      {"-D", "-D"},
      {"5l", "5l"},
      {".5", ".5"},
      {"5.", "5."},
      {"1e5", "1e5"},
      {"1.2.3", "1.2.3"},
      {"2.5L", "2.5L"},
      {"0x10", "0x10"},
      {" 5", " 5"},
      {"True", "True"},
      {"a\"b", "a\"b"},
  };
  for (const auto& [text, value] : values) EXPECT_EQ(ParseValue(text), value) << text;
}

TEST(ValueText, TellsWhatMakesNoSense) {
  const std::pair<std::string, const char*> bad[] = {
      {"2147483648L", "does not fit a Long"},
      {"-2147483649L", "does not fit a Long"},
      {std::string(400, '9'), "does not fit a Double"},
      {"\"a", "no closing quote"},
      {"\"a\\", "no closing quote"},
      {R"("\a")", "no escape"},
      {"\"a\"b", "nothing may follow"},
      {"[1", "no closing bracket"},
      {"[1]2", "nothing may follow"},
      {"[1,]", "a value is missing"},
      {"[,1]", "a value is missing"},
      {"[\"a\"b]", "no closing bracket"},
      {"[1*]", "wants a number"},
      {"[1*x]", "wants a number"},
      {"[1*-1]", "wants a number"},
      {"[1*100001]", "wants a number"},
      {"[1*100000,1]", "more than 100000"},
      {"[[1*1000]*1000]", "more than 100000"},
      {std::string(100000, '['), "too deep"},
  };
  for (const auto& [text, what] : bad) {
    try {
      static_cast<void>(ParseValue(text));
      ADD_FAILURE() << text.substr(0, 20) << " is taken";
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(what), std::string::npos) << text.substr(0, 20) << ": " << error.what();
    }
  }
  EXPECT_EQ(ParseValue("[1*100000]").Get<Array>()->Elements().size(), 100000U);
}

}  // namespace
}  // namespace orlin::testing
