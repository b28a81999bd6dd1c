#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "frame/dialog/dialog.h"

namespace orlin {

/// The type of one zone of the Birch panels. Which types there are depends on the zone.
class frmZoneTypeBirch {
 public:
  frmZoneTypeBirch();
  std::int32_t Display(const Value& iZoneNum, const Value& iOrlinRF, Value& iZoneType, const Value& iMultiZoneType,
                       const Value& SecurityLevels);

 private:
  void LoadCaptions();
  void FillZoneTypeList(const Value& iZoneNum, const Value& iOrlinRF, const Value& iZoneType);

  Dialog Form{"frmZoneTypeBirch", "", {.Unloads = true, .HandlesFailures = true}};

  Label Label1{Form, "Label1"};
  ComboBox cmbZoneType{Form, "cmbZoneType"};
  OKButton cmdOK{Form, {"&OK", 20009}};
  // A plain button: Escape does not press it.
  Button cmdCancel{Form, "cmdCancel"};

  // Of each position of the list: its text and the number that is stored for it.
  std::vector<std::string> ZoneTypeTexts;
  std::vector<std::int16_t> ZoneTypeValues;
};

}  // namespace orlin
