#include <algorithm>
#include <map>
#include <memory>
#include <string>

#include "OrlinCustomDialogs/exports.h"
#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/lists.h"
#include "OrlinCustomDialogs/verification.h"

#include "frame/classes/late_members.h"
#include "frame/services/services.h"
#include "registers.h"

// The component as a whole: the public classes of all subsystems in one register, and the entry points on it.

namespace orlin {
namespace {

constexpr std::string_view kComponentName = "OrlinCustomDialogs.";

std::vector<PublicClass> Collect() {
  std::vector<PublicClass> all;
  for (const auto classesOf : {NotesClasses, OptionsClasses, OutputsClasses, SchedulesClasses, VerificationClasses,
                               WirelessClasses, ZonesClasses}) {
    for (auto& publicClass : classesOf()) all.push_back(std::move(publicClass));
  }
  std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return a.Name() < b.Name(); });
  return all;
}

template <class Class>
ObjectPtr Make() {
  return std::make_shared<Class>();
}

/// What makes an object of each public class, by its full name.
std::map<std::string, ComponentFactory> Factories() {
  const std::string component(kComponentName);
  std::map<std::string, ComponentFactory> factories;
  for (const auto& publicClass : PublicClasses()) {
    factories[component + publicClass.Name()] = [&publicClass] { return CreateLateBound(publicClass); };
  }
  // These have more than a `Display`.
  factories[component + "clsErrorMessageNova"] = Make<clsErrorMessageNova>;
  factories[component + "clsListItem"] = Make<clsListItem>;
  factories[component + "clsListItems"] = Make<clsListItems>;
  factories[component + "clsRange"] = Make<clsRange>;
  factories[component + "clsRanges"] = Make<clsRanges>;
  return factories;
}

}  // namespace

const std::vector<PublicClass>& PublicClasses() {
  static const std::vector<PublicClass> all = Collect();
  return all;
}

const PublicClass* FindPublicClass(std::string_view name) {
  if (name.starts_with(kComponentName)) name.remove_prefix(kComponentName.size());
  const auto& all = PublicClasses();
  const auto found = std::find_if(all.begin(), all.end(), [&](const auto& known) { return known.Name() == name; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace orlin

std::int32_t DllGetClassObject(const char* name, const orlin::PublicClass** classObject) {
  if (name == nullptr || classObject == nullptr) return orlin::failures::InvalidCall;
  *classObject = orlin::FindPublicClass(name);
  return *classObject != nullptr ? 0 : orlin::failures::CannotCreateObject;
}

std::int32_t DllCanUnloadNow() { return orlin::AnyLiveObject() ? 1 : 0; }

std::int32_t DllRegisterServer() {
  for (const auto& [name, factory] : orlin::Factories()) orlin::InstallFactory(name, factory);
  return 0;
}

std::int32_t DllUnregisterServer() {
  for (const auto& [name, factory] : orlin::Factories()) orlin::RemoveFactory(name);
  return 0;
}
