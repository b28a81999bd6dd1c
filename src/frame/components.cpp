#include "OrlinCustomDialogs/components.h"

#include <utility>

#include "OrlinCustomDialogs/platform.h"

#include "frame/services.h"

namespace orlin {
namespace {

// The one process-wide state of the library. It is not guarded: all calls come on the host's thread.
struct Process {
  Platform Installed;
  std::map<std::string, ComponentFactory, std::less<>> Registered;
  SharedServices Shared;
};

Process& TheProcess() noexcept {
  static Process process;
  return process;
}

template <class Service>
Service& Need(const std::shared_ptr<Service>& service, const char* what) {
  if (service == nullptr) throw Failure(failures::NoObject, std::string("No ") + what + " is installed");
  return *service;
}

}  // namespace

void UsePlatform(Platform platform) {
  ReleaseSharedServices();
  TheProcess().Installed = std::move(platform);
}

const Platform& InstalledPlatform() noexcept { return TheProcess().Installed; }

SharedServices& Services() noexcept { return TheProcess().Shared; }

void ReleaseSharedServices() noexcept {
  auto& services = Services();
  services.Catalogue.reset();
  services.FaultObject.reset();
  services.Store.reset();
}

DialogHost& CurrentHost() { return Need(InstalledPlatform().Host, "dialog host"); }

Clock& CurrentClock() { return Need(InstalledPlatform().Clock, "clock"); }

BitRoutines& CurrentBits() { return Need(InstalledPlatform().Bits, "bit routine"); }

void InstallFactory(const std::string& name, ComponentFactory factory) {
  TheProcess().Registered.insert_or_assign(name, std::move(factory));
}

void RemoveFactory(const std::string& name) { TheProcess().Registered.erase(name); }

ObjectPtr CreateObject(std::string_view name) {
  for (const auto* factories : {&TheProcess().Installed.Components, &TheProcess().Registered}) {
    const auto found = factories->find(name);
    if (found == factories->end() || !found->second) continue;
    if (auto object = found->second()) return object;
  }
  throw Failure(failures::CannotCreateObject, "The component " + std::string(name) + " cannot be created");
}

}  // namespace orlin
