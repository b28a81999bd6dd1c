#include "frame/services/services.h"

#include "OrlinCustomDialogs/version.h"

#include "cipher/ccrypt.h"
#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/services/modRegistry.h"
#include "frame/services/modStoreObj.h"
#include "store/data_list.h"
#include "store/file_database_engine.h"
#include "support/broken_catalogue.h"

namespace orlin::testing {
namespace {

/// The data list of the stand-ins, which writes down what it is told.
class NotingStore : public DataList {
 public:
  NotingStore(DataListPlaces places, Log& told) : DataList(std::move(places)), told_(told) {}

  void SetNetWorkDListPath(const std::string& path) override { told_.push_back("network " + path); }
  void SetLocalDListPath(const std::string& path) override { told_.push_back("local " + path); }
  void SetTimeOutInterval(std::int16_t seconds) override { told_.push_back("wait " + std::to_string(seconds)); }
  void SetMaxTimeOut(std::int16_t seconds) override { told_.push_back("wait at most " + std::to_string(seconds)); }
  void SetBackupMode(std::int16_t mode) override { told_.push_back("backup " + std::to_string(mode)); }
  void SetUserID(const std::string& id) override { told_.push_back("id " + id); }
  void SetWorkstationName(const std::string& name) override { told_.push_back("workstation " + name); }
  void SetWarningLevel(std::int16_t level) override { told_.push_back("level " + std::to_string(level)); }
  void SetPassword(const std::string& password) override {
    told_.push_back(std::to_string(password.size()) + " characters of password");
  }
  void SetUserName(const std::string& name) override { told_.push_back("user " + name); }

 private:
  Log& told_;
};

struct NotingEngine : FileDatabaseEngine {
  NotingEngine(const std::filesystem::path& drives, Log& told) : FileDatabaseEngine(drives), Told(told) {}
  DatabasePtr OpenDatabase(const std::string& path, bool exclusive, bool readOnly, const std::string& text) override {
    Told.push_back(std::string("tried") + (exclusive ? " exclusively" : "") + (readOnly ? " for reading" : ""));
    return FileDatabaseEngine::OpenDatabase(path, exclusive, readOnly, text);
  }
  Log& Told;
};

class ServicesTest : public BrokenCatalogueTest {
 protected:
  ServicesTest() {
    Options.OnFaultLogged = [this](const LoggedFault& fault) { Logged.push_back(fault); };
    UseSettings("\"WarningLevel\"=\"3\"\n\"DListLocal\"=\"C:\\\\local\"\n");
  }
  void UseSettings(const std::string& setup) {
    Options.SettingsFile = Folder.Write("setup.reg", "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Setup]\n" + setup);
    Install();
    UseEntry({"Notes", "ACCESS", "C", "\\", "notes.db", ""});
  }
  void UseEntry(const DataListEntry& entry) {
    Parts.Components["storeObj.clsDList"] = [=, this] {
      return std::make_shared<NotingStore>(DataListPlaces{{{entry}}, Folder.Path()}, Told);
    };
    Parts.Engine = std::make_shared<NotingEngine>(Folder.Path(), Told);
    UsePlatform(Parts);
  }
  void Without(const std::string& component) {
    Parts.Components.erase(component);
    UsePlatform(Parts);
  }

