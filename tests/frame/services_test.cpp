#include "frame/services.h"

#include <map>

#include "frame/dialog.h"
#include "frame/display_protocol.h"
#include "frame/modGeneral.h"
#include "frame/modRegistry.h"
#include "frame/modStoreObj.h"
#include "support/frame_fixture.h"

// The shared services, with components that write down what is asked of them.

namespace orlin::testing {
namespace {

struct RecordingCatalogue : LocalTextComponent {
  std::string GetLocalTextBASE(std::int16_t id) override {
    if (id == 666) throw Failure(53);
    return "text " + std::to_string(id);
  }
};

struct RecordingFaultObject : FaultObjectComponent {
  explicit RecordingFaultObject(Log& log) : Calls(log) {}
  void SetAppName(const std::string& name) override { Calls.push_back("AppName " + name); }
  void SetAppVersion(const std::string&) override { Calls.emplace_back("AppVersion"); }
  void SetWarningLevel(std::int16_t level) override { Calls.push_back("WarningLevel " + std::to_string(level)); }
  void SetAppErrorFile(const std::string& file) override { Calls.push_back("AppErrorFile " + file); }
  void Add(const FaultRecord& fault) override {
    Calls.push_back("Add " + std::to_string(fault.Number) + " " + fault.Date + " " + fault.Time + " " +
                    fault.ModuleName + " " + fault.ProcedureName + " " + std::to_string(fault.WarningLevel));
  }
  void SetAddlText(const std::string& text) override { Calls.push_back("AddlText " + text); }
  void MsgBox() override { Calls.emplace_back("MsgBox"); }
  void LogError() override { Calls.emplace_back("LogError"); }
  void Clear() override { Calls.emplace_back("Clear"); }
  Log& Calls;
};

struct RecordingStore : DListComponent {
  explicit RecordingStore(Log& log) : Calls(log) {}
  void SetNetWorkDListPath(const std::string& path) override { Calls.push_back("NetWorkDListPath " + path); }
  void SetLocalDListPath(const std::string& path) override { Calls.push_back("LocalDListPath " + path); }
  void SetTimeOutInterval(std::int16_t seconds) override { Calls.push_back("TimeOut " + std::to_string(seconds)); }
  void SetMaxTimeOut(std::int16_t seconds) override { Calls.push_back("MaxTimeOut " + std::to_string(seconds)); }
  void SetBackupMode(std::int16_t mode) override { Calls.push_back("BackupMode " + std::to_string(mode)); }
  void SetUserID(const std::string& id) override { Calls.push_back("UserID " + id); }
  void SetWorkstationName(const std::string& name) override { Calls.push_back("Workstation <" + name + ">"); }
  void SetWarningLevel(std::int16_t level) override { Calls.push_back("WarningLevel " + std::to_string(level)); }
  void SetPassword(const std::string& password) override {
    Calls.push_back("Password of " + std::to_string(password.size()));
  }
  Log& Calls;
};

struct FixedClock : Clock {
  std::string Date() override { return "today"; }
  std::string Time() override { return "now"; }
  std::string DateAndTime() override { return "today now"; }
};

/// Settings of the section "Setup".
struct FewSettings : SettingsStore {
  std::optional<Key> RegOpenKeyA(Hive, const std::string& subKey) override {
    if (subKey != "Software\\Varnek\\Tolmar\\Setup") return std::nullopt;
    ++OpenKeys;
    return 7;
  }
  std::optional<Setting> RegQueryValueExA(Key, const std::string& valueName) override {
    const auto found = Values.find(valueName);
    return found == Values.end() ? std::nullopt : std::optional(found->second);
  }
  void RegCloseKey(Key) override { --OpenKeys; }
  std::map<std::string, Setting> Values;
  int OpenKeys = 0;
};

class ServicesTest : public ::testing::Test {
 protected:
  ServicesTest() {
    Settings->Values["WarningLevel"] = {SettingsStore::Type::String, "3"};
    Settings->Values["DListLocal"] = {SettingsStore::Type::String, "C:\\local"};
    Parts.Host = Host;
    Parts.Settings = Settings;
    Parts.Clock = std::make_shared<FixedClock>();
    Parts.Components["LocalText.clsLocalText"] = [this] {
      ++Catalogues;
      return std::make_shared<RecordingCatalogue>();
    };
    Parts.Components["FaultObject.clsFaultObject"] = [this] { return std::make_shared<RecordingFaultObject>(Calls); };
    Parts.Components["storeObj.clsDList"] = [this] { return std::make_shared<RecordingStore>(Calls); };
    UsePlatform(Parts);
  }
  ~ServicesTest() override {
    EXPECT_EQ(Settings->OpenKeys, 0);
    UsePlatform({});
  }
  void Without(const std::string& component) {
    Parts.Components.erase(component);
    UsePlatform(Parts);
  }

