#pragma once

#include <cstdint>

#include "OrlinCustomDialogs/value.h"

// Editors of schedule entries (skeds) and times.
//
// Without a text catalogue (see `Platform`) lists stay empty, and every call for a sked fails with 91.

namespace [[using gnu: visibility("default")]] orlin {

/// Edits one sked of a Willow panel: when it runs and what it does. Use it as `clsSkedFunc_WillowDuo` or
/// `clsSkedFunc_WillowAce`.
///
///     orlin::Value type{std::int16_t{1}}, time{"06:30"}, edit{std::int16_t{0}}, data{"12/24"}, function{"005"};
///     if (orlin::clsSkedFunc_WillowAce().Display(std::int16_t{17}, type, time, edit, data, function, levels) == 0) ...
template <std::int32_t PanelType>
class clsSkedFunc_Willow {
 public:
  /// `SkedNo`: the position of the sked, counted from 0; only shown, as the group of 16 and two digits for the entry in
  /// it: 17 is "202".
  ///
  /// `SkedType`: 0 disabled, 1 by date, 2 by day of week; any other value counts as 0. An Integer after OK.
  ///
  /// `SkedTime`: a text "HH:MM", where "**" stands for every hour or every minute. An empty one counts as "00:00".
  ///
  /// `TimeEdit`: 1 for on, any other value for off. An Integer after OK, 0 or 1.
  ///
  /// `SkedData`: the date of a sked by date, a text "MM/DD", where "**" stands for every month or every day, and any
  /// other value or "00/00" for no date, shown as "01/01"; a day that the month lacks shows as the 1st. The days of a
  /// sked by day of week, a 16-bit integer with bit 0 for Sunday to bit 6 for Saturday, an Integer after OK. A
  /// disabled sked gives back what came in, unless a refused OK took up a date or days before.
  ///
  /// `SkedFunc`: the three digits of the function, or empty: 001 to 116 and 237 to 327 on WillowDuo, 001 to 347 on
  /// WillowAce. Empty after OK for a disabled sked.
  ///
  /// `SecurityLevels`: rights. Records: "Time", "Date", "Time Edit", "Function Code Ref.# and Description", and
  /// "Sun" to "Sat", without which a day of the week cannot be seen. When the operator chooses another type, his
  /// `ViewLevel` alone decides whether its parts are visible and enabled. A part that is hidden or disabled keeps its
  /// value.
  ///
  /// Returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which nothing was shown:
  /// 13 or 6 for a `SkedNo` that is no number or too large, and for such days of a sked by day of week, 13 for a time
  /// or a function that is an array or an object, 424 or 13 for `SecurityLevels` that are no collection, 5 for a
  /// collection with records but without "AuthorityLevel". The arguments other than `SkedNo` change on 0 only.
  std::int32_t Display(const Value& SkedNo, Value& SkedType, Value& SkedTime, Value& TimeEdit, Value& SkedData,
                       Value& SkedFunc, const Value& SecurityLevels);
};
using clsSkedFunc_WillowDuo = clsSkedFunc_Willow<9>;
using clsSkedFunc_WillowAce = clsSkedFunc_Willow<16>;

/// Edits the function of a sked, three bytes, of an Arbor model or, below, of a Kin model.
///
///     orlin::Value code{std::int16_t{1}}, areas{std::int16_t{129}}, none{std::int16_t{0}};
///     if (orlin::clsSkedFunc_Rowan().Display(code, areas, none) == 0) store(code, areas, none);
template <std::int32_t PanelType>
class clsSkedFunc_Arbor {
 public:
  /// Numbers or texts of digits; Longs after OK, unchanged on any other outcome.
  ///
  /// `Byte1`: the code of the function: 0 to 24, 28 and 29; not 18 to 24 on Hazel and Larch, not 16 to 24 on LarchNova.
  /// Any other number, of whatever size, opens with the first function.
  ///
  /// `Byte2`, `Byte3`: the parameters, 0 to 255: a mask of bits, the value of a choice, or a number. For the codes 3
  /// and 4 the byte is one lower than the number that is shown. A choice that the model lacks is not selected, and a
  /// bit that it lacks is lost; a value that is no number selects nothing. A function without parameters gives 0, but
  /// for `Byte2` where a function with a number was selected before: that number comes back.
  ///
  /// Returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which nothing was shown:
  /// 13 for a `Byte1` that is no number, or a `Byte2` that is none with the codes 3 and 4.
  std::int32_t Display(Value& Byte1, Value& Byte2, Value& Byte3);
};
using clsSkedFunc_Rowan = clsSkedFunc_Arbor<1>;
using clsSkedFunc_Hazel = clsSkedFunc_Arbor<2>;
using clsSkedFunc_Aspen = clsSkedFunc_Arbor<3>;
using clsSkedFunc_Larch = clsSkedFunc_Arbor<4>;
using clsSkedFunc_Cedar = clsSkedFunc_Arbor<5>;
using clsSkedFunc_Maple = clsSkedFunc_Arbor<6>;
using clsSkedFunc_RowanNova = clsSkedFunc_Arbor<49>;
using clsSkedFunc_AspenNova = clsSkedFunc_Arbor<50>;
using clsSkedFunc_LarchNova = clsSkedFunc_Arbor<51>;

/// Edits the function of a sked, three bytes, of a Kin model.
template <std::int32_t PanelType>
class clsSkedFunc_Kin {
 public:
  /// As `clsSkedFunc_Arbor`, with the codes 0 to 15. Any other `Byte1` is failure 380, or 6 beyond a Long.
  std::int32_t Display(Value& Byte1, Value& Byte2, Value& Byte3);
};
using clsSkedFunc_HazelKin = clsSkedFunc_Kin<17>;
using clsSkedFunc_LarchKin = clsSkedFunc_Kin<18>;

/// Edits a time of day.
class clsTime_FirePanels {
 public:
  /// `Index`: minutes since midnight, 0 to 1439.
  ///
  /// `res`: after OK the edited time in minutes since midnight, an Integer; unchanged on any other outcome.
  ///
  /// Returns 0 after OK, 2 after Cancel or the close box, else the number of a failure.
  std::int32_t Display(std::int16_t Index, Value& res);
};

/// Picks one of the half hours of a day, or none.
class clsLstTime_Rowan {
 public:
  /// `Index`: 0 for no time, 1 to 47 for so many half hours after midnight, 48 for midnight at the end of the day.
  ///
  /// `res`: the chosen `Index` as a text of digits; after Cancel or the close box the given one, also as a text.
  ///
  /// Returns 0 after OK, 1 after Cancel or the close box, 2 for another `Index`, with which nothing is shown and `res`
  /// stays as it was, else the number of a failure.
  std::int32_t Display(std::int16_t Index, Value& res);
};

}  // namespace orlin
