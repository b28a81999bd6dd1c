#pragma once

#include <functional>
#include <string>

#include "OrlinCustomDialogs/host/dialog_host.h"

#include "window_system/window_system.h"

namespace orlin {

/// Saves a picture of each dialog that it is to show, and closes it.
class PictureHost final : public DialogHost {
 public:
  PictureHost(PictureOptions options, std::function<std::string()> name);

  [[nodiscard]] SizeInTwips Screen() const override;
  void ShowModal(shown::Dialog& dialog) override;
  int ShowMessage(const Message& message) override;
  void Beep() override {}

 private:
  PictureOptions options_;
  std::function<std::string()> name_;
};

}  // namespace orlin
