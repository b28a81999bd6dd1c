#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace orlin {

/// Texts by number.
using TextTable = std::map<std::int16_t, std::string>;

/// Reads a catalogue file: one text a line, its number, a tab, the text in UTF-8 with the escapes `\t \n \r \\`. Blank
/// lines and lines that begin with `#` are skipped.
///
/// `PlatformError` with file and line for a line without a tab, a number that is not 1 to 32767 or is there already,
/// another escape, or bytes that are no UTF-8.
[[nodiscard]] TextTable ReadCatalogueFile(const std::filesystem::path& path);

}  // namespace orlin
