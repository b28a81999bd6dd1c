#include "OrlinCustomDialogs/verification.h"

#include "frame/classes/late_members.h"
#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"
#include "registers.h"
#include "verification/frmErrorSIA_Nova.h"
#include "verification/frmVerifyPasscodes.h"

namespace orlin {
namespace {

/// 2 stores the desired values; 1 keeps the existing data, and 0 is a Cancel.
bool DesiredValuesCount(std::int32_t result, const std::vector<Value>& /*returned*/) { return result == 2; }

constexpr std::size_t kChangedStatus = 2;

/// The result is the same on every outcome.
bool PasscodesCount(std::int32_t result, const std::vector<Value>& returned) {
  return result == 0 && ToInteger(returned[kChangedStatus]) != 0;
}

/// The outcome is no value to be stored.
void UpdatePasscodes(std::vector<Value>& stored, const std::vector<Value>& returned) {
  for (std::size_t i = 0; i < kChangedStatus; ++i) stored[i] = returned[i];
}

PublicClass ErrorMessageNova() {
  return PublicClassOf("clsErrorMessageNova", &clsErrorMessageNova::Display,
                       {"vItemNo", "vValue", "SecurityLevels", "PanelType", "bThroughComm"},
                       {.Confirmed = DesiredValuesCount});
}

}  // namespace

const LateMembers& clsErrorMessageNova::Members() const {
  using Nova = clsErrorMessageNova;
  static const LateMembers members{
      .Properties = {PropertyOf("ParameterName", &Nova::ParameterName), PropertyOf("AreaNo", &Nova::AreaNo),
                     PropertyOf("DefaultVal", &Nova::DefaultVal), PropertyOf("SIARangeMin", &Nova::SIARangeMin),
                     PropertyOf("SIARangeMax", &Nova::SIARangeMax), PropertyOf("DesiredVal", &Nova::DesiredVal),
                     PropertyOf("AllowedCharacters", &Nova::AllowedCharacters),
                     PropertyOf("AllowedString", &Nova::AllowedString)},
      .Operations = {OperationOf<Nova>("Display", 5, 5, [publicClass = ErrorMessageNova()](auto&, auto& arguments) {
        return publicClass.Display(arguments);
      })}};
  return members;
}

std::int32_t clsErrorMessageNova::Display(const Value& vItemNo, Value& vValue, const Value& SecurityLevels,
                                          std::int16_t PanelType, bool bThroughComm) {
  return CallDialog<frmErrorSIA_Nova>(vItemNo, vValue, SecurityLevels, PanelType, bThroughComm);
}

std::int32_t clspasscodeLen::Display(Value& vresult, Value& vpresent, std::int16_t& bChangedStatus,
                                     std::int16_t vPasscodeLength, std::int16_t iTotalNoOfUsers,
                                     std::int16_t bThroughSIA, std::int16_t bThroughComm, const Value& SecurityLevels) {
  return CallDialogWith<frmVerifyPasscodes>([&](auto& dialog) {
    // User 0 and the title row come on top.
    const auto userRows = ToInteger(iTotalNoOfUsers + 2);
    return dialog.Display(vresult, vpresent, bChangedStatus, vPasscodeLength, userRows, bThroughSIA, bThroughComm,
                          SecurityLevels);
  });
}

std::vector<PublicClass> VerificationClasses() {
  return {
      ErrorMessageNova(),
      PublicClassOf("clspasscodeLen", &clspasscodeLen::Display,
                    {"vresult", "vpresent", "bChangedStatus", "vPasscodeLength", "iTotalNoOfUsers", "bThroughSIA",
                     "bThroughComm", "SecurityLevels"},
                    {.Confirmed = PasscodesCount, .Update = UpdatePasscodes, .Secrets = {0, 1}}, 5),
  };
}

}  // namespace orlin
