#pragma once

#include <cstdint>

#include "OrlinCustomDialogs/value.h"

// Editors of communication and clock options.
//
// Without a text catalogue (see `Platform`) lists stay empty, and calls that need one fail with 91 or 380.
//
// Each `Display` returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which
// nothing was shown: 380 or 9 for a number that names no choice, 13 or 6 for a value that is no 16-bit integer, 424 or
// 13 for `SecurityLevels` that are no collection, 5 for a collection with records but without "AuthorityLevel". On any
// outcome but 0 the arguments stay as they came. A part that is hidden or disabled keeps its value.

namespace [[using gnu: visibility("default")]] orlin {

/// Edits how a panel responds to a phone line fault.
class clsPhoneOptions_Pine {
 public:
  /// `vTrouble` (report a system trouble), `vOn` and `vOff` (sound the alarm while the system is on, or off): 0 or 1,
  /// numbers or texts; after OK they come back as Integers. `vOn` and `vOff` need `vTrouble`; on the panel types 8, 26
  /// and 27 both together do without it.
  ///
  /// `SecurityLevels`: rights. The record names are the long names of the parameters; the first two depend on the
  /// panel: "Enable Supervision (System Trouble at Cmd Ctr)" (8, 26, 27, 40) or "... at Keypad)" (others); "Burg Alarm
  /// and Strobe Functions, All or Part On" (8, 25, 26, 27),
  /// "&Burg Alarm and Strobe Functions, Away Mode or Stay Mode" (40) or
  /// "Burg Alarm and Strobe Functions, All On or Perimeter Only" (others);
  /// "Burg Alarm and Strobe Functions, Off".
  ///
  /// `vPanelType`: the panel-type code, a 32-bit integer or a text of one.
  std::int32_t Display(Value& vTrouble, Value& vOn, Value& vOff, const Value& SecurityLevels, const Value& vPanelType);
};

/// Edits the mode of the alternate communicator and what it prints.
class clsAltCommConfiguration {
 public:
  /// `vName`: not used.
  ///
  /// `vMode` 0 to 2; `vAlarm`, `vOpenClose`, `vAll` 0 or 1: numbers or texts; after OK they come back as Integers. The
  /// three can be changed in mode 1 only; a change to another mode sets them to 0.
  ///
  /// `SecurityLevels`: a collection, of which no record is applied.
  ///
  /// `iItemNo`: the number of the edited item; 132 has another third mode.
  std::int32_t Display(const Value& vName, Value& vMode, Value& vAlarm, Value& vOpenClose, Value& vAll,
                       const Value& SecurityLevels, const std::int16_t& iItemNo);
};

/// Edits the time offset of a panel from GMT. A failure outside the dialog reaches the caller as a `Failure`.
class clsPanelGMT {
 public:
  /// `iHrs` 0 to 12 hours; `iMins` 0 to 59 minutes, 60 by stepping, 0 with 12 hours.
  ///
  /// `iIsPanelBehind`, `iPanelDayLightSaving`: 0 for no, any other number for yes; 0 or 1 after OK.
  ///
  /// `SecurityLevels`: every record counts, whatever its name. It hides or disables the up-downs and the check boxes;
  /// the numbers can still be typed.
  std::int32_t Display(std::int16_t& iHrs, std::int16_t& iMins, std::int16_t& iIsPanelBehind,
                       std::int16_t& iPanelDayLightSaving, const Value& SecurityLevels);
};

/// Edits over which of two routes a report goes.
class clsReportroutinglite {
 public:
  /// `vOption`: 0 neither route, 1 route A, 2 route B, 3 both; a number or a text; an Integer after OK.
  ///
  /// `SecurityLevels`: the record "Options" hides the choice where either level is too low.
  std::int32_t Display(Value& vOption, const Value& SecurityLevels);
};

}  // namespace orlin
