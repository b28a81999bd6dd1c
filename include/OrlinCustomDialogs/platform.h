#pragma once

#include <map>
#include <memory>
#include <string>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/host/dialog_host.h"

namespace [[using gnu: visibility("default")]] orlin {

/// Everything that the library asks of the program around it.
struct Platform {
  /// Who shows the dialogs. Needed by every `Display`.
  std::shared_ptr<DialogHost> Host;
  /// Without one every setting counts as absent.
  std::shared_ptr<SettingsStore> Settings;
  /// Needed by the schedule editors alone.
  std::shared_ptr<BitRoutines> Bits;
  /// Needed by fault reports and by the notes.
  std::shared_ptr<orlin::Clock> Clock;
  /// Used by the notes alone, to tell of a database whose file is missing.
  std::shared_ptr<DatabaseEngine> Engine;
  /// Factories of the components that are created by name: "LocalText.clsLocalText",
  /// "FaultObject.clsFaultObject", "storeObj.clsDList", "Kesmit.Encryption.CCrypt". A name that is missing
  /// counts as a component that is not installed.
  std::map<std::string, ComponentFactory, std::less<>> Components;
};

/// Installs the platform for all calls to come, in place of what was installed before, and drops the shared
/// services that an earlier call may have left. A call that runs keeps the platform that it began with.
void UsePlatform(Platform platform);

}  // namespace orlin
