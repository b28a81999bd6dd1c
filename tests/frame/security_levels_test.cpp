#include "frame/security_levels.h"

#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

TEST(SecurityLevelsCollection, IsOrderedAndKeyedWithoutRegardToCase) {
  SecurityLevels levels;
  levels.Add("Date", 1, 2);
  levels.Add("AuthorityLevel", 1, 1);
  EXPECT_EQ(levels.Count(), 2);
  EXPECT_EQ(levels.Item(1).Name, "Date");
  EXPECT_EQ(levels.Item("DATE").EditLevel, 2);
  EXPECT_TRUE(MayView(levels, "Date"));
  EXPECT_FALSE(MayEdit(levels, "Date"));
  EXPECT_EQ(FailureOf([&] { levels.Add("date", 0, 0); }), failures::KeyExists);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(levels.Item(0)); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(levels.Item(3)); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(levels.Item("x")); }), failures::InvalidCall);
}

TEST(SecurityLevelsArgument, HasToBeACollection) {
  const auto failureOf = [](const Value& value) {
    return FailureOf([&] { static_cast<void>(AsSecurityLevels(value)); });
  };
  EXPECT_EQ(failureOf(std::make_shared<SecurityLevels>()), 0);
  EXPECT_EQ(failureOf(Value()), failures::ObjectRequired);
  EXPECT_EQ(failureOf("x"), failures::ObjectRequired);
  EXPECT_EQ(failureOf(ObjectPtr()), failures::NoObject);
  EXPECT_EQ(failureOf(std::make_shared<Object>()), failures::TypeMismatch);
}

}  // namespace
}  // namespace orlin::testing
