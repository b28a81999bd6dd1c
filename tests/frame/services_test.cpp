#include "frame/services/services.h"

#include <map>
#include <tuple>

#include "OrlinCustomDialogs/version.h"

#include "frame/dialog/dialog.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/services/modRegistry.h"
#include "frame/services/modStoreObj.h"
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

/// Writes down what is asked of a component.
struct Recorder {
  explicit Recorder(Log& log) : calls_(log) {}
  void Note(const std::string& call) { calls_.push_back(call); }
  void Note(const std::string& call, int value) { Note(call + std::to_string(value)); }

 private:
  Log& calls_;
};

struct RecordingFaultObject : FaultObjectComponent, Recorder {
  using Recorder::Recorder;
  void SetAppName(const std::string& name) override { Note("AppName " + name); }
  void SetAppVersion(const std::string& version) override { Note("AppVersion " + version); }
  void SetWarningLevel(std::int16_t level) override { Note("WarningLevel ", level); }
  void SetAppErrorFile(const std::string& file) override { Note("AppErrorFile " + file); }
  void Add(const FaultRecord& fault) override {
    Note("Add " + std::to_string(fault.Number) + " " + fault.Date + " " + fault.Time + " " + fault.ModuleName + " " +
             fault.ProcedureName + " ",
         fault.WarningLevel);
  }
  void SetAddlText(const std::string& text) override { Note("AddlText " + text); }
  void MsgBox() override { Note("MsgBox"); }
  void LogError() override { Note("LogError"); }
  void Clear() override { Note("Clear"); }
};

struct NoDatabase : Database {
  void Close() override {}
};

