#include "settings/registry_file_settings.h"

namespace orlin {
namespace {

std::string PathOf(const std::string& subKey) { return FoldCase("HKEY_LOCAL_MACHINE\\" + subKey); }

RegistryKeys BuiltInKeys() {
  const auto section = [](const std::string& name) { return PathOf("Software\\Varnek\\Tolmar\\" + name); };
  const SettingsStore::Setting zero{SettingsStore::Type::String, "0"};
  return {{section("Setup"), {{FoldCase("WarningLevel"), zero}}},
          {section("Installation"), {{FoldCase("APPLICATION_TYPE"), zero}}}};
}

}  // namespace

RegistryFileSettings::RegistryFileSettings() : keys_(BuiltInKeys()) {}

RegistryFileSettings::RegistryFileSettings(const std::filesystem::path& file) : keys_(ReadRegistryFile(file)) {}

std::optional<SettingsStore::Key> RegistryFileSettings::RegOpenKeyA(Hive, const std::string& subKey) {
  const auto found = keys_.find(PathOf(subKey));
  if (found == keys_.end()) return std::nullopt;
  const Key key = open_.empty() ? 1 : open_.rbegin()->first + 1;
  open_.emplace(key, &found->second);
  return key;
}

std::optional<SettingsStore::Setting> RegistryFileSettings::RegQueryValueExA(Key key, const std::string& valueName) {
  const auto opened = open_.find(key);
  if (opened == open_.end()) return std::nullopt;
  const auto value = opened->second->find(FoldCase(valueName));
  if (value == opened->second->end()) return std::nullopt;
  return value->second;
}

void RegistryFileSettings::RegCloseKey(Key key) { open_.erase(key); }

}  // namespace orlin
