#include "zones/frmZoneTypeBirch.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

struct ZoneType {
  std::int16_t Text;
  std::int16_t StoredValue;
};
/// In the order of the list.
using ZoneTypes = std::span<const ZoneType>;

enum class RF { Any, No, Yes };

struct ZoneRange {
  std::int32_t First;
  std::int32_t Last;
  RF OrlinRF;
  ZoneTypes Types;
};

constexpr std::int32_t kAndAbove = std::numeric_limits<std::int32_t>::max();

constexpr ZoneType kOnlyWired[] = {{10540, 0}};
constexpr ZoneType kWired[] = {{10540, 0}, {10542, 1}, {10543, 2}, {10544, 3}, {10545, 4}};
constexpr ZoneType kTamper[] = {{10546, 0}, {10542, 1}, {10543, 2}, {10544, 3}, {10545, 4}};
constexpr ZoneType kOnlyRadio[] = {{10311, 0}};
constexpr ZoneType kExpander[] = {{10554, 0}, {10542, 1}, {10543, 2}, {10544, 3}, {10545, 4}, {10548, 5}};
constexpr ZoneType kRadio[] = {{10547, 0}, {10548, 5}};

constexpr std::array<ZoneRange, 8> kZoneRanges = {{
    {1, 8, RF::Any, kOnlyWired},
    {9, 128, RF::Any, kWired},
    {129, 129, RF::No, kWired},
    {130, 134, RF::No, kTamper},
    {135, 136, RF::No, kWired},
    {129, 136, RF::Yes, kOnlyRadio},
    {137, kAndAbove, RF::No, kExpander},
    {137, kAndAbove, RF::Yes, kRadio},
}};

/// `Failure` 9 for a zone below 1.
ZoneTypes TypesOf(std::int32_t zone, bool orlinRF) {
  const auto range = std::find_if(kZoneRanges.begin(), kZoneRanges.end(), [&](const auto& candidate) {
    const bool suits = candidate.OrlinRF == RF::Any || candidate.OrlinRF == (orlinRF ? RF::Yes : RF::No);
    return suits && zone >= candidate.First && zone <= candidate.Last;
  });
  if (range == kZoneRanges.end()) throw Failure(failures::SubscriptOutOfRange);
  return range->Types;
}

}  // namespace

frmZoneTypeBirch::frmZoneTypeBirch() {
  Form.OnLoad = [this] { Form.Centre(); };
  cmdCancel.Click = [this] { Form.HideWith(ExitCode::Cancel); };
}

// Run by `Display` and not by the loading of the dialog, so that a failure in it is not skipped.
void frmZoneTypeBirch::LoadCaptions() {
  Form.SetCaption(GetLocalText(10318));
  Label1.SetCaption(GetLocalText(10318));
  cmdCancel.SetCaption(GetLocalText(119));
}

std::int32_t frmZoneTypeBirch::Display(const Value& iZoneNum, const Value& iOrlinRF, Value& iZoneType,
                                       const Value& /*iMultiZoneType*/, const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    LoadCaptions();
    Form.KeepSecurityLevels(SecurityLevels);
    FillZoneTypeList(iZoneNum, iOrlinRF, iZoneType);
    if (!MayView(Form.SecurityLevels(), "Type")) cmbZoneType.SetAllowed(false);
  };
  steps.Encode = [&] { iZoneType = ZoneTypeValues.at(static_cast<std::size_t>(cmbZoneType.ListIndex())); };
  return RunDisplay(Form, steps);
}

void frmZoneTypeBirch::FillZoneTypeList(const Value& iZoneNum, const Value& iOrlinRF, const Value& iZoneType) {
  const auto zone = ToLong(iZoneNum);
  const bool orlinRF = ToDouble(iOrlinRF) != 0;
  for (const auto& type : TypesOf(zone, orlinRF)) {
    ZoneTypeTexts.push_back(GetLocalText(type.Text));
    ZoneTypeValues.push_back(type.StoredValue);
  }
  for (const auto& text : ZoneTypeTexts) cmbZoneType.AddItem(text);

  if ((zone >= 9 && zone <= 128) || !orlinRF) {
    cmbZoneType.SelectRow(ToInteger(iZoneType));
  } else {
    // Asks for the second position also of a list of one, which then fails.
    cmbZoneType.SelectRow(ToDouble(iZoneType) == 5 ? 1 : 0);
  }
}

}  // namespace orlin
