#include "options/frmPhoneOptionsPine.h"

#include "frame/conversions.h"
#include "frame/display_protocol.h"
#include "frame/modGeneral.h"

namespace orlin {
namespace {

// What the longer caption of Check2 takes, in twips.
constexpr int kWider = 600;

}  // namespace

frmPhoneOptionsPine::frmPhoneOptionsPine() {
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmPhoneOptionsPine::Display(Value& vTrouble, Value& vOn, Value& vOff, const Value& SecurityLevels,
                                          std::int32_t panelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    PanelType = panelType;
    ApplyPanelType();
    Check1.SetValue(ToInteger(vTrouble));
    Check2.SetValue(ToInteger(vOn));
    Check3.SetValue(ToInteger(vOff));
    ApplySecurityLevels(Form.SecurityLevels(),
                        {{Check1.Tag(), {Check1}}, {Check2.Tag(), {Check2}}, {Check3.Tag(), {Check3}}});
  };
  steps.Encode = [&] {
    vTrouble = Check1.Value();
    vOn = Check2.Value();
    vOff = Check3.Value();
  };
  return RunDisplay(Form, steps);
}

void frmPhoneOptionsPine::ApplyPanelType() {
  switch (PanelType) {
    case 8:
    case 26:
    case 27:
      Check1.SetCaption(GetLocalText(1382));
      Check1.SetTag("Enable Supervision (System Trouble at Cmd Ctr)");
      break;
    case 25:
      Check1.SetCaption(GetLocalText(1383));
      Check1.SetTag("Enable Supervision (System Trouble at Keypad)");
      break;
    case 40:
      Check2.SetCaption(GetLocalText(1908));
      Check2.SetTag("&Burg Alarm and Strobe Functions, Away Mode or Stay Mode");
      break;
    default:
      Check1.SetCaption(GetLocalText(1383));
      Check1.SetTag("Enable Supervision (System Trouble at Keypad)");
      Check2.SetCaption(GetLocalText(1384));
      Check2.SetTag("Burg Alarm and Strobe Functions, All On or Perimeter Only");
      Form.SetWidth(Form.Width() + kWider);
      cmdCancel.SetLeft(cmdCancel.Left() + kWider);
      cmdOK.SetLeft(cmdOK.Left() + kWider);
      Check2.SetWidth(Check2.Width() + kWider);
  }
}

bool frmPhoneOptionsPine::BothResponsesPassTogether() const {
  return PanelType == 8 || PanelType == 26 || PanelType == 27;
}

void frmPhoneOptionsPine::cmdOK_Click() {
  Form.SetExitCode(ExitCode::OK);
  const bool responds = Check2.Value() == 1 || Check3.Value() == 1;
  if (Check1.Value() == 0 && responds) {
    if (!BothResponsesPassTogether()) {
      Form.SetExitCode(ExitCode::Cancel);
      SkipFailure([&] { Form.ShowMessage(GetLocalText(1875), Message::OkOnly, GetLocalText(262)); });
    } else if (Check2.Value() != Check3.Value()) {
      Form.SetExitCode(ExitCode::Cancel);
      SkipFailure([&] { Form.ShowMessage(GetLocalText(1385)); });
    }
  }
  if (Form.ExitCode() == ExitCode::OK) Form.Hide();
}

}  // namespace orlin