  Log Told;
  std::vector<LoggedFault> Logged;
};

TEST(ReplaceVariable, ReplacesEveryMarkerAndNothingElse) {
  const std::tuple<const char*, const char*, const char*> cases[] = {{"Zone %ZONE%", "5", "Zone 5"},
                                                                     {"%ZONE%%ZONE%", "1", "11"},
                                                                     {"%ZONE%, %ITEM%", "5", "5, %ITEM%"},
                                                                     {"%zone% 100%", "5", "%zone% 100%"},
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
  UseSettings("\"Path\"=\"C:\\\\x\"\n\"Number\"=dword:1\n\"Cut\"=\"ab\\0c\"\n");
  for (const auto& [name, value] : {std::pair("Path", "C:\\x"), {"Missing", "d"}, {"Number", "d"}, {"Cut", "ab"}}) {
    EXPECT_EQ(GetRegSetting("Tolmar", "Setup", name, "d"), value);
  }
  EXPECT_EQ(GetRegSetting("Tolmar", "Elsewhere", "Path", "d"), "d");
  const auto key = Parts.Settings->RegOpenKeyA(SettingsStore::Hive::LocalMachine, "Software\\Varnek\\Tolmar\\Setup");
  EXPECT_EQ(key, 1) << "no other one is open";
  UsePlatform({});
  EXPECT_EQ(GetRegSetting("Tolmar", "Setup", "Path", "d"), "d");
}

TEST_F(ServicesTest, InitialisationTellsTheStoreItsSettings) {
  EXPECT_EQ(InitApplicationVariables(), 0);
  EXPECT_EQ(Told, (Log{"network ", "local C:\\local", "wait 6", "wait at most 30", "backup 0", "id OrlinCustomDialogs",
                       "workstation ", "level 3", "14 characters of password"}));
  const auto first = Services().Store;
  EXPECT_EQ(InitStoreObj(), 0);
  EXPECT_NE(Services().Store, first);
}

TEST_F(ServicesTest, NoWarningLevelCreatesNothingAndReportsNothing) {
  UseSettings("");
  EXPECT_EQ(InitApplicationVariables(), failures::TypeMismatch);
  EXPECT_TRUE(!Services().FaultObject && !Services().Store && !Services().Catalogue);
  EXPECT_EQ(GetLocalText(101), "OK");
}

TEST_F(ServicesTest, MissingStoreIsLoggedByItsModuleThenShownByTheCaller) {
  Without("storeObj.clsDList");
  Host->Answers = {answers::Ok};
  EXPECT_EQ(InitApplicationVariables(), failures::CannotCreateObject);
  const auto line = [](const std::string& rest) {
    return "time=03/31/25 14:07:09\tapp=Tolmar " + std::string(LibraryVersion()) + "\tlevel=3\tnumber=429\t" + rest;
  };
  EXPECT_EQ(ContentOf(*Options.FaultFile),
            line("module=modStoreObj\tprocedure=InitStoreObj()\ttext=The component storeObj.clsDList cannot be "
                 "created\n") +
                line("module=modGeneral\tprocedure=InitApplicationVariables()\ttext=Component cannot create object\n"));
  ASSERT_EQ(Logged.size(), 2U);
  EXPECT_FALSE(Logged[0].Shown);
  EXPECT_TRUE(Logged[1].Shown);
}

TEST_F(ServicesTest, OpensADatabaseByTheTypeOfItsEntry) {
  const auto file = Folder.Path() / "c" / "notes.db";
  std::filesystem::create_directory(file.parent_path());
  const auto connect = "Driver=SQLite3;Database=" + file.string();
  const Log tried{"tried for reading"}, triedAndFixed{"tried for reading", "14 characters of password"},
      fixed{"14 characters of password"}, none{"user me", "0 characters of password"},
      decrypted{"user me", "3 characters of password"};
  const char* const junk = "no database at all";
  using Case = std::tuple<std::string, const char*, bool, std::int32_t, Log, std::string, std::string, std::string>;
  const Case cases[] = {{"Access", "", false, 0, fixed, "", "", ""},
                        {"access", "", true, 0, triedAndFixed, "", "", ""},
                        {"ACCESS", junk, false, 3049, fixed, "", "", ""},
                        {"ACCESS", junk, true, 3049, tried, GetLocalText(1082, "DB_PATH", "C:\\notes.db"), "", ""},
                        {"ACCESS", nullptr, false, 3049, fixed, GetLocalText(1084, "DB_PATH", "C:\\notes.db"), "", ""},
                        {"odbc", "", true, 0, none, "", "", connect},
                        {"ODBC", nullptr, true, 3049, decrypted, "", CCrypt::EncryptString("abc"), "Driver=none"},
                        {"", "", true, 3049, {}, GetLocalText(1082, "DB_PATH", ""), "", ""}};
  for (const auto& [type, content, trial, result, told, reported, password, connection] : cases) {
    SCOPED_TRACE(type);
    std::filesystem::remove(file);
    if (content != nullptr) std::ofstream(file) << content;
    UseSettings("\"WarningLevel\"=\"0\"\n\"UserName\"=\"me\"\n\"Password\"=\"" + password + "\"\n");
    UseEntry({"Notes", type, "C", "\\", "notes.db", connection});
    ASSERT_EQ(InitApplicationVariables(), 0);
    Told.clear(), Logged.clear();
    DatabasePtr db;
    EXPECT_EQ(OpenSecureDB("Notes", db, trial), result);
    EXPECT_EQ(db != nullptr, result == 0);
    EXPECT_EQ(Told, told);
    ASSERT_EQ(Logged.size(), result == 0 ? 0U : 1U);
    for (const auto& fault : Logged) EXPECT_EQ(fault.Procedure + fault.AdditionalText, "OpenSecureDB()" + reported);
  }
  DatabasePtr db;
  EXPECT_EQ(OpenSecureDB("Others", db, false), failures::InvalidCall);
}

TEST_F(ServicesTest, FailingTextIsEmptyAndLoggedOrFailsWithoutALog) {
  FailsFor = 101;
  EXPECT_EQ(FailureOf([] { return GetLocalText(101); }), failures::NoObject);
  EXPECT_EQ(GetLocalText(119), "Cancel");
  ASSERT_EQ(InitApplicationVariables(), 0);
  EXPECT_EQ(GetLocalText(101), "");
  EXPECT_EQ(Logged.back().Procedure + Logged.back().AdditionalText, "GetLocalText()");
  ReleaseSharedServices();
  EXPECT_EQ(GetLocalText(119), "Cancel") << "the catalogue comes on demand";
}

TEST_F(ServicesTest, WithoutACatalogueTheDialogStillOpens) {
  Without("LocalText.clsLocalText");
  Host->Answers = {answers::Ok};
  Dialog form("frmTest", 1720, {.InitialisesServices = true, .ReleasesServices = true, .HandlesFailures = true});
  Label label(form, "label", 101);
  DisplaySteps steps;
  steps.Prepare = [] {};
  EXPECT_EQ(RunDisplay(form, steps), 1);
  EXPECT_EQ(label.Caption(), "");
  EXPECT_EQ(Host->Happened.back(), "show frmTest");
}

TEST_F(ServicesTest, LifeDecidesWhoMakesAndReleasesTheServices) {
  for (const auto& [initialises, releases] : {std::pair(true, true), {true, false}, {false, true}, {false, false}}) {
    ReleaseSharedServices();
    Dialog form("frmTest", "", {.InitialisesServices = initialises, .ReleasesServices = releases});
    EXPECT_EQ(Services().FaultObject != nullptr, initialises);
    DisplaySteps steps;
    steps.Prepare = [&] { form.KeepSecurityLevels(std::make_shared<SecurityLevels>()); };
    EXPECT_EQ(RunDisplay(form, steps), 1);
    EXPECT_EQ(Services().FaultObject != nullptr, initialises && !releases);
    EXPECT_EQ(FailureOf([&] { return form.SecurityLevels(); }), failures::NoObject);
    EXPECT_EQ(Services().WarningLevel, 3);
  }
}

TEST_F(ServicesTest, APlatformThatIsInstalledDuringACallServesTheNextOne) {
  struct Plain {
    Dialog Form{"frmTest", "", {.InitialisesServices = true}};
  };
  const auto show = [](Plain& dialog) {
    dialog.Form.ShowModal();
    EXPECT_EQ(GetLocalText(101), "OK");
    return 0;
  };
  Host->Operate = [](shown::Dialog&) { UsePlatform({}); };
  EXPECT_EQ(CallDialogWith<Plain>(show), 0);
  EXPECT_EQ(Services().FaultObject, nullptr);
  EXPECT_EQ(CallDialogWith<Plain>(show), failures::NoObject);
}

}  // namespace
}  // namespace orlin::testing
