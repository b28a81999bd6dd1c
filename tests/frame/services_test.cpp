#include "frame/services.h"

#include <map>
#include <tuple>

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
    return "text " + std::to_string(id) + (id == 1082 || id == 1084 ? " of %DB_PATH%" : "");
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
  void SetUserName(const std::string& name) override { Calls.push_back("UserName " + name); }
  void SetMakesMissingFile(bool) override {}
  std::int32_t DgetDLIST(const std::string& sListName, std::int16_t) override {
    Calls.push_back("DgetDLIST " + sListName);
    return GetResult;
  }
  std::string DBTYPE() override { return Type; }
  std::string DBDRV() override { return "C"; }
  std::string DBDIR() override { return "\\a\\"; }
  std::string DBNAME() override { return "n.db"; }
  std::int32_t DOPEN(const std::string& sListName, std::int16_t, DatabasePtr& db) override {
    Calls.push_back("DOPEN " + sListName);
    if (OpenResult == 0) db = std::make_shared<NoDatabase>();
    return OpenResult;
  }
  std::int32_t CreateDynaWise(const DatabasePtr&, RecordsetPtr&, const std::string&, std::int16_t, const std::string&,
                              Mode) override {
    return 0;
  }
  std::int32_t AddNewDsWise(const RecordsetPtr&, std::int16_t, const std::string&) override { return 0; }
  std::int32_t EditDsWise(const RecordsetPtr&, std::int16_t, const std::string&) override { return 0; }
  std::int32_t UpdateDsWise(const RecordsetPtr&, std::int16_t, const std::string&) override { return 0; }
  std::int32_t DeleteDsWise(const RecordsetPtr&, std::int16_t, const std::string&) override { return 0; }

  struct NoDatabase : Database {
    void Close() override {}
  };
  Log& Calls;
  std::string Type = "access";
  std::int32_t GetResult = 0;
  std::int32_t OpenResult = 0;
};

/// An engine on which one file lies, or none; it opens what lies there where that is a database.
struct RecordingEngine : DatabaseEngine {
  explicit RecordingEngine(Log& log) : Calls(log) {}
  DatabasePtr OpenDatabase(const std::string& path, bool exclusive, bool readOnly,
                           const std::string& connect) override {
    Calls.push_back("OpenDatabase " + path + (exclusive ? " exclusive" : "") + (readOnly ? " read-only" : "") +
                    connect);
    if (!Opens) throw Failure(failures::DatabaseLocked);
    return std::make_shared<RecordingStore::NoDatabase>();
  }
  bool FileExists(const std::string&) override { return Exists; }
  Log& Calls;
  bool Opens = true;
  bool Exists = true;
};

/// Half of the text is the plain text.
struct HalvingCipher : EncryptionComponent {
  explicit HalvingCipher(Log& log) : Calls(log) {}
  std::string DecryptString(const std::string& enciphered) override {
    Calls.emplace_back("DecryptString");
    return enciphered.substr(0, enciphered.size() / 2);
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

TEST_F(ServicesTest, OpensADatabaseByTheTypeOfItsEntry) {
  constexpr bool trial = true;
  const Log opened{"DgetDLIST Notes", "Password of 14", "DOPEN Notes"};
  const auto report = [](const std::string& number, const std::string& message) {
    return Log{"Add " + number + " today now modStoreObj OpenSecureDB() 3", "AddlText " + message, "LogError"};
  };
  const auto after = [](Log first, const Log& then) {
    first.insert(first.end(), then.begin(), then.end());
    return first;
  };
  const auto tried = Log{"DgetDLIST Notes", "OpenDatabase C:\\a\\n.db read-only"};
  const struct {
    const char* Type;
    std::int32_t GetResult, OpenResult;
    bool Trial, EngineOpens, FileExists;
    std::string Password;
    std::int32_t Result;
    Log Happened;
  } cases[] = {
      {"Access", 0, 0, false, false, true, "", 0, opened},
      {"ACCESS", 0, 77, false, false, true, "", 77, after(opened, report("77", ""))},
      {"ACCESS", 0, 77, false, false, false, "", 77, after(opened, report("77", "text 1084 of C:\\a\\n.db"))},
      {"access", 0, 0, trial, true, true, "", 0, after(tried, {"Password of 14", "DOPEN Notes"})},
      {"access", 0, 0, trial, false, true, "", 3049, after(tried, report("3049", "text 1082 of C:\\a\\n.db"))},
      {"odbc", 0, 0, trial, false, true, "", 0, {"DgetDLIST Notes", "UserName me", "Password of 0", "DOPEN Notes"}},
      {"ODBC", 0, 78, false, true, false, "abcdef", 78,
       after({"DgetDLIST Notes", "DecryptString", "UserName me", "Password of 3", "DOPEN Notes"}, report("78", ""))},
      {"", 0, 0, trial, true, true, "", 3049, after({"DgetDLIST Notes"}, report("3049", "text 1082 of "))},
      {"ACCESS", 9, 0, false, true, true, "", 9, after({"DgetDLIST Notes"}, report("9", ""))},
  };
  const auto engine = std::make_shared<RecordingEngine>(Calls);
  Parts.Engine = engine;
  Parts.Components["Kesmit.Encryption.CCrypt"] = [this] { return std::make_shared<HalvingCipher>(Calls); };
  Settings->Values["UserName"] = {SettingsStore::Type::String, "me"};
  for (const auto& one : cases) {
    Settings->Values["Password"] = {SettingsStore::Type::String, one.Password};
    const auto store = std::make_shared<RecordingStore>(Calls);
    std::tie(store->Type, store->GetResult, store->OpenResult) = std::tuple(one.Type, one.GetResult, one.OpenResult);
    std::tie(engine->Opens, engine->Exists) = std::tuple(one.EngineOpens, one.FileExists);
    Parts.Components["storeObj.clsDList"] = [store] { return store; };
    UsePlatform(Parts);
    ASSERT_EQ(InitApplicationVariables(), 0);
    Calls.clear();
    DatabasePtr db;
    EXPECT_EQ(OpenSecureDB("Notes", db, one.Trial), one.Result) << one.Type;
    EXPECT_EQ(db != nullptr, one.Result == 0) << one.Type;
    EXPECT_EQ(Calls, one.Happened) << one.Type;
  }
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
