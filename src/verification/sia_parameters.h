#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "OrlinCustomDialogs/value.h"

#include "frame/controls/control.h"

// The kinds of parameter that the SIA CP-01 review knows, and the rules that go with their table.

namespace orlin {

/// A text of the catalogue.
struct LocalText {
  std::int16_t Number;
};
/// What `GetPanelLimit` gives for the maximum.
struct MaximumOfPanel {};
/// What the table holds in a cell: a number, a text as it stands, or a text that is looked up.
using SiaContent = std::variant<int, std::string_view, LocalText, MaximumOfPanel>;

/// How an item number tells its area or point: `(item - Subtract) / 100 + Add`, rounded.
struct SiaArea {
  std::int16_t Subtract;
  std::int16_t Add;
};

/// How the present value of an item is shown.
struct SiaPresentValue {
  std::int16_t ReplacedBy = 0;  ///< this text of the catalogue, whatever the value; 0 for the value itself
  bool AsLetter = false;        ///< 1 and 2 as "E" and "P"
};

/// The form in which the desired value of an item is written.
enum class SiaFormat { Any, ByFives, PointOrLetter };

/// One row of the table.
struct SiaParameter {
  std::int16_t Key;
  std::int16_t Name;
  SiaContent Min;
  SiaContent Max;
  std::string_view AllowedString;
  SiaContent Default;
  std::string_view AllowedCharacters;
  std::optional<SiaArea> Area;
  SiaPresentValue PresentValue;
  SiaFormat Format = SiaFormat::Any;
};

/// What stands in cells in English, whatever the language: in place of an area, and behind a maximum.
inline constexpr std::string_view kWithoutArea = "N/A";
inline constexpr std::string_view kByFives = " (Increments of 5 only)";
inline constexpr std::array<FixedText, 2> kFixedCells = {{{kWithoutArea, 20016}, {kByFives.substr(1), 20017}}};

inline constexpr std::size_t kSiaRows = 17;
/// The rows 1 to 16; the row 0 is that of no parameter.
[[nodiscard]] const std::array<SiaParameter, kSiaRows>& SiaParameters() noexcept;

/// The row, 1 to 16, of an item number, which is the key of its row + 100 x the instance; 0 where no row has the key.
[[nodiscard]] std::size_t SiaRowOf(std::int32_t itemNo) noexcept;

/// The area or point of an item; 0 where it has none.
[[nodiscard]] std::int32_t AreaOf(const SiaParameter& parameter, std::int32_t itemNo);

/// The present value as it is shown.
[[nodiscard]] Value ShownPresentValue(const SiaParameter& parameter, const Value& presentValue);

/// A cell of the table for a panel type: an Integer for a number, else a String.
[[nodiscard]] Value ContentFor(const SiaContent& content, std::int16_t PanelType);

/// A limit that differs from panel to panel, as a text; empty for another panel type or request than those known.
[[nodiscard]] std::string GetPanelLimit(std::int16_t PanelType, std::string_view sRequest);

/// The form in which a desired value is stored: "Yes" as "1", "B" as "254", a number as it stands.
[[nodiscard]] std::string StoredForm(const std::string& desiredValue);

}  // namespace orlin
