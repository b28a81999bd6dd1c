#include "frame/controls/zone_box.h"

#include "frame/values/conversions.h"

namespace orlin {
namespace {

constexpr int kHighestZone = 248;

}  // namespace

bool IsAllDigits(Dialog& form, std::string_view text) {
  if (text.find_first_not_of("0123456789") == std::string_view::npos) return true;
  form.Beep();
  return false;
}

std::string LimitZone(const std::string& text) {
  return NumericValue(text) > kHighestZone ? std::to_string(kHighestZone) : text;
}

void FilterZoneBox(Dialog& form, TextBox& box, std::string& lastText, bool& filterOn) {
  if (!filterOn) return;
  const std::string text = box.Text();
  if (!IsAllDigits(form, text)) return box.SetText(lastText);
  lastText = text;
  filterOn = false;
  box.SetText(LimitZone(text));
  filterOn = true;
}

}  // namespace orlin
