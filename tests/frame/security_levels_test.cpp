#include "frame/dialog/rights.h"
#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

TEST(SecurityLevelsCollection, IsOrderedAndKeyedWithoutRegardToCase) {
  SecurityLevels levels;
  levels.Add("Date", 1, 2), levels.Add("AuthorityLevel", 1, 1);
  EXPECT_EQ(levels.Count(), 2);
  EXPECT_EQ(levels.Item(1).Name, "Date");
  EXPECT_EQ(levels.Item("DATE").EditLevel, 2);
  EXPECT_TRUE(MayView(levels, "Date") && !MayEdit(levels, "Date"));
  EXPECT_EQ(FailureOf([&] { levels.Add("date", 0, 0); }), failures::KeyExists);
  for (const int index : {0, 3})
    EXPECT_EQ(FailureOf([&] { return levels.Item(index); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { return levels.Item("x"); }), failures::InvalidCall);
}

TEST(SecurityLevelsArgument, HasToBeACollection) {
  const std::pair<Value, int> cases[] = {{std::make_shared<SecurityLevels>(), 0},
                                         {Value(), failures::ObjectRequired},
                                         {"x", failures::ObjectRequired},
                                         {ObjectPtr(), failures::NoObject},
                                         {std::make_shared<Object>(), failures::TypeMismatch}};
  for (const auto& [value, failure] : cases)
    EXPECT_EQ(FailureOf([&level = value] { return AsSecurityLevels(level); }), failure);
}

}  // namespace
}  // namespace orlin::testing
