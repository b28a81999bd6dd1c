#include "OrlinCustomDialogs/hosts/script/player.h"

#include <utility>
#include <variant>

namespace orlin {
namespace {

/// The answers that a message offers.
struct Buttons {
  int Usual = answers::Ok;
  int Other = 0;

  [[nodiscard]] bool Offer(int answer) const { return answer == Usual || (answer == Other && Other != 0); }
};

Buttons ButtonsOf(int flags) {
  constexpr int buttonsMask = 0xF;
  switch (flags & buttonsMask) {
    case Message::OkCancel:
      return {answers::Ok, answers::Cancel};
    case Message::YesNo:
      return {answers::Yes, answers::No};
    default:
      return {};
  }
}

template <class... Functions>
struct Cases : Functions... {
  using Functions::operator()...;
};
// clang++ 14 deduces none for an aggregate.
template <class... Functions>
Cases(Functions...) -> Cases<Functions...>;

const actions::Answer* AsAnswer(const Action& action) { return std::get_if<actions::Answer>(&action.Do); }

}  // namespace

ScriptPlayer::ScriptPlayer(std::vector<Action> script, OperatorHands& hands, Trace& trace, bool strict)
    : script_(std::move(script)), hands_(hands), trace_(trace), strict_(strict) {
  while (next_ < script_.size() && AsAnswer(script_[next_]) != nullptr) answers_.push_back(&script_[next_++]);
}

void ScriptPlayer::Play(shown::Dialog& dialog) {
  while (dialog.IsShown() && next_ < script_.size()) Perform(dialog, script_[next_++]);
  if (dialog.IsShown()) hands_.Do(dialog, actions::Close());
}

void ScriptPlayer::Perform(shown::Dialog& dialog, const Action& action) {
  dialog.PauseTyping();
  const Cases cases{[&](const actions::Answer&) -> Refusal {
                      answers_.push_back(&action);
                      return {};
                    },
                    [&](const actions::Dump&) -> Refusal {
                      trace_.State(dialog);
                      return {};
                    },
                    [&](const auto& onControls) { return hands_.Do(dialog, onControls); }};
  if (const auto refusal = std::visit(cases, action.Do)) Refuse(action, *refusal);
}

int ScriptPlayer::AnswerTo(const Message& message) {
  const auto buttons = ButtonsOf(message.Flags);
  const auto* queued = TakeAnswer();
  const int wanted = queued != nullptr ? AsAnswer(*queued)->Button : buttons.Usual;
  const int answer = buttons.Offer(wanted) ? wanted : buttons.Usual;
  trace_.Answered(message, answer);
  if (answer != wanted) Refuse(*queued, "the message has no such button");
  return answer;
}

void ScriptPlayer::Finish() {
  while (const auto* unused = TakeAnswer()) Refuse(*unused, "no message came");
}

const Action* ScriptPlayer::TakeAnswer() {
  if (answers_.empty()) return nullptr;
  const auto* answer = answers_.front();
  answers_.pop_front();
  return answer;
}

void ScriptPlayer::Refuse(const Action& action, const std::string& why) {
  trace_.Refused(action.Line, action.Source, why);
  if (strict_) throw StrictRefusal();
}

}  // namespace orlin
