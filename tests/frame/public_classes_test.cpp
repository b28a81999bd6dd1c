#include "OrlinCustomDialogs/public_classes.h"

#include "OrlinCustomDialogs/exports.h"

#include "frame/classes/public_class_of.h"
#include "frame/dialog/rights.h"
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
  std::string told;
  for (const auto& one : Sample().Parameters()) {
    told.append(one.Name).append(one.Changes ? "& " : " ").append(KindName(one.Kind)).append(", ");
  }
  EXPECT_EQ(told, "shown Any, number& Integer, text& Any, flag Boolean, word String, ");
}

TEST(PublicClass, ConvertsCallsAndWritesBackOrRefusesBeforeAnythingIsDone) {
  const std::int16_t one = 1;
  const std::tuple<std::vector<Value>, int, std::vector<Value>> cases[] = {
      {{"x", "41", Value(), one, 7}, 0, {"x", std::int16_t{42}, "7!", true, "7"}},
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

  EXPECT_EQ(FailureOf([&] { return own.ArgumentsFrom({}); }), failures::InvalidCall);
  EXPECT_EQ(FailureOf([&] { return own.Confirmed(2, {}); }), failures::InvalidCall);
  EXPECT_EQ(FailureOf([&] { return own.StoredFrom(stored, {}); }), failures::InvalidCall);
}

class LateBinding : public FrameTest {
 protected:
  LateBinding() { DllRegisterServer(); }
  ~LateBinding() override {
    EXPECT_EQ(DllCanUnloadNow(), 0);
    DllUnregisterServer();
  }
  static std::shared_ptr<LateBoundObject> Make(const std::string& name) {
    return std::dynamic_pointer_cast<LateBoundObject>(CreateObject("OrlinCustomDialogs." + name));
  }
  static Value Call(LateBoundObject& object, std::string_view operation, std::vector<Value> arguments = {}) {
    return object.Invoke(operation, arguments);
  }
  static LateBoundObject& In(const Value& value) {
    return dynamic_cast<LateBoundObject&>(*value.Get<ObjectPtr>()->get());
  }
};

TEST_F(LateBinding, PropertiesConvertWhatTheyAreSetTo) {
  const Value one = std::int16_t{1};
  const std::tuple<const char*, std::vector<const char*>, Value, Value, int> cases[] = {
      {"clsListItem", {"Key", "Item", "description"}, 1.5, "1.5", 0},
      {"clsListItem", {"COLOR"}, "7", 7, 0},
      {"clsListItem", {"Hidden", "Dynamic"}, "True", true, 0},
      {"clsListItem", {"i", "S", "p"}, true, std::int16_t{-1}, 0},
      {"clsListItem", {"Value"}, Array({"any"}), Array({"any"}), 0},
      {"clsRange", {"Key"}, 1, "1", 0},
      {"clsRange", {"Min", "Max"}, 2.5, 2.5, 0},
      {"clsRange", {"Color"}, one, 1, 0},
      {"clsListItems", {"iDisplayValueSelection"}, "1", one, 0},
      {"clsErrorMessageNova", {"ParameterName", "AllowedCharacters"}, 1, "1", 0},
      {"clsErrorMessageNova", {"AreaNo"}, 1, one, 0},
      {"clsErrorMessageNova", {"DefaultVal", "SIARangeMin", "SIARangeMax", "DesiredVal", "AllowedString"}, 1, 1, 0},
      {"clsListItem", {"Hidden", "Color"}, "maybe", Value(), failures::TypeMismatch},
      {"clsErrorMessageNova", {"AreaNo"}, 40000, Value(), failures::Overflow},
      {"clsListItems", {"Count", "Item"}, 1, Value(), failures::InvalidCall},
      {"clsZoneFunctionsWillow", {"ZoneNum"}, 1, Value(), failures::InvalidCall}};
  for (const auto& [name, properties, given, held, failure] : cases) {
    for (const auto* property : properties) {
      const auto object = Make(name);
      EXPECT_EQ(FailureOf([&, &value = given] { object->Set(property, value); }), failure) << name << '.' << property;
      if (failure != 0) continue;
      EXPECT_EQ(object->Get(property), held) << name << '.' << property;
    }
  }
}

TEST_F(LateBinding, ListsAreWorkedByName) {
  for (const bool choices : {true, false}) {
    const auto make = [&] { return Make(choices ? "clsListItems" : "clsRanges"); };
    const auto list = make(), copy = make(), read = make(), element = Make(choices ? "clsListItem" : "clsRange");
    const auto added = Call(*list, "add", {"a", 1, 2}), other = Call(*list, "Add", {"b"});
    const auto* const second = choices ? "Value" : "Max";
    EXPECT_EQ(In(added).Get(choices ? "Item" : "Min"), choices ? Value("1") : Value(1));
    EXPECT_EQ(In(added).Get(second), Value(2));
    EXPECT_EQ(In(other).Get(second), choices ? Value() : Value(std::int16_t{0}));
    EXPECT_EQ(list->Get("Count"), Value(2));

    const auto form = Call(*list, "Serialize"), fields = Call(In(added), "Serialize");
    const struct {
      LateBoundObject& Of;
      const char* Operation;
      std::vector<Value> Arguments;
      Value Result;
      int Failure = 0;
    } calls[] = {{*list, "Item", {"A"}, added},
                 {*list, "Item", {3}, ObjectPtr()},
                 {*list, "NewEnum", {}, Array({added, other}, 1)},
                 {*copy, "Copy", {list}, Value()},
                 {*copy, "Serialize", {}, form},
                 {*read, "DeSerialize", {form}, Value()},
                 {*read, "Serialize", {}, form},
                 {*element, "DeSerialize", {fields}, 0},
                 {*element, "Copy", {added}, Value(), choices ? 0 : failures::InvalidCall},
                 {*element, "Copy", {"no object"}, Value(), choices ? 0 : failures::InvalidCall},
                 {*list, "Add", {"B"}, ObjectPtr(), choices ? failures::KeyExists : 0},
                 {*list, "Remove", {"a"}, Value()},
                 {*list, "Item", {"a"}, ObjectPtr()},
                 {*list, "Add", {}, Value(), failures::InvalidCall},
                 {*list, "Item", {1, 2}, Value(), failures::InvalidCall},
                 {*list, "Clear", {}, Value(), failures::InvalidCall},
                 {*list, "Copy", {1}, Value(), failures::ObjectRequired},
                 {*list, "Copy", {added}, Value(), failures::TypeMismatch}};
    for (const auto& [of, operation, arguments, result, failure] : calls) {
      Value returned = result;
      EXPECT_EQ(
          FailureOf([&, &object = of, &what = operation, &given = arguments] { returned = Call(object, what, given); }),
          failure)
          << operation;
      EXPECT_EQ(returned, result) << operation;
    }
    EXPECT_EQ(element->Get("Key"), Value(choices ? "a" : ""));
  }
  std::vector<Value> review{Array(), Array(), std::make_shared<SecurityLevels>(), 49, false};
  EXPECT_EQ(Make("clsErrorMessageNova")->Invoke("Display", review), Value(0));
}

TEST_F(FrameTest, PublicClassesAreFoundByNameAndCreatedOnceRegistered) {
  const std::string name = "OrlinCustomDialogs.clsZoneFunctionsWillow";
  EXPECT_NE(FindPublicClass(name), nullptr);
  EXPECT_EQ(FindPublicClass(name), FindPublicClass("clsZoneFunctionsWillow"));
  EXPECT_EQ(FindPublicClass("clsUnknown"), nullptr);
  const auto create = [&] { return std::dynamic_pointer_cast<LateBoundObject>(CreateObject(name)); };
  EXPECT_EQ(FailureOf(create), failures::CannotCreateObject);
  DllRegisterServer();
  auto object = create();
  EXPECT_EQ(DllCanUnloadNow(), 1);
  std::vector<Value> arguments{std::int16_t{5}, "4000"};
  EXPECT_EQ(object->Invoke("Display", arguments), Value(1));
  EXPECT_EQ(FailureOf([&] { object->Invoke("Hide", arguments); }), failures::InvalidCall);
  object.reset();
  EXPECT_EQ(DllCanUnloadNow(), 0);
  DllUnregisterServer();
  EXPECT_EQ(FailureOf(create), failures::CannotCreateObject);
}

}  // namespace
}  // namespace orlin::testing
