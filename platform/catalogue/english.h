#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orlin {

struct EnglishText {
  std::int16_t Number;
  std::string_view Text;
};

/// The texts of catalogue/en.tsv, in the order of their numbers.
[[nodiscard]] std::span<const EnglishText> EnglishTexts() noexcept;

}  // namespace orlin
