#pragma once

#include <cstdint>

#include "OrlinCustomDialogs/value.h"

// Editors of wireless devices.
//
// Without a text catalogue (see `Platform`) lists stay empty, and every call fails with 91 or 429.
//
// Each `Display` returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which
// nothing was shown: 380 for a number that names no choice, 13 or 6 for a value that is not of its form, 9 for an array
// that is too short, 424 or 13 for `SecurityLevels` that are no collection. On any outcome but 0 the arguments stay as
// they came.

namespace [[using gnu: visibility("default")]] orlin {

/// Edits what kind of device stands on a wireless input.
class clsWSNDeviceTypeInput {
 public:
  /// `vDeviceType`: 0 to 30; 5, 6 and 12 are no types of their own and come back as 3, 4 and 0.
  ///
  /// `vOption`: the relay type of device type 8: 0 none, 1 input only, 2 input and output.
  ///
  /// `vMappedOutput`: the output that such a relay is mapped to.
  ///
  /// The three are numbers or texts, and come back as Integers after OK.
  ///
  /// `vfreeOutputs`: an array of booleans with the indexes 0 to 3, true for an output that is free.
  ///
  /// `SecurityLevels`: has to be a collection; none of its records is applied.
  std::int32_t Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption, const Value& vfreeOutputs,
                       const Value& SecurityLevels);
};

/// Edits what kind of device stands on a wireless output.
class clsWSNDeviceTypeOutput {
 public:
  /// `vDeviceType`: 0, 5, 8, 15, 18 or 20 to 30; any other number below 20 comes back as 0. Type 5 always comes back
  /// with the `vOption` 1 and the `vMappedOutput` 35.
  ///
  /// `vMappedOutput`, `vOption`: as for inputs; a mapping that is not 1 to 32 opens at the first free point.
  ///
  /// `vFreeInputs`: an array of booleans with the indexes 0 to 31, true for a point that is free.
  std::int32_t Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption, const Value& vFreeInputs,
                       const Value& SecurityLevels);
};

/// Edits the sensitivity of a wireless sensor.
class clsWSNSensorSensitivity {
 public:
  /// `vOption`: the kind of sensor, 1 or 2 for a motion sensor, 10 for an inertia sensor. With any other kind nothing
  /// can be chosen, and OK leaves `res` as it came.
  ///
  /// `res`: 0 or 4 for a motion sensor, 0 to 3 or 8 to 15 for an inertia sensor; a number or a text; an Integer after
  /// OK.
  std::int32_t Display(const std::int16_t& vOption, Value& res);
};

/// Edits the identification number of a wireless device.
class clsWirelessPointID {
 public:
  /// `iOption1`, `iOption2`: choose the title only.
  ///
  /// `vType`: a text of decimal digits, 0 to 281474976710655; comes back as a text.
  ///
  /// `SecurityLevels`: rights, with the records "Data Value" and "Ranges", each of which hides its part on either
  /// level.
  std::int32_t Display(const std::int16_t& iOption1, const std::int16_t& iOption2, Value& vType,
                       const Value& SecurityLevels);
};

}  // namespace orlin
