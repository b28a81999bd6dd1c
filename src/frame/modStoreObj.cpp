#include "frame/modStoreObj.h"

#include "frame/modGeneral.h"
#include "frame/modRegistry.h"
#include "frame/services.h"

namespace orlin {
namespace {

//                                module         procedure         only with  shows  clears
constexpr FaultKind kInitFault{"modStoreObj", "InitStoreObj()", true, false, false};

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

}  // namespace

std::int32_t InitStoreObj() {
  auto& services = Services();
  try {
    services.Store.reset();
    services.FixedPassword = kFixedPassword;
    services.LocalPath = GetRegSetting(std::string(kAppName), "Setup", "DListLocal", "");
    services.NetworkPath = GetRegSetting(std::string(kAppName), "Setup", "DListNetwork", "");

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

}  // namespace orlin
