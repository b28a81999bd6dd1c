#include "frame/services/modStoreObj.h"

#include "frame/services/modGeneral.h"
#include "frame/services/modRegistry.h"
#include "frame/services/services.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

//                                module         procedure         only with  shows  clears
constexpr FaultKind kInitFault{"modStoreObj", "InitStoreObj()", true, false, false};
constexpr FaultKind kOpenFault{"modStoreObj", "OpenSecureDB()", true, false, false};

// The password of the file database that the store opens. The store component has to know it as well.
constexpr std::string_view kFixedPassword =
    "\x03"
    "vR8\x11"
    "tq2\x1d"
    "Zm5\x06"
    "k";
static_assert(kFixedPassword.size() == 14);

// How the store knows this library.
constexpr const char* kUserID = "OrlinCustomDialogs";

std::string Setting(const std::string& name) { return GetRegSetting(std::string(kAppName), "Setup", name, ""); }

bool OpensOnTrial(const std::string& path) {
  DatabasePtr database;
  SkipFailure(
      [&] {
        const auto& engine = InstalledPlatform().Engine;
        if (engine != nullptr) database = engine->OpenDatabase(path, false, true, "");
      },
      [&] {
        if (database != nullptr) database->Close();
      });
  return database != nullptr;
}

bool FileIsMissing(const std::string& path) {
  const auto& engine = InstalledPlatform().Engine;
  return engine != nullptr && !engine->FileExists(path);
}

/// `sMessage` receives what the report is to say beyond the number.
void OpenFileDatabase(const std::string& sListName, DatabasePtr& db, bool bCheckFirst, std::string& sMessage) {
  auto& store = Store();
  const auto path = store.DBDRV() + ":" + store.DBDIR() + store.DBNAME();
  if (bCheckFirst && !OpensOnTrial(path)) {
    sMessage = GetLocalText(1082, "DB_PATH", path);
    throw Failure(failures::CannotOpenDatabase);
  }
  store.SetPassword(Services().FixedPassword);
  const auto result = store.DOPEN(sListName, 0, db);
  if (result != 0 && FileIsMissing(path)) sMessage = GetLocalText(1084, "DB_PATH", path);
  RaiseResult(result);
}

void OpenOdbcDatabase(const std::string& sListName, DatabasePtr& db) {
  const auto cipher = Create<EncryptionComponent>("Kesmit.Encryption.CCrypt");
  // Local, so that the plain password is gone with the call.
  std::string password = Setting("Password");
  if (!password.empty()) password = cipher->DecryptString(password);
  auto& store = Store();
  store.SetUserName(Setting("UserName"));
  store.SetPassword(password);
  RaiseResult(store.DOPEN(sListName, 0, db));
}

}  // namespace

DListComponent& Store() {
  const auto& store = Services().Store;
  if (store == nullptr) throw Failure(failures::NoObject);
  return *store;
}

std::int32_t InitStoreObj() {
  auto& services = Services();
  try {
    services.Store.reset();
    services.FixedPassword = kFixedPassword;
    services.LocalPath = Setting("DListLocal");
    services.NetworkPath = Setting("DListNetwork");

    services.Store = Create<DListComponent>("storeObj.clsDList");
    services.Store->SetNetWorkDListPath(services.NetworkPath);
    services.Store->SetLocalDListPath(services.LocalPath);
    services.Store->SetTimeOutInterval(6);
    services.Store->SetMaxTimeOut(30);
    services.Store->SetBackupMode(0);
    services.Store->SetUserID(kUserID);
    services.Store->SetWorkstationName("");
    services.Store->SetWarningLevel(services.WarningLevel);
    services.Store->SetPassword(services.FixedPassword);
    return 0;
  } catch (const Failure& failure) {
    ReportFault(kInitFault, failure, failure.Description());
    return failure.Number();
  }
}

std::int32_t OpenSecureDB(const std::string& sListName, DatabasePtr& db, bool bCheckFirst) {
  std::string sMessage;
  try {
    RaiseResult(Store().DgetDLIST(sListName, 0));
    const auto type = Store().DBTYPE();
    if (SameName(type, "ACCESS")) {
      OpenFileDatabase(sListName, db, bCheckFirst, sMessage);
    } else if (SameName(type, "ODBC")) {
      OpenOdbcDatabase(sListName, db);
    } else {
      sMessage = GetLocalText(1082, "DB_PATH", "");
      throw Failure(failures::CannotOpenDatabase);
    }
    return 0;
  } catch (const Failure& failure) {
    ReportFault(kOpenFault, failure, sMessage);
    return failure.Number();
  }
}

}  // namespace orlin
