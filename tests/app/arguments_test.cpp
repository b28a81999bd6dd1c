#include "app/calls/arguments.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/security_levels.h"

#include "app/command_line/usage_error.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

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

}  // namespace
}  // namespace orlin::testing
