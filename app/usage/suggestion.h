#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlin {

/// " (did you mean clsPanelGMT?)": up to three of the known words that are near to one that is not known, or that it
/// is a part of, the nearest first. Case does not count. Empty where none is near.
[[nodiscard]] std::string DidYouMean(std::string_view unknown, const std::vector<std::string>& known);

/// "list, edit and account", with "and" for the last word.
[[nodiscard]] std::string Enumerated(const std::vector<std::string>& words, std::string_view last);

}  // namespace orlin
