#pragma once

#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/hosts/script/operator.h"
#include "OrlinCustomDialogs/hosts/script/player.h"
#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/hosts/script/trace.h"

namespace orlin {

/// Shows dialogs to an operator made of text. There is no screen: what happens is told in a trace.
class ScriptHost final : public DialogHost {
 public:
  /// Serves one call. The trace outlives the host. See `ScriptPlayer` for `strict`.
  ScriptHost(std::vector<Action> script, Trace& trace, bool strict);

  [[nodiscard]] SizeInTwips Screen() const override;
  void ShowModal(shown::Dialog& dialog) override;
  int ShowMessage(const Message& message) override;
  void Beep() override;
  void HandlerFailed(const shown::Dialog& dialog, std::string_view handler, const Failure& failure) override;

  /// The call has returned: tells the answers that are left over.
  void Finish() { player_.Finish(); }

 private:
  Trace& trace_;
  DirectHands hands_;
  ScriptPlayer player_;
};

}  // namespace orlin
