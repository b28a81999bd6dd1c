#include "app/account_rules.h"

#include <string>
#include <string_view>
#include <utility>

#include "app/arguments.h"

namespace orlin {
namespace {

/// The digits of a Willow zone come back counted from 1, 0 for none, and go in counted from 0; 9 selects none.
Value CountedFromZero(const Value& code) {
  const auto* digits = code.Get<std::string>();
  if (digits == nullptr) return code;
  std::string shifted = *digits;
  for (char& digit : shifted) {
    if (digit == '0') {
      digit = '9';
    } else if (digit > '0' && digit <= '9') {
      --digit;
    }
  }
  return shifted;
}

bool IsTimeEditor(std::string_view name) { return name == "clsTime_FirePanels" || name == "clsLstTime_Rowan"; }

}  // namespace

std::vector<Value> ArgumentsForCall(const PublicClass& editor, std::vector<Value> kept) {
  if (editor.Name() == "clsZoneFunctionsWillow") {
    auto& code = kept.at(PlaceOf(editor, "ZoneCode"));
    code = CountedFromZero(code);
  }
  return kept;
}

bool Confirmed(const PublicClass& editor, std::int32_t result, const std::vector<Value>& returned) {
  // The review ends with 2 when the desired values are to be stored; 1 keeps the existing data.
  if (editor.Name() == "clsErrorMessageNova") return result == 2;
  // The check of the passcodes tells the outcome in an argument.
  if (editor.Name() == "clspasscodeLen") {
    return result == 0 && returned.at(PlaceOf(editor, "bChangedStatus")) != Value(std::int16_t{0});
  }
  return result == 0;
}

std::vector<Value> RawValuesAfter(const PublicClass& editor, const std::vector<Value>& kept,
                                  std::vector<Value> returned) {
  const auto keepOld = [&](std::string_view name) {
    const auto place = PlaceOf(editor, name);
    returned.at(place) = kept.at(place);
  };
  if (IsTimeEditor(editor.Name())) {
    // The new value comes back beside the old one.
    returned.at(PlaceOf(editor, "Index")) = Converted(returned.at(PlaceOf(editor, "res")), ParameterKind::Integer);
    keepOld("res");
  }
  if (editor.Name() == "clspasscodeLen") keepOld("bChangedStatus");
  return returned;
}

}  // namespace orlin
