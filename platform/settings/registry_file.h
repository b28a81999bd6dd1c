#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// Values by name, and those by the path of their key ("hkey_local_machine\software\..."), all names folded.
using RegistryValues = std::map<std::string, SettingsStore::Setting>;
using RegistryKeys = std::map<std::string, RegistryValues>;

/// A name in the form in which names that differ only in case are equal.
[[nodiscard]] std::string FoldCase(std::string_view name);

/// Reads a file in registry-export format:
///
///     Windows Registry Editor Version 5.00        ; need not be there
///
///     [HKEY_LOCAL_MACHINE\Software\Varnek\Tolmar\Setup]
///     "WarningLevel"="0"
///     "DListLocal"="C:\\accounts\\list"           ; in names and texts: \\ \" and \0 for a zero character
///     "N"=dword:00000001                          ; counts as a value of another type, as do hex: and hex(2):
///     @="the value without a name"
///
/// Texts are bytes as they stand. The last of several values with one name counts.
/// `PlatformError` with file and line for anything else.
[[nodiscard]] RegistryKeys ReadRegistryFile(const std::filesystem::path& path);

}  // namespace orlin
