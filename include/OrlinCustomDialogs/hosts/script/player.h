#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/hosts/script/operator.h"
#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/hosts/script/trace.h"

namespace orlin {

/// A refused action ends the run. No failure of a dialog, so that it passes through the library.
class StrictRefusal {};

/// Plays a script on the dialogs of one call, and tells in the trace what the operator could not do.
class ScriptPlayer {
 public:
  /// Hands and trace outlive the player. Answers that the script begins with wait for messages at once. When `strict`,
  /// the first refusal is thrown as `StrictRefusal` once it is told.
  ScriptPlayer(std::vector<Action> script, OperatorHands& hands, Trace& trace, bool strict);
  ScriptPlayer(const ScriptPlayer&) = delete;
  ScriptPlayer& operator=(const ScriptPlayer&) = delete;

  /// Plays on until the dialog is no longer shown; a script that ends before presses the close box.
  void Play(shown::Dialog& dialog);

  /// Answers a message with the next answer in the queue, if the message offers it, else with 1, or 6 for Yes or No.
  int AnswerTo(const Message& message);

  /// The call has returned: refuses the answers that are left over.
  void Finish();

 private:
  void Perform(shown::Dialog& dialog, const Action& action);
  /// The next answer in the queue, or null.
  const Action* TakeAnswer();
  void Refuse(const Action& action, const std::string& why);

  std::vector<Action> script_;
  OperatorHands& hands_;
  Trace& trace_;
  bool strict_;
  std::size_t next_ = 0;
  std::deque<const Action*> answers_;  // lines of the script that wait for a message
};

}  // namespace orlin
