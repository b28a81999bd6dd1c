#include "wireless/frmWirelessPointID.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// A double holds every whole number up to 2^53, so these compare exactly.
constexpr double kLowest = 0;
constexpr double kHighest = 281474976710655;

std::int16_t TitleOf(std::int16_t iOption1, std::int16_t iOption2) {
  if (iOption1 == 8 && iOption2 == 18) return 10675;
  if (iOption1 == 4) return 10673;
  if (iOption1 == 9) return 10677;
  return 10676;
}

bool IsPointID(const std::string& text) {
  if (!IsNumeric(text) || text.find_first_of("e., ") != std::string::npos) return false;
  const double number = ToDouble(text);
  return number >= kLowest && number <= kHighest;
}

}  // namespace

frmWirelessPointID::frmWirelessPointID() {
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmWirelessPointID::Display(std::int16_t iOption1, std::int16_t iOption2, Value& vType,
                                         const Value& SecurityLevels) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    txtValue.SetText(ToText(vType));
    txtValue.SetMaxLength(15);
    txtRanges.SetText(GetLocalText(1172) + "\t\t" + GetLocalText(1173) + "\r\n" + ToText(kLowest) + "\t\t" +
                      ToText(kHighest) + "\r\n");
    // Either level hides; nothing is disabled.
    HideBySecurityLevels(Form.SecurityLevels(), {{"Data Value", {Frame1}}, {"Ranges", {Label2, txtRanges}}});
    Form.SetCaption(GetLocalText(TitleOf(iOption1, iOption2)));
  };
  steps.Encode = [&] { vType = txtValue.Text(); };
  return RunDisplay(Form, steps);
}

void frmWirelessPointID::cmdOK_Click() {
  if (IsPointID(txtValue.Text())) return Form.HideWith(ExitCode::OK);
  SkipFailure([&] { Form.ShowMessage(GetLocalText(1151), Message::OkOnly, GetLocalText(262)); },
              [&] { txtValue.SetFocus(); });
}

}  // namespace orlin
