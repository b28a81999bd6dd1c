#pragma once

#include <string_view>

/// The version of these headers: major, minor and revision number.
#define ORLIN_VERSION_MAJOR 1
#define ORLIN_VERSION_MINOR 0
#define ORLIN_VERSION_REVISION 0
/// One number that grows with the version, for comparisons by the preprocessor.
#define ORLIN_VERSION (ORLIN_VERSION_MAJOR * 10000 + ORLIN_VERSION_MINOR * 100 + ORLIN_VERSION_REVISION)

namespace [[using gnu: visibility("default")]] orlin {

/// The version of the library that is loaded, which may be newer than the headers: the three numbers, joined by ".".
[[nodiscard]] std::string_view LibraryVersion();

}  // namespace orlin
