#include "frame/controls/text_field.h"

#include "OrlinCustomDialogs/written_text.h"

namespace orlin {

TextField::TextField(Control& owner, const TextState& state)
    : owner_(owner), maxLength_(state.MaxLength), locked_(state.Locked), multiLine_(state.MultiLine) {
  edit_.SetText(state.Text);
}

bool TextField::PutText(std::string_view text) {
  const bool another = edit_.SetText(text);
  owner_.Changed();
  return another;
}

void TextField::SetText(std::string_view text) {
  owner_.Touch();
  if (!PutText(text)) return;
  TextChanged();
  owner_.Raise(By::Code, Change, "Change");
}

void TextField::SetMaxLength(int length) {
  owner_.Touch();
  maxLength_ = length;
  owner_.Changed();
}

void TextField::SetLocked(bool locked) {
  owner_.Touch();
  locked_ = locked;
  owner_.Changed();
}

void TextField::SetSelStart(int start) {
  owner_.Touch();
  edit_.Select(start, 0);
  owner_.Changed();
}

void TextField::SetSelLength(int length) {
  owner_.Touch();
  edit_.Select(edit_.SelStart(), length);
  owner_.Changed();
}

void TextField::SelectAll() {
  owner_.Touch();
  edit_.Select(0, edit_.Length());
  owner_.Changed();
}

void TextField::SetSelText(std::string_view text) {
  owner_.Touch();
  const bool another = edit_.SelLength() > 0 || !text.empty();
  edit_.ReplaceSelection(text);
  owner_.Changed();
  if (!another) return;
  TextChanged();
  owner_.Raise(By::Code, Change, "Change");
}

Refusal TextField::SetCaret(int start, int length) {
  if (!HasEditField()) return owner_.Name() + " has no edit field";
  if (auto refusal = owner_.Approach()) return refusal;
  edit_.Select(start, length);
  owner_.Changed();
  return {};
}

Refusal TextField::Paste(std::string_view text) {
  if (!HasEditField()) return owner_.Name() + " has no edit field";
  if (auto refusal = owner_.Approach()) return refusal;
  const auto characters = FromUtf8(text);
  for (std::size_t i = 0; i < characters.size() && owner_.HasFocus() && !owner_.OutOfReach(); ++i) {
    const bool lineEnd = characters[i] == U'\r' || characters[i] == U'\n';
    if (characters[i] == U'\r' && i + 1 < characters.size() && characters[i + 1] == U'\n') ++i;
    // A line end would press the default button; in a pasted text it is no key.
    if (lineEnd && !multiLine_) continue;
    owner_.TakeKey(lineEnd ? Key::Named(keys::Enter) : Key::Typing(characters[i]));
  }
  return {};
}

void TextField::TakeTextKey(const Key& key) {
  Key passed = key;
  owner_.Raise(By::Operator, KeyDown, "KeyDown", passed.Code);
  if (passed.Code == 0 || !HasEditField() || owner_.OutOfReach()) return;
  const bool typesCode = key.Code == keys::Backspace || key.Code == keys::Enter;
  if (typesCode || key.Character != 0) {
    TypeCharacter(typesCode ? key.Code : static_cast<int>(key.Character));
  } else if (key.Code == keys::Delete) {
    if (!locked_ && edit_.Delete()) Edited();
  } else {
    MoveCaret(key);
  }
}

void TextField::TypeCharacter(int character) {
  owner_.Raise(By::Operator, KeyPress, "KeyPress", character);
  if (character == 0 || locked_ || owner_.OutOfReach()) return;
  const auto put = [&] {
    if (character == keys::Backspace) return edit_.Backspace();
    if (character == keys::Enter) return multiLine_ && edit_.InsertLineEnd(maxLength_);
    // Other control characters are no text, but for the tab of a pasted text of several lines.
    if (character < keys::Space && !(character == keys::Tab && multiLine_)) return false;
    return edit_.Insert(static_cast<char32_t>(character), maxLength_);
  };
  if (put()) Edited();
}

void TextField::Edited() {
  owner_.Changed();
  TextChanged();
  owner_.Raise(By::Operator, Change, "Change");
}

void TextField::MoveCaret(const Key& key) {
  switch (key.Code) {
    case keys::Left:
      edit_.Left();
      break;
    case keys::Right:
      edit_.Right();
      break;
    case keys::Home:
      edit_.Home();
      break;
    case keys::End:
      edit_.End();
      break;
    case keys::Up:
      edit_.Up();
      break;
    case keys::Down:
      edit_.Down();
      break;
    default:
      return;
  }
  owner_.Changed();
}

}  // namespace orlin
