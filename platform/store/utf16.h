#pragma once

#include <string>
#include <string_view>

namespace orlin {

/// `Failure` 3146 for bytes that are no UTF-8: they would reach a server as something else.
[[nodiscard]] std::u16string Utf16From(std::string_view utf8);
/// Half of a pair without the other becomes U+FFFD.
[[nodiscard]] std::string Utf8From(std::u16string_view utf16);

}  // namespace orlin
