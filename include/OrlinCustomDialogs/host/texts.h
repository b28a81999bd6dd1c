#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// What a host itself says beside a dialog, in the operator's language.

namespace [[using gnu: visibility("default")]] orlin {

/// Numbers of the catalogue for what hosts put up of their own.
namespace texts {
inline constexpr std::int16_t Ok = 101;
inline constexpr std::int16_t Cancel = 119;
inline constexpr std::int16_t Yes = 20020;
inline constexpr std::int16_t No = 20021;
inline constexpr std::int16_t Cut = 20022;
inline constexpr std::int16_t Copy = 20023;
inline constexpr std::int16_t Paste = 20024;
inline constexpr std::int16_t SelectAll = 20025;
inline constexpr std::int16_t Up = 20026;
inline constexpr std::int16_t Down = 20027;
}  // namespace texts

/// A text of the catalogue, with the mark of its access key; `otherwise` where the catalogue does not have it or there
/// is none. Fails with nothing and reports nothing.
[[nodiscard]] std::string CatalogueText(std::int16_t number, std::string_view otherwise);

}  // namespace orlin
