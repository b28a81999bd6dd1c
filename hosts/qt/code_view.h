#pragma once

#include <QString>
#include <map>
#include <optional>

#include "qt/control_view.h"

class QLabel;

namespace orlin {

class CodeLine;

/// A code that is made of lists, as a field beside its label: when all characters are typed, the rows of the lists are
/// picked, in order, as the operator would pick them. What is typed until then changes nothing.
///
/// For the dialog the code is a label, which takes no focus. So a person enters the field without it: by the mouse, or
/// by Tab before the first of the lists, where the focus of the dialog is meanwhile. For a script the field only shows.
class CodeView final : public ViewOf<shown::Control> {
 public:
  CodeView(shown::Control& code, Desk& desk, QWidget* parent);
  [[nodiscard]] QWidget* Widget() const override { return whole_; }
  [[nodiscard]] QWidget* KeyboardWidget() const override;
  void Present() override;
  bool TakeWindowKey(const QKeyEvent& key) override;
  /// Tab into the field and out of it, wherever the keyboard is. Tells whether it was Tab.
  bool TakeTab(const QKeyEvent& key);

  [[nodiscard]] bool HasKeyboard() const { return entered_; }
  /// Whether what stands in the field is not the code of the dialog, so that OK would store another one.
  [[nodiscard]] bool IsOpen() const { return typed_.has_value(); }
  /// Whether what the operator does now comes from the field.
  [[nodiscard]] bool Acts() const { return acts_; }
  /// The operator does something else: the code is given back as it stands.
  void Leave();

  /// What is wrong with the row of one of the lists, beside which it is to be told; else empty.
  [[nodiscard]] QString RemarkOn(const shown::Control& list) const;

 private:
  void Enter();
  void Take(const QString& text);
  void GiveBack();
  void ShowText();
  void Act(const std::function<Refusal()>& action);

  QWidget* whole_;
  CodeLine* field_;
  QLabel* state_;
  bool entered_ = false;
  bool acts_ = false;
  bool showing_ = false;
  std::optional<QString> typed_;                         // while it is not the code
  std::map<const shown::Control*, QString> impossible_;  // characters that a list has no row for
};

}  // namespace orlin
