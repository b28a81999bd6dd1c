#include "OrlinCustomDialogs/zones.h"

#include "support/broken_catalogue.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

using BirchFaults = BrokenCatalogueTest;

std::int32_t DisplayDescription() {
  Value descriptions = Array({"", Text(1724)});
  Value function = Integer(1);
  std::int16_t verify = 0;
  return clsZoneFuncDescBirch().Display("", descriptions, function, verify, std::make_shared<SecurityLevels>());
}

TEST_F(BirchFaults, FailureOfTheSearchForATypeIsLoggedAndFindsNone) {
  FailsFor = 1725;
  EXPECT_EQ(DisplayDescription(), failures::NoObject) << "there is no fault object";
  EXPECT_TRUE(Host->Happened.empty());

  Services().FaultObject = Create<FaultObjectComponent>("FaultObject.clsFaultObject");
  Host->Operate = [](shown::Dialog& dialog) { EXPECT_FALSE(dialog.Find("ChkAlarmVerified")->Enabled()); };
  EXPECT_EQ(DisplayDescription(), 1);
  EXPECT_EQ(Faults, Log{"frmZoneFuncDescBirch GetFunctionDescKeyFob 75"});
}

}  // namespace
}  // namespace orlin::testing
