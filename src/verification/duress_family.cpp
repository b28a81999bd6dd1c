#include "verification/duress_family.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

#include "OrlinCustomDialogs/written_text.h"

#include "frame/values/conversions.h"

namespace orlin {

DuressFamily CalculateDuressPasscode(const std::string& p) {
  DuressFamily family;
  if (p.empty()) return family;
  ReportFailure(PasscodeFault("CalculateDuressPasscode()"), [&] {
    if (p.back() < '0' || p.back() > '9') throw Failure(failures::TypeMismatch);
    const int lowest = p.back() - '0' + 10 - 2;
    const auto prefix = p.substr(0, p.size() - 1);
    for (std::size_t i = 0; i < family.size(); ++i) {
      family[i] = prefix + std::to_string((lowest + static_cast<int>(i)) % 10);
    }
  });
  return family;
}

bool UpdateMatchPasscodeArray(Array& codes, std::int16_t PasscodeLength) {
  bool anyStays = true;
  ReportFailure(PasscodeFault(" UpdateMatchPasscodeArray"), [&] {
    // How many families each passcode is in. Conflicts are mutual, so that an entry without one can be emptied without
    // a new count.
    std::unordered_map<std::string, std::ptrdiff_t> families;
    for (const auto& code : codes.Elements()) {
      for (const auto& member : CalculateDuressPasscode(ToText(code))) ++families[member];
    }
    bool stays = false;
    for (auto i = codes.LowerBound(); i <= codes.UpperBound(); ++i) {
      const auto entry = ToText(codes.At(i));
      if (entry.empty()) continue;
      if (CharacterCount(entry) < PasscodeLength ||
          families[entry] > std::ranges::count(CalculateDuressPasscode(entry), entry)) {
        stays = true;
      } else {
        codes.At(i) = "";
      }
    }
    anyStays = stays;
  });
  return anyStays;
}

}  // namespace orlin
