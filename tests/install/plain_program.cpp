#include <OrlinCustomDialogs/components.h>
#include <OrlinCustomDialogs/exports.h>
#include <OrlinCustomDialogs/failure.h>
#include <OrlinCustomDialogs/version.h>

#if ORLIN_VERSION < 10000
#error "The headers have no version."
#endif

// The entry points hand out the classes, and a failure that the library throws is caught by its type. The argument is
// the version that the package states.
int main(int, char** arguments) {
  if (orlin::LibraryVersion() != arguments[1]) return 6;
  constexpr auto noSuchClass = orlin::failures::CannotCreateObject;
  const orlin::PublicClass* found = nullptr;
  if (DllGetClassObject("OrlinCustomDialogs.clsPanelGMT", &found) != 0 || found->Name() != "clsPanelGMT") return 1;
  if (DllGetClassObject("OrlinCustomDialogs.clsUnknown", &found) != noSuchClass || found != nullptr) return 2;
  if (DllRegisterServer() != 0 || DllUnregisterServer() != 0 || DllCanUnloadNow() != 0) return 3;
  try {
    static_cast<void>(orlin::CreateObject("OrlinCustomDialogs.clsPanelGMT"));
  } catch (const orlin::Failure& failure) {
    return failure.Number() == noSuchClass ? 0 : 4;  // it is no longer registered
  }
  return 5;
}
