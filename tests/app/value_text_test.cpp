#include "app/calls/value_text.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "app/calls/value_format.h"
#include "app/command_line/usage_error.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

Value Long(double number) { return static_cast<std::int32_t>(number); }
Value Elements(std::vector<Value> elements) { return Array(std::move(elements)); }

TEST(ValueText, ReadsEachKindAndIsWrittenSoThatItIsReadAgain) {
  using Kind = Value::Kind;
  const std::pair<Kind, std::vector<const char*>> numbers[] = {
      {Kind::Integer, {"5", "-5", "007", "32767", "-32768"}},
      {Kind::Long, {"32768", "-32769", "2147483647", "5L", "-5L"}},
      {Kind::Double, {"2147483648", "99999999999999999999", "2.5", "-0.25", "5D", "-5D", "2.5D"}}};
  const std::pair<std::string, Value> others[] = {
      {"true", true},
      {"false", false},
      {"empty", Value()},
      {"\"5\"", "5"},
      {R"("\"\\\t\n\r")", "\"\\\t\n\r"},
      {"\"a\xFF\"", "a\xFF"},
      {"[]", Elements({})},
      {R"([1,0,"x"])", Elements({Integer(1), Integer(0), "x"})},
      {R"([ 1 , "a,]" , b c , true ])", Elements({Integer(1), "a,]", "b c", true})},
      {R"(["1234",""*2,5L * 4,7*0])", Elements({"1234", "", "", Long(5), Long(5), Long(5), Long(5)})},
      {"[[1]*2,[]]", Elements({Elements({Integer(1)}), Elements({Integer(1)}), Elements({})})}};
  const auto expect = [](const std::string& text, const Value& value) {
    EXPECT_EQ(ParseValue(text), value) << text;
    EXPECT_EQ(ParseValue(FormatValue(value)), value) << FormatValue(value);
  };
  for (const auto& [kind, texts] : numbers) {
    for (const std::string text : texts) {
      const auto number = std::stod(text);
      expect(text, kind == Kind::Double ? Value(number)
                   : kind == Kind::Long ? Long(number)
                                        : Integer(static_cast<int>(number)));
    }
  }
  for (const auto& [text, value] : others) expect(text, value);
  for (const char* text : {"", "text", "-", "+5", "L", "-D", "5l", ".5", "5.", "1e5", "1.2.3", "2.5L", "0x10", " 5",
                           " [1]", "True", "a\"b"})
    expect(text, text);
  EXPECT_EQ(FormatValue(Array({"1234", "", "", "", ""})), R"(["1234",""*4])");
  EXPECT_THROW(static_cast<void>(FormatValue(Array({1}, 1))), UsageError);
}

TEST(ValueText, TellsWhatMakesNoSense) {
  const std::pair<const char*, std::vector<std::string>> bad[] = {
      {"does not fit a Long", {"2147483648L", "-2147483649L"}},
      {"does not fit a Double", {std::string(400, '9')}},
      {"no closing quote", {"\"a", "\"a\\"}},
      {"no escape", {R"("\a")"}},
      {"nothing may follow", {"\"a\"b", "[1]2"}},
      {"no closing bracket", {"[1", "[\"a\"b]"}},
      {"a value is missing", {"[1,]", "[,1]"}},
      {"wants a number", {"[1*]", "[1*x]", "[1*-1]", "[1*100001]"}},
      {"more than 100000", {"[1*100000,1]", "[[1*1000]*1000]"}},
      {"too deep", {std::string(100000, '[')}}};
  for (const auto& [what, texts] : bad) {
    for (const auto& text : texts) {
      const auto error = ErrorOf<UsageError>([&] { return ParseValue(text); });
      EXPECT_NE(error.find(what), std::string::npos) << text.substr(0, 20) << ": " << error;
    }
  }
  EXPECT_EQ(ParseValue("[1*100000]").Get<Array>()->Elements().size(), 100000U);
}

}  // namespace
}  // namespace orlin::testing
