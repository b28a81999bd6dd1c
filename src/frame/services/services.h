#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/platform.h"

namespace orlin {

/// What all dialogs share, one instance in the process, and one more for each call within a call.
/// `InitApplicationVariables` makes the objects, `ReleaseSharedServices` lets them go; the rest keeps its last value.
struct SharedServices {
  std::shared_ptr<LocalTextComponent> Catalogue;
  std::shared_ptr<FaultObjectComponent> FaultObject;
  std::shared_ptr<DListComponent> Store;
  std::int16_t WarningLevel = 0;
  std::string FixedPassword;
  std::string LocalPath;
  std::string NetworkPath;
};

[[nodiscard]] SharedServices& Services() noexcept;

/// Lets the catalogue, the fault object and the store object go. Nothing in it can fail.
void ReleaseSharedServices() noexcept;

using PlatformPtr = std::shared_ptr<const Platform>;

/// One call of a public class, from before its dialog is created until after it is dropped. It keeps the platform that
/// it began with. A host may make a call while another one shows a dialog: the inner one finds no services, as the
/// first call of a process does, and at its end the outer one has its own again, just as they were.
class RunningCall {
 public:
  RunningCall() noexcept;
  RunningCall(const RunningCall&) = delete;
  RunningCall& operator=(const RunningCall&) = delete;
  ~RunningCall();

 private:
  PlatformPtr outerPlatform_;  // of the call around this one; null where there is none
  SharedServices outerServices_;
};

/// The platform of the call that runs, else the one that the program installed last.
[[nodiscard]] const Platform& InstalledPlatform() noexcept;
/// Who shows the dialogs; `Failure` 91 where there is nobody.
[[nodiscard]] DialogHost& CurrentHost();
/// `Failure` 91 where there is none.
[[nodiscard]] Clock& CurrentClock();
[[nodiscard]] BitRoutines& CurrentBits();

/// Lets `CreateObject` find a factory beyond those of the platform, also after another `UsePlatform`.
void InstallFactory(const std::string& name, ComponentFactory factory);
void RemoveFactory(const std::string& name);

/// Creates a component by name as the kind that the caller needs; `Failure` 429 where it cannot be.
template <class Component>
[[nodiscard]] std::shared_ptr<Component> Create(std::string_view name) {
  auto component = std::dynamic_pointer_cast<Component>(CreateObject(name));
  if (component == nullptr) throw Failure(failures::CannotCreateObject);
  return component;
}

}  // namespace orlin
