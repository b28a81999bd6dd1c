#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/security_levels.h"

#include "app/calls/arguments.h"
#include "app/calls/edit.h"
#include "app/calls/value_text.h"
#include "app/usage/usage_error.h"
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

using Words = std::vector<std::string>;

/// Takes a parameter of every kind; is never called.
std::vector<Value> Bind(const Words& named, const Words& levels = {}) {
  static const PublicClass anyClass("clsAny",
                                    {{"vAny", ParameterKind::Any, false, false},
                                     {"iNumber", ParameterKind::Integer, false, false},
                                     {"lNumber", ParameterKind::Long, false, false},
                                     {"bFlag", ParameterKind::Boolean, false, false},
                                     {"sText", ParameterKind::String, false, false},
                                     {"iOptional", ParameterKind::Integer, false, true},
                                     {"SecurityLevels", ParameterKind::Any, false, false}},
                                    [](std::vector<Value>&) { return 0; });
  return BindArguments(anyClass, named, levels);
}

TEST(Arguments, AreInTheOrderOfTheParameters) {
  const auto bound = [](const Words& named) {
    auto arguments = Bind(named);
    arguments.pop_back();  // the rights
    return arguments;
  };
  EXPECT_EQ(bound({}), (std::vector<Value>{Value(), Integer(0), 0, false, "", Value()}));
  EXPECT_EQ(bound({"sText=5", "vAny=a=b", "bFlag=1", "lNumber=2.5", "iNumber=\"7\"", "iOptional=3"}),
            (std::vector<Value>{"a=b", Integer(7), 2, true, "5", Integer(3)}));
}

TEST(Arguments, HoldTheCollectionOfRights) {
  const auto levels = std::dynamic_pointer_cast<SecurityLevels>(
      *Bind({}, {"AuthorityLevel=3,-2", "A=B=1,32767"}).back().Get<ObjectPtr>());
  ASSERT_EQ(levels->Count(), 2);
  EXPECT_EQ(levels->Item(1).Name, "AuthorityLevel");
  EXPECT_EQ(levels->Item(1).EditLevel, -2);
  EXPECT_EQ(levels->Item("A=B").ViewLevel, 1);
  EXPECT_EQ(levels->Item("A=B").EditLevel, 32767);
  EXPECT_EQ(Bind({"SecurityLevels=empty"}, {"A=1,1"}).back(), Value());
}

TEST(Arguments, TellWhatMakesNoSense) {
  const std::pair<Words, std::string> named[] = {
      {{"5"}, "an argument is NAME=VALUE, not 5"},
      {{"vany=5"},
       "clsAny has no parameter \"vany\" (did you mean vAny?): it takes vAny, iNumber, lNumber, bFlag, sText, "
       "iOptional and SecurityLevels"},
      {{"vAny=5", "vAny=5"}, "vAny is named twice"},
      {{"vAny=\"a"}, "vAny: the text has no closing quote"},
      {{"iNumber=\"x\""}, "iNumber: \"x\" is not a 16-bit integer"},
      {{"iNumber=70000"}, "iNumber: 70000 is not a 16-bit integer"},
      {{"lNumber=2147483648"}, "lNumber: 2147483648 is not a 32-bit integer"},
      {{"bFlag=yes"}, "bFlag: yes is not a boolean"},
      {{"sText=[1]"}, "sText: [1] is not a text"},
      {{"iOptional=[1]"}, "iOptional: [1] is not a 16-bit integer"}};
  for (const auto& [words, error] : named) {
    EXPECT_EQ(ErrorOf<UsageError>([&, &given = words] { return Bind(given); }), error);
  }
  const std::pair<Words, std::string> levels[] = {
      {{"A"}, " wants NAME=VIEW,EDIT, not A"},         {{"A=1"}, " wants NAME=VIEW,EDIT, not A=1"},
      {{"A,1=1"}, " wants NAME=VIEW,EDIT, not A,1=1"}, {{"A=1,x"}, " A: \"x\" is not a 16-bit integer"},
      {{"A=,1"}, " A: \"\" is not a 16-bit integer"},  {{"A=1,2,3"}, " A: \"2,3\" is not a 16-bit integer"},
      {{"A=1,1", "a=1,1"}, " a is there twice"}};
  for (const auto& [records, error] : levels) {
    EXPECT_EQ(ErrorOf<UsageError>([&, &given = records] { return Bind({}, given); }), "--level" + error);
  }
}

/// The trace of a call of a class that does what it is told.
std::string Trace(PublicClass::Call display, const std::string& script = {}, StandardPlatformOptions platform = {}) {
  const PublicClass called("clsAny", {{"vOne", ParameterKind::Any, true, false}, {"SecurityLevels"}},
                           std::move(display));
  std::ostringstream out;
  Run({called, {Value(), Value()}, ParseScript(script), false, std::move(platform)}, out);
  return out.str();
}

TEST(Run, TellsTheResultAndAllArgumentsButTheRights) {
  const std::pair<Value, std::string> values[] = {
      {Value(), R"("Empty","value":null)"},
      {70000, R"("Long","value":70000)"},
      {2.5, R"("Double","value":2.5)"},
      {true, R"("Boolean","value":true)"},
      {"a\"b\\c\n\x01", R"("String","value":"a\"b\\c\n\u0001")"},
      {"\u20AC\U0001F512a\xFF\xC3", "\"String\",\"value\":\"\u20AC\U0001F512a\uFFFD\uFFFD\""},
      {Array({Integer(1), "x", Array({Value()})}, 1),
       R"("Array","value":[1,"x",[null]],"types":["Integer","String","Array"],"lower":1)"},
      {std::make_shared<Object>(), R"("Object","value":null)"}};
  for (const auto& [value, told] : values) {
    for (const bool fails : {false, true}) {
      const auto trace = Trace([&, &held = value](auto& arguments) {
        arguments[0] = held;
        return fails ? throw Failure(380) : 7;
      });
      EXPECT_EQ(trace, std::string(R"({"event":"return","result":)") + (fails ? R"(null,"raised":380)" : "7") +
                           R"(,"arguments":{"vOne":{"type":)" + told + "}}}\n");
    }
  }
}

TEST(Run, LogsFaultsInTheTraceAndInTheFile) {
  const TemporaryFolder folder;
  StandardPlatformOptions platform;
  platform.FaultFile = folder.Path() / "faults";
  const auto fails = [](auto&) {
    auto log = std::dynamic_pointer_cast<FaultObjectComponent>(CreateObject("FaultObject.clsFaultObject"));
    log->Add({13, "", "", "frmAny", "Display()", 0});
    log->SetAddlText("more");
    log->MsgBox();
    log->LogError();
    return 13;
  };
  const auto trace = Trace(fails, "answer 1", platform);
  EXPECT_TRUE(trace.starts_with("{\"event\":\"message\"")) << trace;
  EXPECT_NE(
      trace.find(R"j({"event":"fault","number":13,"module":"frmAny","procedure":"Display()","additional":"more",)j"
                 R"("shown":true})"
                 "\n{\"event\":\"return\",\"result\":13,"),
      std::string::npos)
      << trace;
  EXPECT_NE(ContentOf(*platform.FaultFile).find("number=13"), std::string::npos);
}

}  // namespace
}  // namespace orlin::testing
