#pragma once

#include <string>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// A text of the settings store, or `sDefault` where the value is missing, is not of the string type, or its key cannot
/// be opened. A text ends at its first zero character.
[[nodiscard]] std::string ReadRegistryString(SettingsStore::Hive hKey, const std::string& sSubKey,
                                             const std::string& sValueName, const std::string& sDefault);

/// The machine-wide setting of an application and a section.
[[nodiscard]] std::string GetRegSetting(const std::string& sAppName, const std::string& sSection,
                                        const std::string& sKey, const std::string& sDefault);

}  // namespace orlin
