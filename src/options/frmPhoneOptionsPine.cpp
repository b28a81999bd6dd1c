#include "options/frmPhoneOptionsPine.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// What the longer caption of Check2 takes, in twips.
constexpr int kWider = 600;

/// The panels that tell the trouble at the command center. Codes without a name, here and below, are the host's own.
bool IsS1(ePanelType panel) { return panel == ePanelType::Pine || panel == ePanelType{26} || panel == ePanelType{27}; }

}  // namespace

frmPhoneOptionsPine::frmPhoneOptionsPine() {
  cmdOK.Click = [this] { cmdOK_Click(); };
}

std::int32_t frmPhoneOptionsPine::Display(Value& vTrouble, Value& vOn, Value& vOff, const Value& SecurityLevels,
                                          std::int32_t panelType) {
  DisplaySteps steps;
  steps.Prepare = [&] {
    Form.KeepSecurityLevels(SecurityLevels);
    PanelType = ePanelType{panelType};
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
  if (IsS1(PanelType)) {
    Check1.SetCaption(GetLocalText(1382));
    Check1.SetTag("Enable Supervision (System Trouble at Cmd Ctr)");
  } else if (PanelType == ePanelType{25}) {
    Check1.SetCaption(GetLocalText(1383));
    Check1.SetTag("Enable Supervision (System Trouble at Keypad)");
  } else if (PanelType == ePanelType{40}) {
    Check2.SetCaption(GetLocalText(1908));
    Check2.SetTag("&Burg Alarm and Strobe Functions, Away Mode or Stay Mode");
  } else {
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

void frmPhoneOptionsPine::cmdOK_Click() {
  Form.SetExitCode(ExitCode::OK);
  const bool possible = Check1.Value() == 0 && (Check2.Value() == 1 || Check3.Value() == 1);
  const bool fault = possible && (!IsS1(PanelType) || Check2.Value() != Check3.Value());
  if (fault) {
    Form.SetExitCode(ExitCode::Cancel);
    SkipFailure([&] {
      if (IsS1(PanelType)) {
        Form.ShowMessage(GetLocalText(1385));
      } else {
        Form.ShowMessage(GetLocalText(1875), Message::OkOnly, GetLocalText(262));
      }
    });
  }
  if (Form.ExitCode() == ExitCode::OK) Form.Hide();
}

}  // namespace orlin