  std::shared_ptr<OperatorHost> Host = std::make_shared<OperatorHost>();
  std::shared_ptr<FewSettings> Settings = std::make_shared<FewSettings>();
  Platform Parts;
  Log Calls;
  int Catalogues = 0;
};

TEST(ReplaceVariable, ReplacesEveryMarkerAndNothingElse) {
  const struct {
    const char* Text;
    const char* Value;
    const char* Result;
  } cases[] = {{"Zone %ZONE%", "5", "Zone 5"},
               {"%ZONE%%ZONE%", "1", "11"},
               {"%ZONE% of %ITEM%", "5", "5 of %ITEM%"},
               {"a%ZONE%b", "", "ab"},
               {"%zone% 100%", "5", "%zone% 100%"},
               {"", "5", ""},
               {"%%ZONE%%", "5", "%5%"},
               {"%ZO%ZONE%NE%", "", ""}};
  for (const auto& one : cases) EXPECT_EQ(ReplaceVariable(one.Text, "ZONE", one.Value), one.Result) << one.Text;
}

TEST_F(ServicesTest, SettingsAreStringsUpToTheirFirstZero) {
  Settings->Values["Number"] = {SettingsStore::Type::Other, "1"};
  Settings->Values["Cut"] = {SettingsStore::Type::String, std::string("ab\0c", 4)};
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "DListLocal", "d"), "C:\\local");
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "Missing", "d"), "d");
  EXPECT_EQ(GetRegSetting("Tolmar", "Elsewhere", "DListLocal", "d"), "d");
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "Number", "d"), "d");
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "Cut", "d"), "ab");
  UsePlatform({});
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "DListLocal", "d"), "d");
}

TEST_F(ServicesTest, InitialisationAsksTheComponentsInOrder) {
  EXPECT_EQ(InitApplicationVariables(), 0);
  EXPECT_EQ(Calls, (Log{"AppName Tolmar", "AppVersion", "WarningLevel 3", "AppErrorFile Tolmar.err",
                        "NetWorkDListPath ", "LocalDListPath C:\\local", "TimeOut 6", "MaxTimeOut 30", "BackupMode 0",
                        "UserID OrlinCustomDialogs", "Workstation <>", "WarningLevel 3", "Password of 14"}));
  const auto first = Services().Store;
  EXPECT_EQ(InitStoreObj(), 0);
  EXPECT_NE(Services().Store, first);
}

TEST_F(ServicesTest, NoWarningLevelCreatesNothingAndReportsNothing) {
  Settings->Values.erase("WarningLevel");
  EXPECT_EQ(InitApplicationVariables(), failures::TypeMismatch);
  EXPECT_EQ(Services().FaultObject, nullptr);
  EXPECT_EQ(Services().Store, nullptr);
  EXPECT_EQ(Services().Catalogue, nullptr);
  EXPECT_EQ(GetLocalText(101), "text 101");
}

TEST_F(ServicesTest, MissingStoreIsLoggedByItsModuleThenShownByTheCaller) {
  Without("storeObj.clsDList");
  EXPECT_EQ(InitApplicationVariables(), failures::CannotCreateObject);
  Calls.erase(Calls.begin(), Calls.begin() + 4);
  EXPECT_EQ(Calls, (Log{"Add 429 today now modStoreObj InitStoreObj() 3",
                        "AddlText The component storeObj.clsDList cannot be created", "LogError",
                        "Add 429 today now modGeneral InitApplicationVariables() 3",
                        "AddlText Component cannot create object", "MsgBox", "LogError"}));
  EXPECT_EQ(Services().Catalogue, nullptr);
}

TEST_F(ServicesTest, TextsComeOnDemandAndAgainAfterARelease) {
  EXPECT_EQ(GetLocalText(101), "text 101");
  EXPECT_EQ(GetLocalText(119), "text 119");
  EXPECT_EQ(Catalogues, 1);
  ReleaseSharedServices();
  EXPECT_EQ(GetLocalText(101), "text 101");
  EXPECT_EQ(Catalogues, 2);
}

TEST_F(ServicesTest, FailingTextIsEmptyAndLoggedOrFailsWithoutALog) {
  static_cast<void>(InitApplicationVariables());
  Calls.clear();
  EXPECT_EQ(GetLocalText(666), "");
  EXPECT_EQ(Calls, (Log{"Add 53 today now modGeneral GetLocalText() 3", "AddlText ", "LogError"}));
  ReleaseSharedServices();
  EXPECT_EQ(FailureOf([] { static_cast<void>(GetLocalText(666)); }), failures::NoObject);
}

TEST_F(ServicesTest, WithoutACatalogueTheDialogStillOpens) {
  Without("LocalText.clsLocalText");
  Dialog form("frmTest", 1720, {.InitialisesServices = true, .ReleasesServices = true, .HandlesFailures = true});
  Label label(form, "label", 101);
  DisplaySteps steps;
  steps.Prepare = [] {};
  EXPECT_EQ(RunDisplay(form, steps), 1);
  EXPECT_EQ(label.Caption(), "");
  EXPECT_EQ(Host->Happened, Log{"show frmTest"});
}

TEST_F(ServicesTest, LifeDecidesWhoMakesAndReleasesTheServices) {
  for (const bool initialises : {true, false}) {
    for (const bool releases : {true, false}) {
      ReleaseSharedServices();
      Dialog form("frmTest", "", {.InitialisesServices = initialises, .ReleasesServices = releases});
      EXPECT_EQ(Services().FaultObject != nullptr, initialises);
      DisplaySteps steps;
      steps.Prepare = [&] { form.KeepSecurityLevels(std::make_shared<SecurityLevels>()); };
      EXPECT_EQ(RunDisplay(form, steps), 1);
      EXPECT_EQ(Services().FaultObject != nullptr, initialises && !releases);
      EXPECT_EQ(FailureOf([&] { static_cast<void>(form.SecurityLevels()); }), failures::NoObject);
      EXPECT_EQ(Services().WarningLevel, 3);
    }
  }
}

}  // namespace
}  // namespace orlin::testing
