#include "frame/modGeneral.h"

#include <string>

#include "OrlinCustomDialogs/version.h"

#include "frame/conversions.h"
#include "frame/modRegistry.h"
#include "frame/modStoreObj.h"
#include "frame/services.h"

namespace orlin {
namespace {

//                                      module        procedure                     only with  shows  clears
constexpr FaultKind kInitFault{"modGeneral", "InitApplicationVariables()", true, true, false};
constexpr FaultKind kGetLocalTextFault{"modGeneral", "GetLocalText()", false, false, false};

}  // namespace

void ReportFault(const FaultKind& kind, const Failure& failure, const std::string& additionalText) {
  // Held for the whole report, during which the operator may be shown it.
  const auto faultObject = Services().FaultObject;
  if (faultObject == nullptr) {
    if (kind.OnlyWithFaultObject) return;
    throw Failure(failures::NoObject);
  }
  faultObject->Add({failure.Number(), CurrentClock().Date(), CurrentClock().Time(), std::string(kind.ModuleName),
                    std::string(kind.ProcedureName), Services().WarningLevel});
  faultObject->SetAddlText(additionalText);
  if (kind.Shows) faultObject->MsgBox();
  faultObject->LogError();
  if (kind.Clears) faultObject->Clear();
}

std::string GetLocalText(std::int16_t id) {
  try {
    auto& catalogue = Services().Catalogue;
    if (catalogue == nullptr) catalogue = Create<LocalTextComponent>("LocalText.clsLocalText");
    return catalogue->GetLocalTextBASE(id);
  } catch (const Failure& failure) {
    ReportFault(kGetLocalTextFault, failure, "");
    return {};
  }
}

std::string GetLocalText(std::int16_t id, const std::string& sName, const std::string& sValue) {
  return ReplaceVariable(GetLocalText(id), sName, sValue);
}

std::string ReplaceVariable(const std::string& sText, const std::string& sName, const std::string& sValue) {
  return ReplaceVariableFor("modGeneral", sText, sName, sValue);
}

std::string ReplaceVariableFor(std::string_view moduleName, const std::string& sText, const std::string& sName,
                               const std::string& sValue) {
  try {
    const std::string marker = "%" + sName + "%";
    std::string text = sText;
    for (auto at = text.find(marker); at != std::string::npos; at = text.find(marker)) {
      text.replace(at, marker.size(), sValue);
    }
    return text;
  } catch (const Failure& failure) {
    ReportFault({moduleName, "ReplaceVariable()", false, false, true}, failure, "");
    return sText;
  }
}

std::int32_t InitApplicationVariables() {
  auto& services = Services();
  try {
    services.WarningLevel = ToInteger(GetRegSetting(std::string(kAppName), "Setup", "WarningLevel", ""));

    services.FaultObject = Create<FaultObjectComponent>("FaultObject.clsFaultObject");
    services.FaultObject->SetAppName(std::string(kAppName));
    services.FaultObject->SetAppVersion(std::string(LibraryVersion()));
    services.FaultObject->SetWarningLevel(services.WarningLevel);
    services.FaultObject->SetAppErrorFile(std::string(kAppName) + ".err");

    RaiseResult(InitStoreObj());

    services.Catalogue = Create<LocalTextComponent>("LocalText.clsLocalText");
    return 0;
  } catch (const Failure& failure) {
    ReportFault(kInitFault, failure, failure.Description());
    return failure.Number();
  }
}

}  // namespace orlin
