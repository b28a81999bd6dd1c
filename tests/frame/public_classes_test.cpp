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
  ASSERT_EQ(parameters.size(), 5U);
  EXPECT_EQ(parameters[1].Name, "number");
  EXPECT_EQ(parameters[1].Kind, ParameterKind::Integer);
  EXPECT_TRUE(parameters[1].Changes);
  EXPECT_FALSE(parameters[0].Changes);
  EXPECT_EQ(parameters[3].Kind, ParameterKind::Boolean);
  EXPECT_EQ(parameters[4].Kind, ParameterKind::String);
}

TEST(PublicClass, ConvertsCallsAndWritesBack) {
  std::vector<Value> arguments{"x", "41", Value(), std::int16_t{1}, 7};
  EXPECT_EQ(Sample().Display(arguments), 0);
  EXPECT_EQ(arguments[1], Value(std::int16_t{42}));
  EXPECT_EQ(arguments[2], Value("7!"));
  std::vector<Value> failing{"fail", std::int16_t{1}, Value(), false, "w"};
  EXPECT_EQ(FailureOf([&] { Sample().Display(failing); }), 11);
  EXPECT_EQ(failing[2], Value("w?"));
}

TEST(PublicClass, RefusesArgumentsBeforeAnythingIsDone) {
  std::vector<Value> bad{"x", "no number", "kept", false, ""};
  EXPECT_EQ(FailureOf([&] { Sample().Display(bad); }), failures::TypeMismatch);
  EXPECT_EQ(bad[2], Value("kept"));
  std::vector<Value> few{"x"};
  EXPECT_EQ(FailureOf([&] { Sample().Display(few); }), failures::InvalidCall);
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
