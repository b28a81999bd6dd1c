#pragma once

#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/hosts/script/player.h"
#include "OrlinCustomDialogs/hosts/script/trace.h"

#include "qt_driver/hands.h"

namespace orlin {

/// Shows dialogs in windows that a script works with keyboard and mouse: the same scripts and the same trace as those
/// of `ScriptHost`. Timers fire by the script alone. Needs a QApplication.
class ScriptedWindows final : public DialogHost {
 public:
  /// Serves one call. The trace outlives the host. See `ScriptPlayer` for `strict`.
  ScriptedWindows(std::vector<Action> script, Trace& trace, bool strict)
      : trace_(trace), player_(std::move(script), hands_, trace, strict) {}

  [[nodiscard]] SizeInTwips Screen() const override { return {15360, 11520}; }
  void ShowModal(shown::Dialog& dialog) override;
  int ShowMessage(const Message& message) override;
  void Beep() override { trace_.Beep(); }
  void HandlerFailed(const shown::Dialog& dialog, std::string_view handler, const Failure& failure) override;

  /// The call has returned: tells the answers that are left over.
  void Finish() { player_.Finish(); }

 private:
  Trace& trace_;
  DialogWindow* window_ = nullptr;  // while a dialog is shown
  QtHands hands_{window_};
  ScriptPlayer player_;
};

}  // namespace orlin
