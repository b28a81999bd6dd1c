#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "frame/dialog/dialog.h"

namespace orlin {

/// One item of the list of device types.
struct WSNDeviceType {
  std::int16_t TextNumber;
  std::int16_t DeviceType;
};

/// In what the dialogs of wireless inputs and wireless outputs differ, as far as it is data.
struct WSNDeviceTypeTable {
  const char* DialogName;
  std::span<const WSNDeviceType> DeviceTypes;  ///< in order of the list
  std::int16_t RelayPosition;                  ///< of the one device type that has the relay controls
  std::int16_t OtherNoRelay;                   ///< a relay type that comes in for none, as 0 does
  int FreeCount;                               ///< elements of the array of what is free
  std::int16_t FirstFreeText;                  ///< the text of element 0; the others follow it
  std::int16_t InputText;
  std::int16_t MappedText;
  const char* MappedFrame;
  const char* MappedLabel;
  const char* MappedList;
};

/// The dialog that both share. "Mapped" is an output of the panel for a wireless input, and a point for a wireless
/// output.
class WSNDeviceTypeDialog {
 public:
  std::int32_t Display(Value& vDeviceType, Value& vMappedOutput, Value& vOption, const Value& vFree,
                       const Value& SecurityLevels);

 protected:
  explicit WSNDeviceTypeDialog(const WSNDeviceTypeTable& table);
  WSNDeviceTypeDialog(const WSNDeviceTypeDialog&) = delete;
  WSNDeviceTypeDialog& operator=(const WSNDeviceTypeDialog&) = delete;
  ~WSNDeviceTypeDialog() = default;

  /// The position in the list for a device type that comes in.
  [[nodiscard]] virtual int PositionOf(std::int16_t deviceType) const = 0;
  /// Selects what the device is mapped to, as it comes in.
  virtual void SelectMapped(std::int16_t mapped);
  /// What the chosen device type forces, before the values go out.
  virtual void BeforeEncoding() {}

 private:
  void FillDeviceTypes();
  void FillMapped(const Value& vFree);
  void SelectRelayOption(std::int16_t option);
  void SetRelayControlsEnabled(bool bEnable);
  void cmbDeviceType_Click();
  void cmbMapped_Click();
  void optInput_Click();
  void optInputOutput_Click();

  const WSNDeviceTypeTable& Table;

 protected:
  Dialog Form;

  Label lblDeviceType{Form, "lblDeviceType", 10630};
  ComboBox cmbDeviceType{Form, "cmbDeviceType"};
  Frame grpRelayType{Form, "grpRelayType", 10631, {.Enabled = false}};
  // Each label names the option behind it, which has no caption of its own.
  Label lblInput;
  OptionButton optInput{grpRelayType, "optInput", {}, {.Common = {.Enabled = false}}};
  Label lblInputOutput{grpRelayType, "lblInputOutput", 10633, {.Enabled = false}};
  OptionButton optInputOutput{grpRelayType, "optInputOutput", {}, {.Common = {.Enabled = false}}};
  Frame grpMapped;
  Label lblMapped;
  ComboBox cmbMapped;
  OKButton btnOK{Form, 101, "btnOK"};
  CancelButton btnCancel{Form, 119, "btnCancel"};

  std::int16_t MappedOutput = 0;
  std::int16_t RelayOption = 0;
  // The number of the free entry in each row of cmbMapped.
  std::vector<std::int16_t> FreeIds;
};

}  // namespace orlin
