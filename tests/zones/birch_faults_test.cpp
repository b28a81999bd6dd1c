#include "OrlinCustomDialogs/zones.h"

#include "faultlog/fault_log.h"
#include "support/broken_catalogue.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

using BirchFaults = BrokenCatalogueTest;

/// A fault log that fails when it is first used: so a text that is missing fails the search that asked for it.
struct FailingOnce : FaultLog {
  using FaultLog::FaultLog;
  void LogError() override {
    if (std::exchange(Fails, false)) throw Failure(75);
    FaultLog::LogError();
  }
  void Clear() override { ADD_FAILURE() << "cleared"; }
  bool Fails = true;
};

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

  FaultLogOptions options;
  options.Host = Host;
  options.File = std::make_shared<FaultFile>(Folder.Path() / "faults");
  options.OnLogged = [&](const LoggedFault& fault) {
    Faults = {fault.Module, fault.Procedure, std::to_string(fault.Number), fault.AdditionalText};
  };
  Services().FaultObject = std::make_shared<FailingOnce>(options);
  Host->Operate = [](shown::Dialog& dialog) { EXPECT_FALSE(dialog.Find("ChkAlarmVerified")->Enabled()); };
  EXPECT_EQ(DisplayDescription(), 1);
  EXPECT_EQ(Faults, (Log{"frmZoneFuncDescBirch", "GetFunctionDescKeyFob", "75", ""}));
}

}  // namespace
}  // namespace orlin::testing
