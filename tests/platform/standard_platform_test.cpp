#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "OrlinCustomDialogs/zones.h"

#include "platform/platform_fixture.h"

namespace orlin::testing {
namespace {

class StandardPlatformTest : public FolderTest {
 protected:
  StandardPlatformTest() { Options.Host = Host; }
  ~StandardPlatformTest() override { UsePlatform({}); }

  std::string Error() {
    return ErrorOf([this] { UsePlatform(StandardPlatform(Options)); });
  }

  std::shared_ptr<MessageHost> Host = std::make_shared<MessageHost>();
  StandardPlatformOptions Options;
};

TEST_F(StandardPlatformTest, GivesTheLibraryEveryComponent) {
  UsePlatform(StandardPlatform(Options));
  EXPECT_NE(std::dynamic_pointer_cast<LocalTextComponent>(CreateObject("LocalText.clsLocalText")), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<FaultObjectComponent>(CreateObject("FaultObject.clsFaultObject")), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<DListComponent>(CreateObject("storeObj.clsDList")), nullptr);

  const auto platform = StandardPlatform(Options);
  EXPECT_EQ(platform.Host, Host);
  EXPECT_NE(platform.Settings, nullptr);
  EXPECT_NE(platform.Clock, nullptr);
  EXPECT_EQ(platform.Bits->BitGet0(2, 1), 1);
}

TEST_F(StandardPlatformTest, ReadsEachFileOnce) {
  Write("texts.tsv", "101\tGut\n");
  Write("setup.reg", "[HKEY_LOCAL_MACHINE\\a]\n");
  Options.CatalogueFile = "texts.tsv";
  Options.SettingsFile = "setup.reg";
  const auto platform = StandardPlatform(Options);
  std::filesystem::remove("texts.tsv");
  std::filesystem::remove("setup.reg");
  const auto made = platform.Components.at("LocalText.clsLocalText")();
  EXPECT_EQ(std::dynamic_pointer_cast<LocalTextComponent>(made)->GetLocalTextBASE(101), "Gut");
  EXPECT_TRUE(platform.Settings->RegOpenKeyA(SettingsStore::Hive::LocalMachine, "a"));
}

TEST_F(StandardPlatformTest, SpeaksTheLanguageOfTheOptions) {
  const std::pair<std::optional<std::string>, const char*> cases[] = {
      {std::nullopt, "Cancel"}, {"de_DE.UTF-8", "Abbrechen"}, {"xx", "Cancel"}};
  for (const auto& [language, text] : cases) {
    Options.Language = language;
    const auto made = StandardPlatform(Options).Components.at("LocalText.clsLocalText")();
    EXPECT_EQ(std::dynamic_pointer_cast<LocalTextComponent>(made)->GetLocalTextBASE(119), text);
  }
}

TEST_F(StandardPlatformTest, TellsWhatCannotBeUsed) {
  const std::pair<std::optional<std::filesystem::path> StandardPlatformOptions::*, const char*> files[] = {
      {&StandardPlatformOptions::CatalogueFile, "texts"},
      {&StandardPlatformOptions::SettingsFile, "setup"},
      {&StandardPlatformOptions::DataListFile, "list"},
  };
  for (const auto& [file, name] : files) {
    Options.*file = name;
    EXPECT_EQ(Error(), std::string(name) + " cannot be read: No such file or directory");
    Write(name, "");
    EXPECT_EQ(Error(), "");
  }
  Options.Now = "2025-02-30 00:00:00";
  EXPECT_EQ(Error(), "\"2025-02-30 00:00:00\" is no date and time of the form YYYY-MM-DD HH:MM:SS");
}

TEST_F(StandardPlatformTest, RecordsWhereAndWhenTheOptionsSay) {
  ASSERT_EQ(setenv("LC_ALL", "C", 1), 0);
  Options.FaultFile = "faults.log";
  Options.Now = "2025-05-01 12:00:00";
  std::vector<LoggedFault> logged;
  Options.OnFaultLogged = [&](const LoggedFault& fault) { logged.push_back(fault); };
  auto platform = StandardPlatform(Options);
  platform.Components.erase("storeObj.clsDList");  // without it the library has a fault to report
  UsePlatform(std::move(platform));

  Value code = "1111";
  static_cast<void>(clsZoneFunctionsWillow().Display(std::int16_t{5}, code));
  ASSERT_EQ(logged.size(), 2U);
  EXPECT_EQ(logged[0].Procedure, "InitStoreObj()");
  EXPECT_EQ(logged[1].Procedure, "InitApplicationVariables()");
  EXPECT_TRUE(logged[1].Shown);
  EXPECT_EQ(Host->Messages.size(), 1U);
  EXPECT_EQ(Read("faults.log").find("time=05/01/25 12:00:00\tapp=Tolmar "), 0U);
}

}  // namespace
}  // namespace orlin::testing
