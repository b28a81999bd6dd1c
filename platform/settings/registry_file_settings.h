#pragma once

#include <filesystem>
#include <map>

#include "OrlinCustomDialogs/components.h"

#include "settings/registry_file.h"

namespace orlin {

/// A settings store that holds what a file in registry-export format says (see `ReadRegistryFile`).
class RegistryFileSettings : public SettingsStore {
 public:
  /// The built-in settings, under "Software\Varnek\Tolmar": "WarningLevel" of "Setup" and "APPLICATION_TYPE" of
  /// "Installation" are "0".
  RegistryFileSettings();
  /// Those of the file, and none of the built-in ones. `PlatformError` where it is missing or malformed.
  explicit RegistryFileSettings(const std::filesystem::path& file);

  std::optional<Key> RegOpenKeyA(Hive hive, const std::string& subKey) override;
  /// Values other than texts come without their bytes.
  std::optional<Setting> RegQueryValueExA(Key key, const std::string& valueName) override;
  void RegCloseKey(Key key) override;

 private:
  RegistryKeys keys_;
  std::map<Key, const RegistryValues*> open_;
};

}  // namespace orlin
