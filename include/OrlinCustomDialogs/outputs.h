#pragma once

#include <cstdint>

#include "OrlinCustomDialogs/value.h"

// Editors of outputs and relays.
//
// Without a text catalogue (see `Platform`) lists stay empty, and every call fails with 91 or 380.
//
// Each `Display` returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which
// nothing was shown: 380 or 9 for a number that names no choice, 13 or 6 for a value that is no integer of its size,
// 424 or 13 for `SecurityLevels` that are no collection, 5 for a collection with records but without "AuthorityLevel".
// Two more come after OK: 6 for stored hexadecimal digits that no 32-bit integer holds, 9 for an array that is too
// short. A number may come in as a number or as a text of digits. On any outcome but 0 the arguments stay as they came,
// unless a class says otherwise; after one of these two failures some hold new values. A part that is hidden or
// disabled keeps its value.

namespace [[using gnu: visibility("default")]] orlin {

/// Edits one relay of a Birch octal relay module.
///
///     orlin::Value type{std::int16_t{4}}, option{std::int16_t{1}}, data{"05"};
///     if (orlin::clsOctalRelaysBirch().Display("Relay 3", type, option, data, levels) == 0) store(type, option, data);
class clsOctalRelaysBirch {
 public:
  /// `vName`: names the relay in the title; only shown.
  ///
  /// `vType`, 0 to 4: none, an event, an alarm type, a function number, a zone. An Integer after OK.
  ///
  /// `vOption`: 0 for type 0, to 3 for the types 1 to 3, to 12 for type 4. An Integer after OK.
  ///
  /// `vData`: a text of hexadecimal digits without a prefix, such as "F8" or "5"; other characters end the number. By
  /// type: 0; 0 to 9 or 11 to 13 (10 opens as 9); 0 to 13; the function number 1 to 24, or 0 for disabled; the zone 0
  /// to 248. After OK a text of at least two capital digits. **It does not survive other outcomes:** after Cancel or a
  /// failure it is a Double, the number that was read, less 1 for type 1 above 9. A caller that needs the text keeps a
  /// copy. Only a failure for `SecurityLevels` that are no collection comes before that.
  ///
  /// `SecurityLevels`: rights. Records: "Type", "Options", and for the data "Output Follows" (types 0 to 2), "Function"
  /// (3), "Follows Zone" (4).
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, Value& vData, const Value& SecurityLevels);
};

/// Edits one output function of the Birch panels.
class clsOutputFunctionsBirch {
 public:
  /// `vName`: names the output in the title; only shown.
  ///
  /// `vType`: the function code, 0 to 15 without 2 and 5, which open as 3 and 4. An Integer after OK. **It does not
  /// survive other outcomes:** after Cancel or a failure a code above 2 is an Integer, its position in the list, 8
  /// for example comes back as 6.
  ///
  /// `vOption`: 0 to 12, by function. An Integer after OK.
  ///
  /// `vFirstZone`, `vSecondZone`: texts of hexadecimal digits without a prefix. The codes 14 and 15 use both, 13 the
  /// first. After OK texts of at least two capital digits, "00" for a zone that the function does not use. A zone above
  /// 248 is shown as it came; the operator cannot enter one.
  ///
  /// `SecurityLevels`: rights. Records: "Output Function", "Options", "Follows Zone 1", "Follows Zone 2".
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, Value& vFirstZone, Value& vSecondZone,
                       const Value& SecurityLevels);
};

/// Edits one onboard output of the Birch panels.
class clsOnboardOutputsBirch {
 public:
  /// `vName`: names the output in the title; only shown.
  ///
  /// `vType`: the type code, 0 to 14 without 12, which opens as 13. An Integer after OK. **It does not survive other
  /// outcomes:** after Cancel or a failure 13 and 14 are the Integers 12 and 13.
  ///
  /// `vOption`: 0 to 4; 9 is the failure for any other number. An Integer after OK, always 1 with the code 14.
  ///
  /// `SecurityLevels`: rights. Records: "Output Follows", "Options".
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, const Value& SecurityLevels);
};

/// Edits one function of a relay of the Oak panels. The models differ in the number of functions and of points.
template <std::int32_t PanelType>
class RelayParamOak {
 public:
  /// `RelayNo`: the number or name of the relay; only shown.
  ///
  /// `FunctionNo`: the number or name of the function; shown, and part of the names of two records.
  ///
  /// `FunctionCode`: 0 to 24 on OakGrand, 0 to 18 on OakMid, 0 to 24 without 23, which opens as 24, on OakBase. An
  /// Integer after OK.
  ///
  /// `ParameterCode`: an Array of numbers 0 or 1 from index 0, at least as long as the longest list of check items: 24
  /// on OakGrand, 8 on the others. Each item is an element: points with the codes 1 to 5 (24 on OakGrand, 8 on OakMid,
  /// 6 on OakBase), 3 keys with 6 to 8, 8 users with 9. After OK its elements are Integers, 0 beyond the items of the
  /// code. 9 is the failure after OK for one that is shorter than the list, 13 or 6 for an element that is no byte.
  ///
  /// `SecurityLevels`: rights. Records: "Function " and "----Parameter ", each followed by `FunctionNo`.
  std::int32_t Display(const Value& RelayNo, const Value& FunctionNo, Value& FunctionCode, Value& ParameterCode,
                       const Value& SecurityLevels);
};
using clsRelayParam_OakGrand = RelayParamOak<21>;
using clsRelayParam_OakMid = RelayParamOak<22>;
using clsRelayParam_OakBase = RelayParamOak<23>;

/// Edits one output function code of the Pine panel, or of a panel that shares its list of functions.
class clsOutputFunctions_Pine {
 public:
  /// `vName`: names the output in the title; only shown.
  ///
  /// `vCode`: the row in the list of functions, from 0. -1, empty, an empty text, or a number beyond the list: none. An
  /// Integer after OK, which is -1 where the operator entered two numbers that name no function.
  ///
  /// `vPanelType`: the panel-type code, which decides on the texts and the length of the list: rows 0 to 114 for 8 and
  /// 24 to 31, to 126 for 41 to 47, 52, 54 and 55, to 125 for any other.
  std::int32_t Display(const Value& vName, Value& vCode, const Value& vPanelType);
};

/// Edits a pulse count: how many pulses, within what time.
template <std::int32_t PanelType>
class PulseCountPine {
 public:
  /// `vName`: names the item in the title; only shown.
  ///
  /// `vInterval1`, `vInterval2`: the two intervals of the panel, 16-bit integers; only shown.
  ///
  /// `vPulseCount`: 1 for one pulse of the first interval, 0 for one of the second, 2 to 15 for that many pulses. Any
  /// other number selects none. An Integer after OK, -1 where none is selected.
  ///
  /// `vPulseCountTime`: the position in the list of times: 0 with the counts 0 and 1, whatever came in, else 0 to 7 of
  /// the first and 8 to 15 of the second interval. Any other number selects none. An Integer after OK, -1 where none is
  /// selected.
  ///
  /// `SecurityLevels`: rights. Records: "Pulse Count", "Pulse Count Time".
  std::int32_t Display(const Value& vName, const Value& vInterval1, const Value& vInterval2, Value& vPulseCount,
                       Value& vPulseCountTime, const Value& SecurityLevels);
};
using clsPulseCount_Pine = PulseCountPine<8>;
using clsPulseCount_Spruce = PulseCountPine<24>;

}  // namespace orlin
