#include "faultlog/fault_log.h"

#include <tuple>

#include "platform/platform_fixture.h"

namespace orlin::testing {
namespace {

class FaultLogTest : public FolderTest {
 protected:
  /// A fault object as the library sets it up and fills it.
  FaultLog Filled(const std::string& additionalText) {
    FaultLog log(Options);
    log.SetAppName("Tolmar");
    log.SetAppVersion("1.2.3");
    log.SetWarningLevel(4);
    log.SetAppErrorFile("Tolmar.err");
    log.Add({13, "05/01/25", "12:00:00", "modGeneral", "GetLocalText()", 4});
    log.SetAddlText(additionalText);
    return log;
  }

  std::shared_ptr<MessageHost> Host = std::make_shared<MessageHost>();
  std::vector<LoggedFault> Logged;
  FaultLogOptions Options{Host, std::make_shared<FaultFile>(),
                          [this](const LoggedFault& fault) { Logged.push_back(fault); }};
};

constexpr const char* kLine =
    "time=05/01/25 12:00:00\tapp=Tolmar 1.2.3\tlevel=4\tnumber=13\tmodule=modGeneral\tprocedure=GetLocalText()\ttext=";

TEST_F(FaultLogTest, AppendsOneLineForEachRecord) {
  Filled("").LogError();
  Filled("a\tb\r\nc\\d\x1B\x7F\xC3\xA4").LogError();
  EXPECT_EQ(Read("Tolmar.err"), std::string(kLine) + "\n" + kLine + "a\\tb\\r\\nc\\\\d\\x1B\\x7F\xC3\xA4" + "\n");
}

TEST_F(FaultLogTest, WritesToTheFileOfItsOptions) {
  Options.File = std::make_shared<FaultFile>("faults.log");
  Filled("x").LogError();
  EXPECT_EQ(Read("faults.log"), std::string(kLine) + "x\n");
  EXPECT_FALSE(std::filesystem::exists("Tolmar.err"));
}

TEST_F(FaultLogTest, WarnsOnceWhereTheFileCannotBeWritten) {
  Options.File = std::make_shared<FaultFile>("missing/faults.log");
  ::testing::internal::CaptureStderr();
  Filled("x").LogError();
  Filled("y").LogError();
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "missing/faults.log cannot be written, so that faults go unrecorded: No such file or directory\n");
  EXPECT_EQ(Logged.size(), 2U);
}

TEST_F(FaultLogTest, ShowsTheRecordAsAWarning) {
  Filled("It went wrong.").MsgBox();
  Filled("").MsgBox();
  ASSERT_EQ(Host->Messages.size(), 2U);
  EXPECT_EQ(Host->Messages[0].Text, "It went wrong.\n\nFailure 13 in modGeneral.GetLocalText()");
  EXPECT_EQ(Host->Messages[0].Flags, 48);
  EXPECT_EQ(Host->Messages[0].Title, "Tolmar");
  EXPECT_EQ(Host->Messages[1].Text, "Failure 13 in modGeneral.GetLocalText()");
}

TEST_F(FaultLogTest, TellsWhatWasLoggedAndWhetherItWasShown) {
  auto log = Filled("why");
  log.LogError();
  log.MsgBox();
  log.LogError();
  ASSERT_EQ(Logged.size(), 2U);
  const auto& [number, module, procedure, additionalText, shown] = Logged[0];
  EXPECT_EQ(std::tie(number, module, procedure, additionalText, shown),
            std::tuple(13, "modGeneral", "GetLocalText()", "why", false));
  EXPECT_TRUE(Logged[1].Shown);

  log.Add({6, "", "", "m", "p", 0});
  log.LogError();
  EXPECT_EQ(Logged[2].Number, 6);
  EXPECT_EQ(Logged[2].AdditionalText, "");
  EXPECT_FALSE(Logged[2].Shown);

  Options.Host = nullptr;
  auto unseen = Filled("x");
  unseen.MsgBox();
  unseen.LogError();
  EXPECT_FALSE(Logged[3].Shown);
}

TEST_F(FaultLogTest, ForgetsARecordThatIsCleared) {
  auto log = Filled("x");
  log.Clear();
  log.SetAddlText("y");
  log.MsgBox();
  log.LogError();
  EXPECT_TRUE(Host->Messages.empty());
  EXPECT_TRUE(Logged.empty());
  EXPECT_FALSE(std::filesystem::exists("Tolmar.err"));
}

}  // namespace
}  // namespace orlin::testing
