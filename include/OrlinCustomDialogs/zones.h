#pragma once

#include <cstdint>

#include "OrlinCustomDialogs/value.h"

// Editors of zone functions and point codes.
//
// Without a text catalogue (see `Platform`) lists stay empty: the editors of Birch zones fail with 91 or 380, in
// the others OK overwrites the code.

namespace [[using gnu: visibility("default")]] orlin {

/// Edits the four-digit function code of a zone of the Willow panels. What comes back is no argument of the next call:
/// its digits are counted otherwise. The register of public classes (public_classes.h) makes the one out of the other.
///
///     std::vector<orlin::Value> stored{std::int16_t{5}, "5111"};  // ZoneNum and ZoneCode
///     const auto& editor = *orlin::FindPublicClass("clsZoneFunctionsWillow");
///     auto arguments = editor.ArgumentsFrom(stored);
///     const auto result = editor.Display(arguments);
///     if (editor.Confirmed(result, arguments)) stored = editor.StoredFrom(stored, arguments);
class clsZoneFunctionsWillow {
 public:
  /// `ZoneNum`: the number of the zone, a text or a number; only shown.
  ///
  /// `ZoneCode`: on the way in, a text of four digits, of which each selects an item of its list *counted from 0*: "0"
  /// the first, "7" the eighth. "8" and "9" select none; a missing or other character counts as "0". On the way out,
  /// after OK only, a text of four digits that count the chosen items *from 1*: "1" to "8", and "0" for a list without
  /// a selection. That is how a host stores it; before the next call it subtracts 1 from each digit and makes 0 a 9, as
  /// `PublicClass::ArgumentsFrom` does.
  ///
  /// Returns 0 after an OK that passed the check of the first two digits, 1 after Cancel or the close box. Never a
  /// failure, but for 429 or 91 where the dialog itself cannot be created.
  std::int32_t Display(const Value& ZoneNum, Value& ZoneCode);
};

/// Edits the function of a zone of the Birch panels: its type, its output response and what counts as trouble.
class clsZoneFunctionsBirch {
 public:
  /// `vName`: names the zone in the title; only shown.
  ///
  /// `vType` 0 to 15, `vOption` 0 to 3, `vTroubleOn` 0 to 2: numbers or texts of digits. After OK they come back as
  /// Integers; on any other outcome they stay as they came.
  ///
  /// `SecurityLevels`: a collection of rights, which may be empty. Records: "Type", "Output Response", "Trouble On". A
  /// part that is hidden or disabled keeps its value.
  ///
  /// Returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which nothing was shown:
  /// 380 for a number that names no item, 13 or 6 for a value that is no 16-bit integer, 424 or 13 for `SecurityLevels`
  /// that are no collection, 5 for a collection without "AuthorityLevel".
  std::int32_t Display(const Value& vName, Value& vType, Value& vOption, Value& vTroubleOn,
                       const Value& SecurityLevels);
};

/// Picks the function of a zone of the Birch panels by its description, and whether its alarms are verified.
class clsZoneFuncDescBirch {
 public:
  /// `vName`: names the zone in the title; only shown.
  ///
  /// `vRetVal`: an array of texts from index 0, the description of each zone function. Element 0 is replaced by the
  /// text for no function, also where the operator does not confirm.
  ///
  /// `iFunction`: the chosen function, an index of `vRetVal`; a number or a text of digits. After OK an Integer.
  ///
  /// `iZoneAlarmVerify`: 0 for not verified, 10 for a zone without the choice, any other number for verified. After OK
  /// 1 or 0; 10 comes back as 0, unless the operator has picked another function and ticked the box. There is the
  /// choice where the description holds the name of one of the eight zone types that can be verified.
  ///
  /// `SecurityLevels`: a collection of rights, which may be empty. Every record stands for the list of functions,
  /// whatever its name; the box of the verification is always left to the operator.
  ///
  /// Returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which nothing was shown:
  /// 13 for a `vRetVal` that is no array, 9 for one without an element 0, 380 for an `iFunction` that names no element,
  /// 13 or 6 for one that is no 16-bit integer, 424 or 13 for `SecurityLevels` that are no collection, 5 for a
  /// collection without "AuthorityLevel", 91 without a text catalogue. `Failure` 91 where the dialog itself cannot be
  /// created: unlike other classes, this one lets it through.
  std::int32_t Display(const Value& vName, Value& vRetVal, Value& iFunction, std::int16_t& iZoneAlarmVerify,
                       const Value& SecurityLevels);
};

/// Picks the type of a zone of the Birch panels.
class clsZoneTypeBirch {
 public:
  /// `iZoneNum`: the number of the zone, from 1 up, and `iOrlinRF`: 0 or not, whether the zone has a radio. Together
  /// they decide which types there are. Numbers or texts of digits; never changed.
  ///
  /// `iZoneType`: the stored type, 0 to 5, a number or a text of digits. After OK an Integer. On a zone with
  /// a radio, but for zones 9 to 128, 5 selects the second type and every other number the first, so that OK may store
  /// another number than came, also where the operator changed nothing.
  ///
  /// `iMultiZoneType`: ignored.
  ///
  /// `SecurityLevels`: a collection with the records "AuthorityLevel" and "Type". Where the view level does not reach
  /// that of "Type", the list is shown but cannot be changed; edit levels play no part.
  ///
  /// Returns 0 after OK, 1 after Cancel or the close box, else the number of a failure, before which nothing was shown:
  /// 9 for a zone below 1, 380 for a type that the list of the zone does not have, 13 or 6 for values that are no
  /// integers, 424 or 13 for `SecurityLevels` that are no collection, 5 where one of the two records is missing, 91
  /// without a text catalogue. `Failure` 91 where the dialog itself cannot be created: unlike other classes, this one
  /// lets it through.
  std::int32_t Display(const Value& iZoneNum, const Value& iOrlinRF, Value& iZoneType, const Value& iMultiZoneType,
                       const Value& SecurityLevels);
};

/// Edits the code of a point of the Oak panels. The models differ in the number of digits, 5 on OakGrand and 3 on the
/// others, in their items, and in which digits may stand together.
///
///     orlin::Value code{"1000C"};
///     if (orlin::clsPointCodes_OakGrand().Display(std::int16_t{5}, code) == 0) store(code);  // "1090C" after OK
template <std::int32_t PanelType>
class PointCodesOak {
 public:
  /// `PointNum`: the number or name of the point; only shown.
  ///
  /// `PointCode`: a text of hexadecimal digits, the first digit first. A missing or other character counts as 0; a
  /// digit that its list does not have selects none. After OK, and only then, a text of the digits of the selected
  /// items; a list without a selection adds none, which makes the text shorter.
  ///
  /// The fifth digit of OakGrand is a letter from A to P. It opens as it was handed out: A to P select the first to the
  /// sixteenth item. The digits 0 to 9 select the first to the tenth, so that a code opens also where the host keeps
  /// that digit as a number; A to F always count as letters.
  ///
  /// Returns 0 after an OK that passed the check, 1 after Cancel or the close box. Never a failure, but for 429 or 91
  /// where the dialog itself cannot be created.
  std::int32_t Display(const Value& PointNum, Value& PointCode);
};
using clsPointCodes_OakGrand = PointCodesOak<21>;
using clsPointCodes_OakMid = PointCodesOak<22>;
using clsPointCodes_OakBase = PointCodesOak<23>;

/// Edits the five-character function code of a protective zone of the Fir panel.
class clsZoneFunctions_Fir {
 public:
  /// `ZoneCode`: a text of five hexadecimal characters. The second decides what the first may be: 0 to 7 with 0 or 3,
  /// 0 to F with 1, 2, 4 or 5. A missing or other character counts as 0. A first character of 8 or above with a second
  /// of 0 or 3 opens as if it were the second: "93123" as "33123". Any other character that its list does not have
  /// selects none; "9FFFF", of which no character selects an item, opens as "8888" and comes back so. Written only
  /// after an OK with a valid code, as such a text again.
  ///
  /// Returns 0 after OK with a valid code. 1 in every other case: after Cancel, and after OK or the close box with an
  /// invalid code, of which the operator is told when the dialog has closed. Never a failure, but for 91 where the
  /// dialog itself cannot be created.
  std::int32_t Display(Value& ZoneCode);
};

}  // namespace orlin