struct RecordingStore : DListComponent, Recorder {
  using Recorder::Recorder;
  void SetNetWorkDListPath(const std::string& path) override { Note("NetWorkDListPath " + path); }
  void SetLocalDListPath(const std::string& path) override { Note("LocalDListPath " + path); }
  void SetTimeOutInterval(std::int16_t seconds) override { Note("TimeOut ", seconds); }
  void SetMaxTimeOut(std::int16_t seconds) override { Note("MaxTimeOut ", seconds); }
  void SetBackupMode(std::int16_t mode) override { Note("BackupMode ", mode); }
  void SetUserID(const std::string& id) override { Note("UserID " + id); }
  void SetWorkstationName(const std::string& name) override { Note("Workstation <" + name + ">"); }
  void SetWarningLevel(std::int16_t level) override { Note("WarningLevel ", level); }
  void SetPassword(const std::string& password) override { Note("Password of ", static_cast<int>(password.size())); }
  void SetUserName(const std::string& name) override { Note("UserName " + name); }
  void SetMakesMissingFile(bool) override {}
  std::int32_t DgetDLIST(const std::string& list, std::int16_t) override {
    return Note("DgetDLIST " + list), GetResult;
  }
  std::string DBTYPE() override { return Type; }
  std::string DBDRV() override { return "C"; }
  std::string DBDIR() override { return "\\a\\"; }
  std::string DBNAME() override { return "n.db"; }
  std::int32_t DOPEN(const std::string& list, std::int16_t, DatabasePtr& db) override {
    Note("DOPEN " + list);
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

  std::string Type = "access";
  std::int32_t GetResult = 0, OpenResult = 0;
};

/// An engine on which one file lies, or none; it opens what lies there where that is a database.
struct RecordingEngine : DatabaseEngine, Recorder {
  using Recorder::Recorder;
  DatabasePtr OpenDatabase(const std::string& path, bool exclusive, bool readOnly,
                           const std::string& connect) override {
    Note("OpenDatabase " + path + (exclusive ? " exclusive" : "") + (readOnly ? " read-only" : "") + connect);
    if (!Opens) throw Failure(failures::DatabaseLocked);
    return std::make_shared<NoDatabase>();
  }
  bool FileExists(const std::string&) override { return Exists; }
  bool Opens = true, Exists = true;
};

/// Half of the text is the plain text.
struct HalvingCipher : EncryptionComponent, Recorder {
  using Recorder::Recorder;
  std::string DecryptString(const std::string& text) override {
    return Note("DecryptString"), text.substr(0, text.size() / 2);
  }
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
    Set("WarningLevel", "3"), Set("DListLocal", "C:\\local");
    Parts.Host = Host;
    Parts.Settings = Settings;
    Parts.Clock = std::make_shared<FixedClock>();
    Parts.Components["LocalText.clsLocalText"] = [this] {
      return ++Catalogues, std::make_shared<RecordingCatalogue>();
    };
    Parts.Components["FaultObject.clsFaultObject"] = [this] { return std::make_shared<RecordingFaultObject>(Calls); };
    Parts.Components["storeObj.clsDList"] = [this] { return std::make_shared<RecordingStore>(Calls); };
    UsePlatform(Parts);
  }
  ~ServicesTest() override {
    EXPECT_EQ(Settings->OpenKeys, 0);
    UsePlatform({});
  }
  void Set(const std::string& name, const std::string& value) {
    Settings->Values[name] = {SettingsStore::Type::String, value};
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
  const std::tuple<const char*, const char*, const char*> cases[] = {{"Zone %ZONE%", "5", "Zone 5"},
                                                                     {"%ZONE%%ZONE%", "1", "11"},
                                                                     {"%ZONE%, %ITEM%", "5", "5, %ITEM%"},
                                                                     {"a%ZONE%b", "", "ab"},
                                                                     {"%zone% 100%", "5", "%zone% 100%"},
                                                                     {"", "5", ""},
                                                                     {"%%ZONE%%", "5", "%5%"},
                                                                     {"%ZO%ZONE%NE%", "", ""},
                                                                     {"%ZONE%, %ZONE%", "%ZONE%", "%ZONE%, %ZONE%"},
                                                                     {"%%ZONE%ZONE%", "x%ZONE%", "%x%ZONE%ZONE%"},
                                                                     {"%%ZONE%", "ZONE%%ZONE", "%ZONE%%ZONE"},
                                                                     {"%ZO%ZONE%", "NE%ZO%NE", "NE%ZO%NEZO%NE"},
                                                                     {"%%ZONE%", "ZONE%x%", "ZONE%x%x%"},
                                                                     {"%ZONE%NE%", "%x%ZO", "%x%x%ZO"}};
  for (const auto& [text, value, result] : cases) EXPECT_EQ(ReplaceVariable(text, "ZONE", value), result) << text;
}

TEST_F(ServicesTest, SettingsAreStringsUpToTheirFirstZero) {
  Settings->Values["Number"] = {SettingsStore::Type::Other, "1"};
  Set("Cut", std::string("ab\0c", 4));
  const std::pair<const char*, const char*> cases[] = {
      {"DListLocal", "C:\\local"}, {"Missing", "d"}, {"Number", "d"}, {"Cut", "ab"}};
  for (const auto& [name, value] : cases) EXPECT_EQ(GetRegSetting("Tolmar", "Setup", name, "d"), value);
  EXPECT_EQ(GetRegSetting("Tolmar", "Elsewhere", "DListLocal", "d"), "d");
  UsePlatform({});
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "DListLocal", "d"), "d");
}

TEST_F(ServicesTest, InitialisationAsksTheComponentsInOrder) {
  EXPECT_EQ(InitApplicationVariables(), 0);
  EXPECT_EQ(Calls, (Log{"AppName Tolmar", "AppVersion " + std::string(LibraryVersion()), "WarningLevel 3",
                        "AppErrorFile Tolmar.err", "NetWorkDListPath ", "LocalDListPath C:\\local", "TimeOut 6",
                        "MaxTimeOut 30", "BackupMode 0", "UserID OrlinCustomDialogs", "Workstation <>",
                        "WarningLevel 3", "Password of 14"}));
  const auto first = Services().Store;
  EXPECT_EQ(InitStoreObj(), 0);
  EXPECT_NE(Services().Store, first);
}

