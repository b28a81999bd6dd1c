#include "frame/services/modRegistry.h"

#include "frame/services/services.h"
#include "frame/values/skip_failure.h"

namespace orlin {
namespace {

/// A key of the settings store, closed at the end of its scope whatever happens.
class OpenKey {
 public:
  OpenKey(SettingsStore& store, SettingsStore::Hive hive, const std::string& subKey)
      : store_(store), key_(store.RegOpenKeyA(hive, subKey)) {}
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  ~OpenKey() {
    if (key_) SkipFailure([this] { store_.RegCloseKey(*key_); });
  }

  [[nodiscard]] std::optional<SettingsStore::Setting> Query(const std::string& valueName) const {
    return key_ ? store_.RegQueryValueExA(*key_, valueName) : std::nullopt;
  }

 private:
  SettingsStore& store_;
  std::optional<SettingsStore::Key> key_;
};

}  // namespace

std::string ReadRegistryString(SettingsStore::Hive hKey, const std::string& sSubKey, const std::string& sValueName,
                               const std::string& sDefault) {
  const auto& store = InstalledPlatform().Settings;
  if (store == nullptr) return sDefault;
  const auto setting = OpenKey(*store, hKey, sSubKey).Query(sValueName);
  if (!setting || setting->type != SettingsStore::Type::String) return sDefault;
  return setting->Bytes.substr(0, setting->Bytes.find('\0'));
}

std::string GetRegSetting(const std::string& sAppName, const std::string& sSection, const std::string& sKey,
                          const std::string& sDefault) {
  return ReadRegistryString(SettingsStore::Hive::LocalMachine, "Software\\Varnek\\" + sAppName + "\\" + sSection, sKey,
                            sDefault);
}

}  // namespace orlin
