#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/platform.h"

namespace orlin {

/// What all dialogs share, one instance in the process. `InitApplicationVariables` makes the objects,
/// `ReleaseSharedServices` lets them go; the rest keeps its last value.
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

/// The platform that the program installed.
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
