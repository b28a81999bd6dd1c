#include "OrlinCustomDialogs/components.h"

#include <utility>

#include "OrlinCustomDialogs/platform.h"

#include "frame/services/services.h"

namespace orlin {
namespace {

// The one process-wide state of the library. It is not guarded: all calls come on the host's thread.
struct Process {
  PlatformPtr Installed = std::make_shared<const Platform>();  // for the calls to come
  PlatformPtr InUse;                                           // by the call that runs; null between calls
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
  auto& process = TheProcess();
  if (process.InUse == nullptr) ReleaseSharedServices();
  process.Installed = std::make_shared<const Platform>(std::move(platform));
}

RunningCall::RunningCall() noexcept : outerPlatform_(std::exchange(TheProcess().InUse, TheProcess().Installed)) {
  if (outerPlatform_ != nullptr) outerServices_ = std::exchange(Services(), {});
}

RunningCall::~RunningCall() {
  auto& process = TheProcess();
  if (outerPlatform_ != nullptr) {
    process.Shared = std::move(outerServices_);
  } else if (process.InUse != process.Installed) {
    ReleaseSharedServices();
  }
  process.InUse = std::move(outerPlatform_);
}

const Platform& InstalledPlatform() noexcept {
  const auto& process = TheProcess();
  return process.InUse != nullptr ? *process.InUse : *process.Installed;
}

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
  for (const auto* factories : {&InstalledPlatform().Components, &std::as_const(TheProcess()).Registered}) {
    const auto found = factories->find(name);
    if (found == factories->end() || !found->second) continue;
    if (auto object = found->second()) return object;
  }
  throw Failure(failures::CannotCreateObject, "The component " + std::string(name) + " cannot be created");
}

}  // namespace orlin
