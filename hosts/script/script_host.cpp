#include "OrlinCustomDialogs/hosts/script/script_host.h"

#include <utility>

namespace orlin {

ScriptHost::ScriptHost(std::vector<Action> script, Trace& trace, bool strict)
    : trace_(trace), player_(std::move(script), hands_, trace, strict) {}

SizeInTwips ScriptHost::Screen() const { return {15360, 11520}; }

void ScriptHost::ShowModal(shown::Dialog& dialog) {
  trace_.Shown(dialog);
  dialog.Activate();
  player_.Play(dialog);
}

int ScriptHost::ShowMessage(const Message& message) { return player_.AnswerTo(message); }

void ScriptHost::Beep() { trace_.Beep(); }

void ScriptHost::HandlerFailed(const shown::Dialog&, std::string_view handler, const Failure& failure) {
  trace_.HandlerFailed(handler, failure.Number());
}

}  // namespace orlin
