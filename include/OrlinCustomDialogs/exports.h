#pragma once

#include <cstdint>

#include "OrlinCustomDialogs/public_classes.h"

/// The entry points of the shared library `OrlinCustomDialogs`. They only hand over to the register of public classes.
/// Each returns 0 when it was done.
extern "C" {

/// Hands out the class of that name, "OrlinCustomDialogs.clsZoneFunctionsWillow"; 429 and null where there is none with
/// a `Display`. The class belongs to the library and lives as long as it is loaded.
[[gnu::visibility("default")]] std::int32_t DllGetClassObject(const char* name, const orlin::PublicClass** classObject);

/// 0 when the library can be unloaded, 1 while anybody holds an object of it that can be called by name.
[[gnu::visibility("default")]] std::int32_t DllCanUnloadNow();

/// Registers every public class as "OrlinCustomDialogs.<class>", the value lists and their elements too, so that
/// `CreateObject` makes it.
[[gnu::visibility("default")]] std::int32_t DllRegisterServer();

/// Takes the registrations back.
[[gnu::visibility("default")]] std::int32_t DllUnregisterServer();
}
