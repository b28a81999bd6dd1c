#include "support/windows_of_tests.h"

namespace orlin::testing {

WindowSystem* WindowsOfTests() { return nullptr; }

}  // namespace orlin::testing
