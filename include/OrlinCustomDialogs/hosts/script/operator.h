#pragma once

#include "OrlinCustomDialogs/host/controls.h"
#include "OrlinCustomDialogs/hosts/script/script.h"

namespace orlin {

/// The keys that type a text: a line end is one Enter, a tab is Tab.
[[nodiscard]] std::vector<Key> KeysOf(std::u32string_view text);

/// How an operator reaches the controls of a dialog that is shown: one operation for each action on them. What cannot
/// be done is refused, in words for people, and has changed nothing but perhaps the focus.
class OperatorHands {
 public:
  OperatorHands() = default;
  OperatorHands(const OperatorHands&) = delete;
  OperatorHands& operator=(const OperatorHands&) = delete;
  virtual ~OperatorHands() = default;

  virtual Refusal Do(shown::Dialog& dialog, const actions::Select& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::Click& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::Type& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::KeyStroke& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::Caret& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::FocusOn& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::Step& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::MakeCell& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::DoubleClick& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::EditCell& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::Tick& action) = 0;
  virtual Refusal Do(shown::Dialog& dialog, const actions::Close& action) = 0;
};

/// Hands that need no screen: they call the operator's side of the controls.
class DirectHands final : public OperatorHands {
 public:
  Refusal Do(shown::Dialog& dialog, const actions::Select& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Click& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Type& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::KeyStroke& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Caret& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::FocusOn& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Step& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::MakeCell& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::DoubleClick& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::EditCell& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Tick& action) override;
  Refusal Do(shown::Dialog& dialog, const actions::Close& action) override;
};

}  // namespace orlin
