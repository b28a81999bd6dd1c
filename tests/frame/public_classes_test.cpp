#include "OrlinCustomDialogs/public_classes.h"

#include "OrlinCustomDialogs/exports.h"

#include "frame/public_class_of.h"
#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

/// A public class with an argument of each kind.
struct clsSample {
  std::int32_t Display(const Value& shown, std::int16_t& number, Value& text, bool flag, std::string word) {
    number = static_cast<std::int16_t>(number + 1);
    text = word + (flag ? "!" : "?");
    if (shown == Value("fail")) throw Failure(11);
    return 0;
  }
};

const PublicClass& Sample() {
  static const auto sample =
      PublicClassOf("clsSample", &clsSample::Display, {"shown", "number", "text", "flag", "word"});
  return sample;
}

TEST(PublicClass, DescribesItsParameters) {
  const auto& parameters = Sample().Parameters();
  std::string described;
  for (const auto& one : parameters) described += one.Name + (one.Changes ? "& " : " ");
  EXPECT_EQ(described, "shown number& text& flag word ");
  EXPECT_EQ(parameters.at(1).Kind, ParameterKind::Integer);
  EXPECT_EQ(parameters.at(3).Kind, ParameterKind::Boolean);
  EXPECT_EQ(parameters.at(4).Kind, ParameterKind::String);
}

TEST(PublicClass, ConvertsCallsAndWritesBackOrRefusesBeforeAnythingIsDone) {
  const std::int16_t one = 1;
  const struct {
    std::vector<Value> Given;
    int Failure;
    std::vector<Value> After;
  } cases[] = {{{"x", "41", Value(), one, 7}, 0, {"x", std::int16_t{42}, "7!", true, "7"}},
               {{"fail", one, Value(), false, "w"}, 11, {"fail", std::int16_t{2}, "w?", false, "w"}},
               {{"x", "no number", "kept", false, ""}, failures::TypeMismatch, {"x", "no number", "kept", false, ""}},
               {{"x"}, failures::InvalidCall, {"x"}}};
  for (auto [arguments, failure, after] : cases) {
    EXPECT_EQ(FailureOf([&, &given = arguments] { Sample().Display(given); }), failure);
    EXPECT_EQ(arguments, after);
  }
}

TEST(PublicClass, KeepsStoredValuesByTheUsualRuleOrItsOwn) {
  const std::int16_t one = 1;
  const std::vector<Value> stored{"x", one, "old", false, "w"};
  const std::vector<Value> returned{"y", std::int16_t{2}, "new", true, "v"};
  EXPECT_EQ(Sample().ArgumentsFrom(stored), stored);
  EXPECT_EQ(Sample().StoredFrom(stored, returned), (std::vector<Value>{"x", std::int16_t{2}, "new", false, "w"}));
  EXPECT_TRUE(Sample().Confirmed(0, returned));
  EXPECT_FALSE(Sample().Confirmed(1, returned));

  const auto own = PublicClassOf(
      "clsSample", &clsSample::Display, {"shown", "number", "text", "flag", "word"},
      {.Confirmed = [](auto result, const auto& values) { return result == 2 && values[2] == Value("new"); },
       .ToArguments = [](auto& values) { values[2] = "in"; },
       .Update = [](auto& values, const auto& came) { values[4] = came[2]; }});
  EXPECT_EQ(own.ArgumentsFrom(stored).at(2), "in");
  EXPECT_TRUE(own.Confirmed(2, returned));
  EXPECT_FALSE(own.Confirmed(2, stored));
  EXPECT_EQ(own.StoredFrom(stored, returned), (std::vector<Value>{"x", one, "old", false, "new"}));

  EXPECT_EQ(FailureOf([&] { static_cast<void>(own.ArgumentsFrom({})); }), failures::InvalidCall);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(own.Confirmed(2, {})); }), failures::InvalidCall);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(own.StoredFrom(stored, {})); }), failures::InvalidCall);
}

TEST_F(FrameTest, PublicClassesAreFoundByNameAndCreatedOnceRegistered) {
  EXPECT_NE(FindPublicClass("clsZoneFunctionsBirch"), nullptr);
  EXPECT_EQ(FindPublicClass("OrlinCustomDialogs.clsZoneFunctionsBirch"), FindPublicClass("clsZoneFunctionsBirch"));
  EXPECT_EQ(FindPublicClass("clsUnknown"), nullptr);

  const char* name = "OrlinCustomDialogs.clsZoneFunctionsWillow";
  EXPECT_EQ(FailureOf([&] { static_cast<void>(CreateObject(name)); }), failures::CannotCreateObject);
  DllRegisterServer();
  {
    const auto object = std::dynamic_pointer_cast<LateBoundObject>(CreateObject(name));
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(DllCanUnloadNow(), 1);
    std::vector<Value> arguments{std::int16_t{5}, "4000"};
    EXPECT_EQ(object->Invoke("Display", arguments), Value(1));
    EXPECT_EQ(FailureOf([&] { object->Invoke("Hide", arguments); }), failures::InvalidCall);
  }
  EXPECT_EQ(DllCanUnloadNow(), 0);
  DllUnregisterServer();
  EXPECT_EQ(FailureOf([&] { static_cast<void>(CreateObject(name)); }), failures::CannotCreateObject);
}

}  // namespace
}  // namespace orlin::testing
