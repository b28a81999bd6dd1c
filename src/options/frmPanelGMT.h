#pragma once

#include <cstdint>
#include <string_view>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The panel's time offset from GMT. The up-downs hold the values that count; the boxes follow them and feed them.
class frmPanelGMT {
 public:
  frmPanelGMT();
  std::int32_t Display(std::int16_t& iHrs, std::int16_t& iMins, std::int16_t& iIsPanelBehind,
                       std::int16_t& iPanelDayLightSaving, const Value& SecurityLevels);

 private:
  void SetPanelTime(std::int16_t iHrs, std::int16_t iMins, std::int16_t iIsPanelBehind,
                    std::int16_t iPanelDayLightSaving);
  void txthrsfromGMT_Change();
  void txtminfromGMT_Change();
  void udHrsfromGMT_Change();
  // A bad entry gives way to what came in, with a beep.
  void PutBack(TextBox& box, std::int16_t entry, bool& guard);

  Dialog Form{"frmPanelGMT", {"Panel Time", 20002}, {.Unloads = true, .HandlesFailures = true}};

  Frame Frame1{Form, "Frame1", {"Hours From GMT(UTC)", 20003}};
  Label Label5{Frame1, "Label5", {"Panel Time differs from GMT by:", 20004}};
  TextBox txthrsfromGMT{Frame1, "txthrsfromGMT", {.Text = "0", .MaxLength = 2}};
  UpDown udHrsfromGMT{Frame1, "udHrsfromGMT", {.Min = 0, .Max = 12, .Buddy = &txthrsfromGMT}};
  Label Label1{Frame1, "Label1", {"Hrs", 20005}, Label::Unit};
  TextBox txtminfromGMT{Frame1, "txtminfromGMT", {.Text = "0", .MaxLength = 3}};
  UpDown udMinfromGMT{Frame1, "udMinfromGMT", {.Min = 0, .Max = 60, .Buddy = &txtminfromGMT}};
  Label lblSec{Frame1, "lblSec", {"Min", 20006}, Label::Unit, {}, 2};
  CheckBox chkPanelTime{Frame1, "chkPanelTime", {"Panel Time behind GMT(UTC)", 20007}};
  CheckBox chkPanelDayLightSaving{Frame1, "chkPanelDayLightSaving", {"Daylight Savings", 20008}};
  OKButton cmdOK{Form, {"&OK", 20009}};
  Button cmdCancel{Form, "cmdCancel", {"&Cancel", 20010}};

  // What came in, to which a bad entry falls back.
  std::int16_t EntryHours = 0;
  std::int16_t EntryMinutes = 0;
  // Held while a change handler puts a text back itself.
  bool HoursGuard = false;
  bool MinutesGuard = false;
};

}  // namespace orlin