TEST_F(ServicesTest, NoWarningLevelCreatesNothingAndReportsNothing) {
  Settings->Values.erase("WarningLevel");
  EXPECT_EQ(InitApplicationVariables(), failures::TypeMismatch);
  EXPECT_TRUE(!Services().FaultObject && !Services().Store && !Services().Catalogue);
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
}

TEST_F(ServicesTest, OpensADatabaseByTheTypeOfItsEntry) {
  const auto report = [](const std::string& number, const std::string& message) {
    return "Add " + number + " today now modStoreObj OpenSecureDB() 3, AddlText " + message + ", LogError, ";
  };
  const std::string got = "DgetDLIST Notes, ";
  const std::string opened = got + "Password of 14, DOPEN Notes, ";
  const std::string tried = got + "OpenDatabase C:\\a\\n.db read-only, ";
  const struct {
    const char* Type;
    std::int32_t GetResult, OpenResult;
    bool Trial, EngineOpens, FileExists;
    std::string Password;
    std::int32_t Result;
    std::string Happened;
  } cases[] = {
      {"Access", 0, 0, false, false, true, "", 0, opened},
      {"ACCESS", 0, 77, false, false, true, "", 77, opened + report("77", "")},
      {"ACCESS", 0, 77, false, false, false, "", 77, opened + report("77", "text 1084 of C:\\a\\n.db")},
      {"access", 0, 0, true, true, true, "", 0, tried + "Password of 14, DOPEN Notes, "},
      {"access", 0, 0, true, false, true, "", 3049, tried + report("3049", "text 1082 of C:\\a\\n.db")},
      {"odbc", 0, 0, true, false, true, "", 0, got + "UserName me, Password of 0, DOPEN Notes, "},
      {"ODBC", 0, 78, false, true, false, "abcdef", 78,
       got + "DecryptString, UserName me, Password of 3, DOPEN Notes, " + report("78", "")},
      {"", 0, 0, true, true, true, "", 3049, got + report("3049", "text 1082 of ")},
      {"ACCESS", 9, 0, false, true, true, "", 9, got + report("9", "")},
  };
  const auto engine = std::make_shared<RecordingEngine>(Calls);
  Parts.Engine = engine;
  Parts.Components["Kesmit.Encryption.CCrypt"] = [this] { return std::make_shared<HalvingCipher>(Calls); };
  Set("UserName", "me");
  for (const auto& one : cases) {
    Set("Password", one.Password);
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
    std::string happened;
    for (const auto& call : Calls) happened += call + ", ";
    EXPECT_EQ(happened, one.Happened) << one.Type;
  }
}

TEST_F(ServicesTest, TextsComeOnDemandAndAgainAfterARelease) {
  EXPECT_EQ(GetLocalText(101) + GetLocalText(119), "text 101text 119");
  ReleaseSharedServices();
  EXPECT_EQ(GetLocalText(101), "text 101");
  EXPECT_EQ(Catalogues, 2);
}

TEST_F(ServicesTest, FailingTextIsEmptyAndLoggedOrFailsWithoutALog) {
  EXPECT_EQ(FailureOf([] { static_cast<void>(GetLocalText(666)); }), failures::NoObject);
  static_cast<void>(InitApplicationVariables());
  Calls.clear();
  EXPECT_EQ(GetLocalText(666), "");
  EXPECT_EQ(Calls, (Log{"Add 53 today now modGeneral GetLocalText() 3", "AddlText ", "LogError"}));
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

TEST_F(ServicesTest, APlatformThatIsInstalledDuringACallServesTheNextOne) {
  struct Plain {
    Dialog Form{"frmTest", "", {.InitialisesServices = true}};
  };
  const auto show = [](Plain& dialog) {
    dialog.Form.ShowModal();
    EXPECT_EQ(GetLocalText(101), "text 101");
    return 0;
  };
  Host->Operate = [](shown::Dialog&) { UsePlatform({}); };
  EXPECT_EQ(CallDialogWith<Plain>(show), 0);
  EXPECT_EQ(Services().FaultObject, nullptr);
  EXPECT_EQ(CallDialogWith<Plain>(show), failures::NoObject);
}

}  // namespace
}  // namespace orlin::testing
