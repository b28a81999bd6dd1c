#include "faultlog/fault_log.h"

#include "support/frame_fixture.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

class FaultLogTest : public FolderTest {
 protected:
  /// A fault object as the library sets it up and fills it.
  FaultLog Filled(const std::string& additionalText) {
    FaultLog log(Options);
    log.SetAppName("Tolmar");
    log.SetAppVersion("1.2.3");
    log.SetAppErrorFile("Tolmar.err");
    log.Add({13, "05/01/25", "12:00:00", "modGeneral", "GetLocalText()", 4});
    log.SetAddlText(additionalText);
    return log;
  }

  std::shared_ptr<OperatorHost> Host = std::make_shared<OperatorHost>();
  std::vector<LoggedFault> Logged;
  FaultLogOptions Options{Host, std::make_shared<FaultFile>(),
                          [this](const LoggedFault& fault) { Logged.push_back(fault); }};
};

TEST_F(FaultLogTest, AppendsOneLineForEachRecordToTheFileOfTheLibraryOrOfItsOptions) {
  const std::string line =
      "time=05/01/25 12:00:00\tapp=Tolmar "
      "1.2.3\tlevel=4\tnumber=13\tmodule=modGeneral\tprocedure=GetLocalText()\ttext=";
  Filled("").LogError();
  Filled("a\tb\r\nc\\d\x1B\x7F\xC3\xA4").LogError();
  const auto both = line + "\n" + line + "a\\tb\\r\\nc\\\\d\\x1B\\x7F\xC3\xA4" + "\n";
  EXPECT_EQ(ContentOf("Tolmar.err"), both);
  Options.File = std::make_shared<FaultFile>("faults.log");
  Filled("x").LogError();
  EXPECT_EQ(ContentOf("faults.log"), line + "x\n");
  EXPECT_EQ(ContentOf("Tolmar.err"), both);
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

TEST_F(FaultLogTest, ShowsTheRecordAndTellsWhatWasLogged) {
  Host->AnswersAll = true;
  auto log = Filled("It went wrong.");
  log.LogError();
  log.MsgBox();
  log.LogError();
  log.Add({6, "", "", "m", "p", 0});
  log.LogError();
  log.MsgBox();
  Options.Host = nullptr;
  auto unseen = Filled("x");
  unseen.MsgBox();
  unseen.LogError();
  using Told = std::tuple<int, std::string, std::string, std::string, bool>;
  const Told expected[] = {{13, "modGeneral", "GetLocalText()", "It went wrong.", false},
                           {13, "modGeneral", "GetLocalText()", "It went wrong.", true},
                           {6, "m", "p", "", false},
                           {13, "modGeneral", "GetLocalText()", "x", false}};
  ASSERT_EQ(Logged.size(), std::size(expected));
  for (std::size_t i = 0; i < Logged.size(); ++i) {
    const auto& [number, module, procedure, text, shown] = Logged[i];
    EXPECT_EQ(Told(number, module, procedure, text, shown), expected[i]);
  }
  ASSERT_EQ(Host->Messages.size(), 2U);
  const auto& [text, flags, title] = Host->Messages[0];
  EXPECT_EQ(text, "It went wrong.\n\nFailure 13 in modGeneral.GetLocalText()");
  EXPECT_EQ(flags, 48);
  EXPECT_EQ(title, "Tolmar");
  EXPECT_EQ(Host->Messages[1].Text, "Failure 6 in m.p");
}

TEST_F(FaultLogTest, ForgetsARecordThatIsCleared) {
  auto log = Filled("x");
  log.Clear();
  log.SetAddlText("y");
  log.MsgBox();
  log.LogError();
  EXPECT_TRUE(Logged.empty());
  EXPECT_FALSE(std::filesystem::exists("Tolmar.err"));
}

}  // namespace
}  // namespace orlin::testing
