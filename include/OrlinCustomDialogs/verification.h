#pragma once

#include <cstdint>
#include <string>

#include "OrlinCustomDialogs/late_bound.h"
#include "OrlinCustomDialogs/value.h"

// Verification of whole accounts.
//
// Without a text catalogue (see `Platform`) nothing is shown: a review ends with 0, passcodes with 91.

namespace [[using gnu: visibility("default")]] orlin {

/// Reviews the parameters of an account that lie outside the ranges of SIA CP-01, the standard for the reduction of
/// false alarms, and lets the operator correct them or give up compliance. Also the record of one kind of parameter,
/// whose fields are properties where it is reached by name.
class clsErrorMessageNova : public LateBoundObject {
 public:
  std::string ParameterName;
  std::int16_t AreaNo = 0;        ///< not used by the review
  Value DefaultVal;               ///< the desired value that is proposed: an Integer or a text
  Value SIARangeMin;              ///< the lowest compliant value, or a text
  Value SIARangeMax;              ///< the highest compliant value, or a text
  Value DesiredVal;               ///< not used by the review
  std::string AllowedCharacters;  ///< those that may be typed into the desired value; empty: it cannot be changed
  Value AllowedString;            ///< stands behind the maximum

  /// `vItemNo`: an Array from index 0, one number for each parameter in question: key + 100 x instance, where the key
  /// tells the kind of parameter and the instance counts areas or points. The keys are 7, 8, 10, 17, 19, 22, 27, 29,
  /// 30, 37, 52, 53, 54, 55, 65, 66; a number with another key shows a blank row.
  ///
  /// `vValue`: an Array from index 0, the present values of the same items. Its upper bound sets how many are shown; it
  /// may be empty. On the result 2 alone, its elements come back as texts that hold the desired values in the form in
  /// which they are stored: yes is "1", no and "-" are "0", the letters A, B and C are "253" to "255".
  ///
  /// `SecurityLevels`: a collection of rights, which may be empty. Whatever its name, a record above the operator's
  /// view level hides all but the Cancel button, one above the edit level disables the same.
  ///
  /// `PanelType`: the code of the panel model; 49, 50 and 51 have 128, 64 and 24 points.
  ///
  /// `bThroughComm`: the review runs while the panel is connected, of which the operator is warned before he cancels.
  ///
  /// Returns 2 for "store the desired values", 1 for "keep the existing data and give up compliance", 0 for Cancel, the
  /// close box and any failure, which is reported to the fault log where there is one. Other numbers, 91 or 429, only
  /// where the dialog itself cannot be created.
  std::int32_t Display(const Value& vItemNo, Value& vValue, const Value& SecurityLevels, std::int16_t PanelType,
                       bool bThroughComm);

 private:
  [[nodiscard]] const LateMembers& Members() const override;
};

/// Lets the operator correct the passcodes of users that a change of the passcode length has made too short, or that
/// conflict with the passcode of another user, or disable the passcode length.
///
/// Two passcodes conflict when they have the same digits but for the last, and last digits that lie at most 2 apart,
/// 9 and 0 being neighbours.
class clspasscodeLen {
 public:
  /// `vresult`: an Array of 250 passcodes, the index being the number of the user from 0: texts of digits, empty for a
  /// user without one. Comes back on every outcome, with the operator's corrections and with the passcodes of all users
  /// shown cut to the length; `bChangedStatus` tells whether they count.
  ///
  /// `vpresent`: an Array of the same form, with the passcodes in trouble at the index of their user and empty
  /// elsewhere. All 250 become empty texts on the outcomes 1 and 2.
  ///
  /// `bChangedStatus`: on the way out, 0 cancelled or closed, 1 save the corrected passcodes, 2 disable the passcode
  /// length.
  ///
  /// `vPasscodeLength`: the length now in force, from 1.
  ///
  /// `iTotalNoOfUsers`: the highest number of a user, up to 249.
  ///
  /// `bThroughSIA`, `bThroughComm`: 1 where the length was changed by the review of SIA CP-01, and where the panel is
  /// connected; they choose the words of the questions.
  ///
  /// `SecurityLevels`: a collection of rights, or empty for no test. Whatever its name, a record above the operator's
  /// view or edit level hides all but the colour keys and the Cancel button.
  ///
  /// The setting "APPLICATION_TYPE" of section "Installation" decides whether user 0 is shown and the choice is
  /// offered: 1 for neither.
  ///
  /// Returns 0 on every outcome, else the number of a failure: 13 or 6 for a setting that is no 16-bit number and for
  /// arguments of the wrong kind, 9 for an array that lacks a user, 424 for `SecurityLevels` that are no collection, 5
  /// for a collection without "AuthorityLevel". A failure before the dialog was shown leaves all arguments as they
  /// came.
  std::int32_t Display(Value& vresult, Value& vpresent, std::int16_t& bChangedStatus, std::int16_t vPasscodeLength,
                       std::int16_t iTotalNoOfUsers, std::int16_t bThroughSIA = 0, std::int16_t bThroughComm = 0,
                       const Value& SecurityLevels = {});
};

}  // namespace orlin
