#include "app/calls/arguments.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/security_levels.h"

#include "app/usage/usage_error.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

/// Takes a parameter of every kind; is never called.
const PublicClass& AnyClass() {
  static const PublicClass made("clsAny",
                                {{"vAny", ParameterKind::Any, false, false},
                                 {"iNumber", ParameterKind::Integer, false, false},
                                 {"lNumber", ParameterKind::Long, false, false},
                                 {"bFlag", ParameterKind::Boolean, false, false},
                                 {"sText", ParameterKind::String, false, false},
                                 {"iOptional", ParameterKind::Integer, false, true},
                                 {"SecurityLevels", ParameterKind::Any, false, false}},
                                [](std::vector<Value>&) { return 0; });
  return made;
}

std::vector<Value> Bind(const std::vector<std::string>& named) {
  auto arguments = BindArguments(AnyClass(), named, {});
  arguments.pop_back();
  return arguments;
}

std::string ErrorIn(const std::vector<std::string>& named, const std::vector<std::string>& levels = {}) {
  try {
    static_cast<void>(BindArguments(AnyClass(), named, levels));
  } catch (const UsageError& error) {
    return error.what();
  }
  return {};
}

TEST(Arguments, AreInTheOrderOfTheParameters) {
  EXPECT_EQ(Bind({}), (std::vector<Value>{Value(), Integer(0), Value(std::int32_t{0}), false, "", Value()}));
  EXPECT_EQ(Bind({"sText=5", "vAny=a=b", "bFlag=1", "lNumber=2.5", "iNumber=\"7\"", "iOptional=3"}),
            (std::vector<Value>{"a=b", Integer(7), Value(std::int32_t{2}), true, "5", Integer(3)}));
}

TEST(Arguments, HoldTheCollectionOfRights) {
  const auto arguments = BindArguments(AnyClass(), {}, {"AuthorityLevel=3,-2", "A=B=1,32767"});
  const auto levels = std::dynamic_pointer_cast<SecurityLevels>(*arguments.back().Get<ObjectPtr>());
  ASSERT_NE(levels, nullptr);
  ASSERT_EQ(levels->Count(), 2);
  EXPECT_EQ(levels->Item(1).Name, "AuthorityLevel");
  EXPECT_EQ(levels->Item(1).EditLevel, -2);
  EXPECT_EQ(levels->Item("A=B").ViewLevel, 1);
  EXPECT_EQ(levels->Item("A=B").EditLevel, 32767);
  EXPECT_EQ(BindArguments(AnyClass(), {"SecurityLevels=empty"}, {"A=1,1"}).back(), Value());
}

TEST(Arguments, TellWhatMakesNoSense) {
  const std::pair<std::vector<std::string>, std::string> named[] = {
      {{"5"}, "an argument is NAME=VALUE, not 5"},
      {{"vany=5"},
       "clsAny has no parameter \"vany\" (did you mean vAny?): it takes vAny, iNumber, lNumber, bFlag, sText, "
       "iOptional "
       "and SecurityLevels"},
      {{"vAny=5", "vAny=5"}, "vAny is named twice"},
      {{"vAny=\"a"}, "vAny: the text has no closing quote"},
      {{"iNumber=\"x\""}, "iNumber: \"x\" is not a 16-bit integer"},
      {{"iNumber=70000"}, "iNumber: 70000 is not a 16-bit integer"},
      {{"iNumber="}, "iNumber:  is not a 16-bit integer"},
      {{"lNumber=2147483648"}, "lNumber: 2147483648 is not a 32-bit integer"},
      {{"bFlag=yes"}, "bFlag: yes is not a boolean"},
      {{"sText=[1]"}, "sText: [1] is not a text"},
      {{"iOptional=[1]"}, "iOptional: [1] is not a 16-bit integer"},
  };
  for (const auto& [arguments, error] : named) EXPECT_EQ(ErrorIn(arguments), error);
  const std::pair<std::vector<std::string>, std::string> levels[] = {
      {{"A"}, "--level wants NAME=VIEW,EDIT, not A"},
      {{"A=1"}, "--level wants NAME=VIEW,EDIT, not A=1"},
      {{"A,1=1"}, "--level wants NAME=VIEW,EDIT, not A,1=1"},
      {{"A=1,x"}, "--level A: \"x\" is not a 16-bit integer"},
      {{"A=,1"}, "--level A: \"\" is not a 16-bit integer"},
      {{"A=1,2,3"}, "--level A: \"2,3\" is not a 16-bit integer"},
      {{"A=1,40000"}, "--level A: \"40000\" is not a 16-bit integer"},
      {{"A=1,1", "a=1,1"}, "--level a is there twice"},
  };
  for (const auto& [records, error] : levels) EXPECT_EQ(ErrorIn({}, records), error);
}

}  // namespace
}  // namespace orlin::testing
