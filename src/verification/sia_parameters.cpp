#include "verification/sia_parameters.h"

#include <algorithm>

#include "frame/services/modGeneral.h"
#include "frame/services/modPanelTypes.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

using enum SiaFormat;

constexpr std::int16_t kYesText = 10697;
constexpr std::int16_t kNoText = 10707;

constexpr LocalText kYes{kYesText};
constexpr LocalText kNo{kNoText};
constexpr std::string_view kUnset = "-";
constexpr MaximumOfPanel kPanelMax{};

constexpr std::string_view kNone;
constexpr std::string_view kDigits = "1234567890";

constexpr std::optional<SiaArea> kNoArea;

constexpr SiaPresentValue kAsPassed{};
constexpr SiaPresentValue kAsNo{kNoText};
constexpr SiaPresentValue kAsYes{kYesText};
constexpr SiaPresentValue kAsDisabled{10712};
constexpr SiaPresentValue kAsLetter{0, true};

// The texts of the catalogue for yes and no stand for 1 and 0 (see `StoredForm`). The area of row 5 counts from 0,
// which is the whole account.
// clang-format off
constexpr std::array<SiaParameter, kSiaRows> kParameters = {{
    // key name   min     max        allowed string default allowed characters area            present    format
    {},
    {29,   10686, 45,     255,       kByFives,      60,     kDigits,           SiaArea{29, 1}, kAsPassed, ByFives},
    {27,   10687, 6,      90,        kNone,         6,      kDigits,           SiaArea{27, 1}, kAsPassed},
    {7,    10688, 3,      3,         kNone,         3,      kDigits,           kNoArea,        kAsPassed},
    {37,   10689, 1,      kPanelMax, " A,B,C",      "A",    "1234567890ABC",   SiaArea{37, 1}, kAsPassed, PointOrLetter},
    {22,   10690, 30,     240,       kByFives,      30,     kDigits,           SiaArea{0, 0},  kAsPassed, ByFives},
    {54,   10691, 15,     45,        kNone,         30,     kDigits,           kNoArea,        kAsPassed},
    {53,   10692, 1,      2,         kNone,         1,      kDigits,           kNoArea,        kAsPassed},
    {65,   10693, kYes,   kYes,      kNone,         kYes,   kNone,             SiaArea{63, 1}, kAsNo},
    {66,   10694, kYes,   kYes,      kNone,         kYes,   kNone,             SiaArea{64, 1}, kAsNo},
    {52,   10695, 3,      6,         kNone,         4,      kDigits,           kNoArea,        kAsDisabled},
    {55,   10696, kYes,   kYes,      kNone,         kYes,   kNone,             kNoArea,        kAsNo},
    {17,   10739, kUnset, kUnset,    kNone,         kUnset, kNone,             kNoArea,        kAsLetter},
    {19,   10740, kUnset, kUnset,    kNone,         kUnset, kNone,             kNoArea,        kAsLetter},
    {30,   10741, kYes,   kYes,      kNone,         kYes,   kNone,             kNoArea,        kAsNo},
    {10,   10743, kNo,    kNo,       kNone,         kNo,    kNone,             SiaArea{10, 1}, kAsYes},
    {8,    10742, kNo,    kNo,       kNone,         kNo,    kNone,             SiaArea{8, 1},  kAsYes},
}};
// clang-format on

}  // namespace

const std::array<SiaParameter, kSiaRows>& SiaParameters() noexcept { return kParameters; }

std::size_t SiaRowOf(std::int32_t itemNo) noexcept {
  // Row 0 has the key 0.
  const auto found = std::ranges::find(kParameters, itemNo % 100, &SiaParameter::Key);
  return found == kParameters.end() ? 0 : static_cast<std::size_t>(found - kParameters.begin());
}

std::int32_t AreaOf(const SiaParameter& parameter, std::int32_t itemNo) {
  if (!parameter.Area) return 0;
  return ToLong((static_cast<double>(itemNo) - parameter.Area->Subtract) / 100 + parameter.Area->Add);
}

Value ShownPresentValue(const SiaParameter& parameter, const Value& presentValue) {
  const auto& shown = parameter.PresentValue;
  if (shown.ReplacedBy != 0) return GetLocalText(shown.ReplacedBy);
  if (shown.AsLetter && IsNumeric(presentValue)) {
    if (ToDouble(presentValue) == 1) return "E";
    if (ToDouble(presentValue) == 2) return "P";
  }
  return presentValue;
}

Value ContentFor(const SiaContent& content, std::int16_t PanelType) {
  if (const auto* number = std::get_if<int>(&content)) return static_cast<std::int16_t>(*number);
  if (const auto* text = std::get_if<std::string_view>(&content)) return *text;
  if (const auto* local = std::get_if<LocalText>(&content)) return GetLocalText(local->Number);
  return GetPanelLimit(PanelType, "SIARangeMax");
}

std::string GetPanelLimit(std::int16_t PanelType, std::string_view sRequest) {
  if (sRequest != "SIARangeMax") return "";
  switch (static_cast<ePanelType>(PanelType)) {
    case ePanelType::RowanNova:
      return "128";
    case ePanelType::AspenNova:
      return "64";
    case ePanelType::LarchNova:
      return "24";
    default:
      return "";
  }
}

std::string StoredForm(const std::string& desiredValue) {
  if (desiredValue == GetLocalText(kYesText)) return "1";
  if (desiredValue == GetLocalText(kNoText)) return "0";
  if (SameName(desiredValue, "A")) return "253";
  if (SameName(desiredValue, "B")) return "254";
  if (SameName(desiredValue, "C")) return "255";
  if (desiredValue == kUnset) return "0";
  return desiredValue;
}

}  // namespace orlin
