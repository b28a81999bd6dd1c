#include "frame/security_levels.h"

#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

class SecurityLevelsTest : public FrameTest {
 protected:
  void Apply(std::vector<SecurityLevel> records) {
    SecurityLevels levels;
    for (auto& record : records) levels.Add(record.Name, record.ViewLevel, record.EditLevel);
    ApplySecurityLevels(levels, {{"Part", {lblPart, txtPart}}});
  }

  Dialog Form{"frmTest", "", {}};
  Label lblPart{Form, "lblPart"};
  TextBox txtPart{Form, "txtPart"};
  TextBox txtOther{Form, "txtOther"};
};

TEST_F(SecurityLevelsTest, HideAndDisableIndependently) {
  const struct {
    SecurityLevel Authority;
    bool Visible;
    bool Enabled;
  } cases[] = {{{"AuthorityLevel", 2, 3}, true, true},
               {{"AuthorityLevel", 1, 3}, false, true},
               {{"AuthorityLevel", 2, 2}, true, false},
               {{"AuthorityLevel", 1, 2}, false, false}};
  for (const auto& one : cases) {
    lblPart.SetVisible(true), txtPart.SetVisible(true), lblPart.SetEnabled(true), txtPart.SetEnabled(true);
    Apply({{"Part", 2, 3}, one.Authority, {"Unknown", 9, 9}});
    EXPECT_EQ(txtPart.Visible(), one.Visible);
    EXPECT_EQ(txtPart.Enabled(), one.Enabled);
    EXPECT_EQ(lblPart.Visible(), one.Visible);
    EXPECT_TRUE(txtOther.Visible() && txtOther.Enabled());
  }
}

TEST_F(SecurityLevelsTest, MatchNamesExactly) {
  Apply({{"AuthorityLevel", 0, 0}, {"part", 9, 9}});
  EXPECT_TRUE(txtPart.WithinReach());
}

TEST_F(SecurityLevelsTest, NeedTheAuthorityOnlyWhereThereIsARecord) {
  EXPECT_EQ(FailureOf([&] { Apply({}); }), 0);
  EXPECT_EQ(FailureOf([&] { Apply({{"Unknown", 0, 0}}); }), failures::InvalidCall);
}

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
