#include "frame/services/modGeneral.h"

#include <string>
#include <vector>

#include "OrlinCustomDialogs/host/texts.h"
#include "OrlinCustomDialogs/version.h"

#include "frame/services/modRegistry.h"
#include "frame/services/modStoreObj.h"
#include "frame/services/services.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

//                                      module        procedure                     only with  shows  clears
constexpr FaultKind kInitFault{"modGeneral", "InitApplicationVariables()", true, true, false};
constexpr FaultKind kGetLocalTextFault{"modGeneral", "GetLocalText()", false, false, false};

/// Whether a value that is put in for its marker can bring markers forth without end.
///
/// Percent signs cut a text into parts; a marker is a part between two of them that is the name. A value v0%v1%...%vm
/// joins v0 to the part on its left and vm to the part on its right, and only these two can become new markers. With
/// fewer than two percent signs in the value each insertion leaves fewer in the text, so it ends. Otherwise a new
/// marker on the left uses up one of the parts before it, and has v1 on its right. Unless vm + v1 is the name, no
/// marker arises there: runs to the left start at parts of the text alone, of which each serves once, and end. Unless
/// v(m-1) + v0 is the name, the same holds to the right. Where both are, the first new marker goes on for ever.
bool ComesBack(const std::string& sName, const std::string& sValue) {
  if (sValue.find("%" + sName + "%") != std::string::npos) return true;
  const auto first = sValue.find('%');
  const auto last = sValue.rfind('%');
  if (first == last) return false;
  const auto second = sValue.find('%', first + 1);
  const auto lastButOne = sValue.rfind('%', last - 1);
  const auto atRight = sValue.substr(last + 1) + sValue.substr(first + 1, second - first - 1);
  const auto atLeft = sValue.substr(lastButOne + 1, last - lastButOne - 1) + sValue.substr(0, first);
  return atRight == sName && atLeft == sName;
}

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

std::string GetLocalText(int id) {
  try {
    auto& catalogue = Services().Catalogue;
    if (catalogue == nullptr) catalogue = Create<LocalTextComponent>("LocalText.clsLocalText");
    return catalogue->GetLocalTextBASE(static_cast<std::int16_t>(id));
  } catch (const Failure& failure) {
    ReportFault(kGetLocalTextFault, failure, "");
    return {};
  }
}

std::vector<std::string> GetLocalTextInAllLanguages(std::int16_t id) {
  std::vector<std::string> texts{GetLocalText(id)};
  if (Services().Catalogue == nullptr) return texts;
  const auto others = Services().Catalogue->GetOtherLanguagesBASE(id);
  texts.insert(texts.end(), others.begin(), others.end());
  return texts;
}

std::string CatalogueText(std::int16_t number, std::string_view otherwise) {
  std::string text;
  SkipFailure([&] {
    // One that the call does not have is made, but not kept: what is shown changes nothing in the call.
    auto catalogue = Services().Catalogue;
    if (catalogue == nullptr) catalogue = Create<LocalTextComponent>("LocalText.clsLocalText");
    text = catalogue->GetLocalTextBASE(number);
  });
  return text.empty() ? std::string(otherwise) : text;
}

std::string GetLocalText(int id, const std::string& sName, const std::string& sValue) {
  return ReplaceVariable(GetLocalText(id), sName, sValue);
}

std::string ReplaceVariable(const std::string& sText, const std::string& sName, const std::string& sValue) {
  const std::string marker = "%" + sName + "%";
  const bool once = ComesBack(sName, sValue);
  std::string text = sText;
  for (auto at = text.find(marker); at != std::string::npos;) {
    text.replace(at, marker.size(), sValue);
    at = text.find(marker, once ? at + sValue.size() : 0);
  }
  return text;
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
