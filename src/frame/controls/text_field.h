#pragma once

#include <string>
#include <string_view>

#include "frame/controls/control.h"
#include "frame/controls/edit_text.h"

namespace orlin {

struct TextState {
  std::string Text = {};
  int MaxLength = 0;
  bool Locked = false;
  bool MultiLine = false;
  ControlState Common = {};
};

/// What text boxes and combo boxes have in common: a text, and the road that a key takes into it.
class TextField : public shown::TextField {
 public:
  TextField(const TextField&) = delete;
  TextField& operator=(const TextField&) = delete;

  [[nodiscard]] std::string Text() const override { return edit_.Text(); }
  [[nodiscard]] int TextLength() const noexcept final { return edit_.Length(); }
  [[nodiscard]] int MaxLength() const noexcept final { return maxLength_; }
  [[nodiscard]] bool Locked() const noexcept final { return locked_; }
  [[nodiscard]] int SelStart() const noexcept final { return edit_.SelStart(); }
  [[nodiscard]] int SelLength() const noexcept final { return edit_.SelLength(); }
  [[nodiscard]] bool HasEditField() const noexcept override { return true; }
  [[nodiscard]] bool MultiLine() const noexcept final { return multiLine_; }
  Refusal SetCaret(int start, int length) final;
  Refusal Paste(std::string_view text) final;

  void SetText(std::string_view text);
  void SetMaxLength(int length);
  void SetLocked(bool locked);
  void SetSelStart(int start);
  void SetSelLength(int length);
  void SelectAll();
  /// Puts a text in place of the selection.
  void SetSelText(std::string_view text);

  Event<> Change;
  Event<int&> KeyDown;
  Event<int&> KeyPress;

 protected:
  /// The owner is the control that this is a part of.
  TextField(Control& owner, const TextState& state);
  ~TextField() = default;

  void TakeTextKey(const Key& key);
  /// The text was changed, by typing or by `SetText`, before `Change` fires.
  virtual void TextChanged() {}
  /// Takes the text over without an event; tells whether it is another one.
  bool PutText(std::string_view text);

 private:
  friend class UpDown;
  void TypeCharacter(int character);
  void MoveCaret(const Key& key);
  /// The operator has changed the text.
  void Edited();

  Control& owner_;
  EditText edit_;
  int maxLength_;
  bool locked_;
  bool multiLine_;
};

}  // namespace orlin
