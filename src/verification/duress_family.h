#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/value.h"

#include "frame/services/modGeneral.h"

// Which passcodes conflict with one another.

namespace orlin {

/// The passcodes that nobody else may have beside a given one: itself, and those that differ from it in the last digit
/// only, by at most 2, counted round from 9 to 0.
using DuressFamily = std::array<std::string, 5>;

/// The family of a passcode, five empty texts for an empty one. One that does not end in a digit is reported as a
/// failure and has an empty family.
[[nodiscard]] DuressFamily CalculateDuressPasscode(const std::string& p);

/// Empties each entry that is in trouble no longer: not shorter than the length, and not in the family of another
/// entry. Tells whether any is left; after a failure, which is reported, it says that there is.
[[nodiscard]] bool UpdateMatchPasscodeArray(Array& codes, std::int16_t PasscodeLength);

/// How the verification of passcodes reports its failures. They are not shown: a timer may cause them each second.
[[nodiscard]] constexpr FaultKind PasscodeFault(std::string_view procedureName) {
  return {
      .ModuleName = "frmVerifyPasscodes", .ProcedureName = procedureName, .OnlyWithFaultObject = true, .Shows = false};
}

}  // namespace orlin
