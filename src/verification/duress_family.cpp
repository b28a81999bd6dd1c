#include "verification/duress_family.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "OrlinCustomDialogs/written_text.h"

#include "frame/values/conversions.h"

namespace orlin {
namespace {

int DigitOf(char c) {
  if (c < '0' || c > '9') throw Failure(failures::TypeMismatch);
  return c - '0';
}

/// The families of many passcodes, so that each new one need not be compared with all of them.
class Families {
 public:
  explicit Families(const Array& codes) {
    for (const auto& code : codes.Elements()) {
      for (const auto& member : CalculateDuressPasscode(ToText(code))) ++owners_[member];
    }
  }

  /// Whether the passcode, which has been counted, is in the family of another one.
  [[nodiscard]] bool HasOther(const std::string& code) const {
    const auto found = owners_.find(code);
    const auto own = CalculateDuressPasscode(code);
    return found != owners_.end() && found->second > std::count(own.begin(), own.end(), code);
  }

 private:
  // How many families a passcode is in.
  std::unordered_map<std::string, int> owners_;
};

}  // namespace

DuressFamily CalculateDuressPasscode(const std::string& p) {
  DuressFamily family;
  if (p.empty()) return family;
  ReportFailure(PasscodeFault("CalculateDuressPasscode()"), [&] {
    const int lowest = DigitOf(p.back()) + 10 - 2;
    const auto prefix = p.substr(0, p.size() - 1);
    for (std::size_t i = 0; i < family.size(); ++i) {
      family[i] = prefix + std::to_string((lowest + static_cast<int>(i)) % 10);
    }
  });
  return family;
}

bool UpdateMatchPasscodeArray(Array& codes, std::int16_t PasscodeLength) {
  std::optional<bool> anyStays;
  ReportFailure(PasscodeFault(" UpdateMatchPasscodeArray"), [&] {
    // Conflicts are mutual, so that an entry without one can be emptied without a new count.
    const Families families(codes);
    bool stays = false;
    for (auto i = codes.LowerBound(); i <= codes.UpperBound(); ++i) {
      const auto entry = ToText(codes.At(i));
      if (entry.empty()) continue;
      if (CharacterCount(entry) < PasscodeLength || families.HasOther(entry)) {
        stays = true;
        continue;
      }
      codes.At(i) = "";
    }
    anyStays = stays;
  });
  return anyStays.value_or(true);
}

}  // namespace orlin
