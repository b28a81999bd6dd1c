#include <algorithm>
#include <limits>

#include "OrlinCustomDialogs/controls.h"

#include "frame/conversions.h"
#include "frame/utf8.h"

// The rules of the controls, for the logic and for the operator, each told once.

namespace orlin {

std::string_view KindName(ControlKind kind) noexcept {
  switch (kind) {
    case ControlKind::Label:
      return "Label";
    case ControlKind::Frame:
      return "Frame";
    case ControlKind::Button:
      return "Button";
    case ControlKind::CheckBox:
      return "CheckBox";
    case ControlKind::OptionButton:
      return "OptionButton";
    case ControlKind::TextBox:
      return "TextBox";
    case ControlKind::ComboBox:
      return "ComboBox";
    case ControlKind::ListBox:
      return "ListBox";
    case ControlKind::UpDown:
      return "UpDown";
    case ControlKind::StatusBar:
      return "StatusBar";
    case ControlKind::Timer:
      return "Timer";
    case ControlKind::Grid:
      return "Grid";
  }
  return "";
}

namespace shown {

// ---------------------------------------------------------------------------------------------- every control

Control::Control(ControlKind kind, shown::Dialog& form, const Frame* parent, std::string name, int index)
    : kind_(kind), form_(&form), parent_(parent), name_(std::move(name)), index_(index) {
  form.controls_.push_back(this);
}

void Control::StartCaption(std::string caption, std::int16_t number) {
  caption_ = std::move(caption);
  captionNumber_ = number;
}

void Control::StartCommon(bool visible, bool enabled, int left, int top, int width) noexcept {
  visible_ = visible;
  enabled_ = enabled;
  left_ = left;
  top_ = top;
  width_ = width;
}

bool Control::IsShown() const noexcept { return visible_ && (parent_ == nullptr || parent_->IsShown()); }

bool Control::WithinReach() const noexcept {
  return visible_ && enabled_ && (parent_ == nullptr || parent_->WithinReach());
}

bool Control::TakesFocus() const noexcept {
  switch (kind_) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::UpDown:
    case ControlKind::StatusBar:
    case ControlKind::Timer:
      return false;
    default:
      return true;
  }
}

bool Control::HasFocus() const noexcept { return form_->FocusedControl() == this; }

Refusal Control::OutOfReach() const {
  if (!form_->IsShown()) return "the dialog is not shown";
  if (!IsShown()) return name_ + " is hidden";
  if (!WithinReach()) return name_ + " is disabled";
  return {};
}

Refusal Control::Approach() {
  if (auto refusal = OutOfReach()) return refusal;
  if (TakesFocus()) form_->MoveFocus(this, By::Operator);
  return OutOfReach();
}

Refusal Control::Focus() {
  if (!TakesFocus()) return name_ + " does not take the focus";
  return Approach();
}

Refusal Control::Press() { return name_ + " is a " + std::string(KindName(kind_)) + ", which cannot be pressed"; }

void Control::Touch() const { form_->Touched(); }

void Control::TakeKey(const Key&) {}

void Control::Leave(By) {}

void Control::SetVisible(bool visible) {
  Touch();
  visible_ = visible;
  Changed();
}

void Control::SetEnabled(bool enabled) {
  Touch();
  enabled_ = enabled;
  Changed();
}

void Control::SetLeft(int left) {
  Touch();
  left_ = left;
  Changed();
}

void Control::SetTop(int top) {
  Touch();
  top_ = top;
  Changed();
}

void Control::SetWidth(int width) {
  Touch();
  width_ = width;
  Changed();
}

void Control::SetCaption(std::string caption) {
  Touch();
  caption_ = std::move(caption);
  Changed();
}

void Control::SetBackColor(std::optional<std::int32_t> color) {
  Touch();
  backColor_ = color;
  Changed();
}

void Control::SetTabStop(bool stops) {
  Touch();
  tabStop_ = stops;
  Changed();
}

void Control::SetFocus() {
  Touch();
  form_->MoveFocus(this, By::Code);
}

// ---------------------------------------------------------------------------------------------- labels

Control* Label::Names() const {
  const auto& all = Form().Controls();
  Control* first = nullptr;
  for (auto next = std::find(all.begin(), all.end(), this) + 1; next != all.end(); ++next) {
    auto* control = *next;
    if (control->Parent() != Parent() || (Index() >= 0 && control->Index() != Index())) continue;
    if (first != nullptr && control->Kind() == ControlKind::Label) break;
    // A control with a caption needs no label.
    if (!control->TakesFocus() || !control->Caption().empty()) continue;
    if (control->Visible()) return control;
    if (first == nullptr) first = control;
  }
  return first;
}

// ---------------------------------------------------------------------------------------------- buttons

Refusal Button::Press() {
  if (auto refusal = Approach()) return refusal;
  Raise(By::Operator, Click, "Click");
  return {};
}

void Button::TakeKey(const Key& key) {
  if (key.Code == keys::Space) Raise(By::Operator, Click, "Click");
}

void CheckBox::SetValue(int value) {
  Touch();
  if (value != 0 && value != 1) throw Failure(failures::InvalidPropertyValue);
  if (value == value_) return;
  value_ = static_cast<std::int16_t>(value);
  Changed();
  Raise(By::Code, Click, "Click");
}

Refusal CheckBox::Press() {
  if (auto refusal = Approach()) return refusal;
  value_ = static_cast<std::int16_t>(1 - value_);
  Changed();
  Raise(By::Operator, Click, "Click");
  return {};
}

void CheckBox::TakeKey(const Key& key) {
  if (key.Code == keys::Space) Press();
}

void OptionButton::ClearOthers() {
  for (auto* control : Form().Controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option == nullptr || option == this || option->Parent() != Parent() || !option->value_) continue;
    option->value_ = false;
    option->Changed();
  }
}

void OptionButton::SetValue(bool value) {
  Touch();
  if (value == value_) return;
  value_ = value;
  Changed();
  if (!value) return;
  ClearOthers();
  Raise(By::Code, Click, "Click");
}

Refusal OptionButton::Press() {
  if (auto refusal = Approach()) return refusal;
  value_ = true;
  Changed();
  ClearOthers();
  Raise(By::Operator, Click, "Click");
  return {};
}

OptionButton* OptionButton::Neighbour(int step) const {
  std::vector<OptionButton*> group;
  for (auto* control : Form().Controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && option->Parent() == Parent() && (option == this || option->WithinReach())) {
      group.push_back(option);
    }
  }
  const auto size = static_cast<std::ptrdiff_t>(group.size());
  const auto place = std::find(group.begin(), group.end(), this) - group.begin();
  return group[static_cast<std::size_t>((place + step + size) % size)];
}

void OptionButton::TakeKey(const Key& key) {
  if (key.Code == keys::Space) {
    Press();
  } else if (key.Code == keys::Down || key.Code == keys::Right) {
    Neighbour(1)->Press();
  } else if (key.Code == keys::Up || key.Code == keys::Left) {
    Neighbour(-1)->Press();
  }
}

// ---------------------------------------------------------------------------------------------- text

void TextControl::StartText(std::string_view text, int maxLength, bool locked, bool multiLine) {
  edit_.SetText(text);
  maxLength_ = maxLength;
  locked_ = locked;
  multiLine_ = multiLine;
}

bool TextControl::PutText(std::string_view text) {
  const bool another = edit_.SetText(text);
  Changed();
  return another;
}

void TextControl::SetText(std::string_view text) {
  Touch();
  if (!PutText(text)) return;
  TextChanged();
  Raise(By::Code, Change, "Change");
}

void TextControl::SetMaxLength(int length) {
  Touch();
  maxLength_ = length;
  Changed();
}

void TextControl::SetLocked(bool locked) {
  Touch();
  locked_ = locked;
  Changed();
}

void TextControl::SetSelStart(int start) {
  Touch();
  edit_.Select(start, 0);
  Changed();
}

void TextControl::SetSelLength(int length) {
  Touch();
  edit_.Select(edit_.SelStart(), length);
  Changed();
}

void TextControl::SelectAll() {
  Touch();
  edit_.Select(0, edit_.Length());
  Changed();
}

void TextControl::SetSelText(std::string_view text) {
  Touch();
  const bool another = edit_.SelLength() > 0 || !text.empty();
  edit_.ReplaceSelection(text);
  Changed();
  if (!another) return;
  TextChanged();
  Raise(By::Code, Change, "Change");
}

Refusal TextControl::SetCaret(int start, int length) {
  if (!hasEditField_) return Name() + " has no edit field";
  if (auto refusal = Approach()) return refusal;
  edit_.Select(start, length);
  Changed();
  return {};
}

Refusal TextControl::Paste(std::string_view text) {
  if (!hasEditField_) return Name() + " has no edit field";
  if (auto refusal = Approach()) return refusal;
  const auto characters = FromUtf8(text);
  for (std::size_t i = 0; i < characters.size() && HasFocus() && !OutOfReach(); ++i) {
    const bool lineEnd = characters[i] == U'\r' || characters[i] == U'\n';
    if (characters[i] == U'\r' && i + 1 < characters.size() && characters[i + 1] == U'\n') ++i;
    // A line end would press the default button; in a pasted text it is no key.
    if (lineEnd && !multiLine_) continue;
    TakeKey(lineEnd ? Key::Named(keys::Enter) : Key::Typing(characters[i]));
  }
  return {};
}

void TextControl::TakeKey(const Key& key) {
  Key passed = key;
  Raise(By::Operator, KeyDown, "KeyDown", passed.Code);
  if (passed.Code == 0 || !hasEditField_ || OutOfReach()) return;
  const bool typesCode = key.Code == keys::Backspace || key.Code == keys::Enter;
  if (typesCode || key.Character != 0) {
    TypeCharacter(typesCode ? key.Code : static_cast<int>(key.Character));
  } else if (key.Code == keys::Delete) {
    if (locked_ || !edit_.Delete()) return;
    Changed();
    TextChanged();
    Raise(By::Operator, Change, "Change");
  } else {
    MoveCaret(key);
  }
}

void TextControl::TypeCharacter(int character) {
  Raise(By::Operator, KeyPress, "KeyPress", character);
  if (character == 0 || locked_ || OutOfReach()) return;
  const auto put = [&] {
    if (character == keys::Backspace) return edit_.Backspace();
    if (character == keys::Enter) return multiLine_ && edit_.InsertLineEnd(maxLength_);
    // Other control characters are no text, but for the tab of a pasted text of several lines.
    if (character < keys::Space && !(character == keys::Tab && multiLine_)) return false;
    return edit_.Insert(static_cast<char32_t>(character), maxLength_);
  };
  if (!put()) return;
  Changed();
  TextChanged();
  Raise(By::Operator, Change, "Change");
}

void TextControl::MoveCaret(const Key& key) {
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
  Changed();
}

// ---------------------------------------------------------------------------------------------- lists

const std::string& RowList::List(int row) const noexcept {
  static const std::string none;
  return HasRow(row) ? rows_[static_cast<std::size_t>(row)].Text : none;
}

std::int32_t RowList::ItemData(int row) const {
  if (!HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  return rows_[static_cast<std::size_t>(row)].ItemData;
}

RowList::Row& RowList::RowAt(int row) {
  if (!HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  return rows_[static_cast<std::size_t>(row)];
}

bool RowList::IsMarked(int row) const noexcept { return HasRow(row) && rows_[static_cast<std::size_t>(row)].Selected; }

void RowList::AddItem(std::string text) { InsertItem(std::move(text), ListCount()); }

void RowList::AddItem(std::string text, std::int32_t itemData) {
  AddItem(std::move(text));
  rows_.back().ItemData = itemData;
}

void RowList::InsertItem(std::string text, int row) {
  owner_.Touch();
  if (row < 0 || row > ListCount() || ListCount() == std::numeric_limits<std::int16_t>::max()) {
    throw Failure(failures::InvalidPropertyValue);
  }
  rows_.insert(rows_.begin() + row, Row{std::move(text)});
  newIndex_ = static_cast<std::int16_t>(row);
  if (listIndex_ >= row) ++listIndex_;
  owner_.Changed();
}

void RowList::SetItemData(int row, std::int32_t itemData) {
  owner_.Touch();
  RowAt(row).ItemData = itemData;
  owner_.Changed();
}

void RowList::Clear() {
  owner_.Touch();
  rows_.clear();
  listIndex_ = -1;
  newIndex_ = -1;
  RowsCleared();
  owner_.Changed();
}

void RowList::SetListIndex(int row) {
  owner_.Touch();
  if (row != -1 && !HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  Select(row, By::Code);
}

void RowList::SelectRow(int row) {
  owner_.Touch();
  if (!HasRow(row)) throw Failure(failures::InvalidPropertyValue);
  Select(row, By::Code);
}

Refusal RowList::PickRow(int row) {
  if (auto refusal = RefusePick()) return refusal;
  if (auto refusal = owner_.Approach()) return refusal;
  if (!HasRow(row)) return owner_.Name() + " has no row " + std::to_string(row);
  if (row != listIndex_) Select(row, By::Operator);
  return {};
}

bool RowList::PickByKey(const Key& key) {
  const int last = ListCount() - 1;
  const auto target = [&]() -> std::optional<int> {
    switch (key.Code) {
      case keys::Home:
        return 0;
      case keys::End:
        return last;
      case keys::Up:
        return listIndex_ - 1;
      case keys::Down:
        return listIndex_ + 1;
      case keys::PageUp:
        return listIndex_ - kRowsOfAPage;
      case keys::PageDown:
        return listIndex_ + kRowsOfAPage;
      default:
        return std::nullopt;
    }
  }();
  if (!target) return false;
  const int row = std::clamp(*target, 0, std::max(last, 0));
  if (HasRow(row) && row != listIndex_) Select(row, By::Operator);
  return true;
}

ComboBox::ComboBox(ControlKind kind, shown::Dialog& form, const Frame* parent, std::string name, int index)
    : TextControl(kind, form, parent, std::move(name), index), RowList(static_cast<Control&>(*this)) {}

std::string ComboBox::Text() const { return HasEditField() ? TextControl::Text() : List(ListIndex()); }

void ComboBox::TextChanged() { PutListIndex(-1); }

void ComboBox::RowsCleared() { PutText(""); }

void ComboBox::Select(int row, By by) {
  PutListIndex(row);
  const bool another = HasEditField() && PutText(List(row));
  Changed();
  if (another && by == By::Operator) Raise(by, Change, "Change");
  Raise(by, Click, "Click");
}

void ComboBox::TakeKey(const Key& key) {
  const bool movesCaret = HasEditField() && (key.Code == keys::Home || key.Code == keys::End);
  if (movesCaret || key.Character != 0) return TextControl::TakeKey(key);
  Key passed = key;
  const bool picks =
      key.Code >= keys::PageUp && key.Code <= keys::Down && key.Code != keys::Left && key.Code != keys::Right;
  if (!picks) return TextControl::TakeKey(key);
  Raise(By::Operator, KeyDown, "KeyDown", passed.Code);
  if (passed.Code != 0 && !OutOfReach()) PickByKey(passed);
}

ListBox::ListBox(ControlKind kind, shown::Dialog& form, const Frame* parent, std::string name, int index)
    : Control(kind, form, parent, std::move(name), index), RowList(static_cast<Control&>(*this)) {}

Refusal ListBox::RefusePick() const {
  if (choice_ == Choice::One) return {};
  return Name() + " is a list of many choices: its rows are selected on or off";
}

void ListBox::Select(int row, By by) {
  const bool another = row != ListIndex();
  PutListIndex(row);
  Changed();
  if (another && (by == By::Code || choice_ == Choice::One)) Raise(by, Click, "Click");
}

void ListBox::Mark(int row, bool on, By by) {
  auto& marked = RowAt(row).Selected;
  if (marked == on) return;
  marked = on;
  Changed();
  if (choice_ == Choice::Checks) {
    Raise(by, ItemCheck, "ItemCheck", row);
  } else {
    Raise(by, Click, "Click");
  }
}

void ListBox::SetSelected(int row, bool on) {
  Touch();
  Mark(row, on, By::Code);
}

Refusal ListBox::MarkRow(int row, bool on) {
  if (choice_ == Choice::One) return Name() + " is a list of one choice: its rows are picked";
  if (auto refusal = Approach()) return refusal;
  if (!HasRow(row)) return Name() + " has no row " + std::to_string(row);
  PutListIndex(row);
  Changed();
  Mark(row, on, By::Operator);
  return {};
}

void ListBox::TakeKey(const Key& key) {
  if (PickByKey(key)) return;
  if (key.Code == keys::Space && choice_ != Choice::One && HasRow(ListIndex())) {
    Mark(ListIndex(), !Selected(ListIndex()), By::Operator);
  }
}

// ---------------------------------------------------------------------------------------------- up-down

void TextBox::TextChanged() {
  if (follower_ != nullptr) follower_->FollowBuddy();
}

void UpDown::StartLimits(int min, int max, TextBox* buddy, bool followsBuddy) {
  min_ = static_cast<std::int16_t>(min);
  max_ = static_cast<std::int16_t>(max);
  value_ = min_;
  buddy_ = buddy;
  if (buddy == nullptr || !followsBuddy) return;
  buddy->follower_ = this;
  FollowBuddy();
}

void UpDown::FollowBuddy() {
  value_ = static_cast<std::int16_t>(Start());
  Changed();
}

int UpDown::Start() const {
  // A box that was emptied holds no number to take up.
  if (buddy_ == nullptr || buddy_->Text().empty()) return value_;
  return static_cast<int>(std::clamp<double>(NumericValue(buddy_->Text()), min_, max_));
}

void UpDown::Put(int value, By by) {
  const bool another = value != value_;
  value_ = static_cast<std::int16_t>(value);
  Changed();
  if (buddy_ != nullptr) buddy_->PutText(std::to_string(value));
  if (another) Raise(by, Change, "Change");
}

void UpDown::SetValue(int value) {
  Touch();
  if (value < min_ || value > max_) throw Failure(failures::InvalidPropertyValue);
  if (value != value_) Put(value, By::Code);
}

Refusal UpDown::Step(Direction direction) {
  if (auto refusal = OutOfReach()) return refusal;
  const int from = Start();
  const int to = std::clamp<int>(from + (direction == Direction::Up ? 1 : -1), min_, max_);
  // Without a box the buttons tell each press, whatever the dialog makes of it.
  if (buddy_ != nullptr && to == from && to == value_) return {};
  Put(to, By::Operator);
  if (direction == Direction::Up) {
    Raise(By::Operator, UpClick, "UpClick");
  } else {
    Raise(By::Operator, DownClick, "DownClick");
  }
  return {};
}

// ---------------------------------------------------------------------------------------------- status line, timer

void StatusBar::SetText(std::string text) {
  Touch();
  text_ = std::move(text);
  Changed();
}

void Timer::SetInterval(int milliseconds) {
  Touch();
  interval_ = milliseconds;
  Changed();
}

bool Timer::Running() const noexcept { return Form().IsShown() && Enabled() && interval_ > 0; }

Refusal Timer::Tick() {
  if (!Form().IsShown()) return "the dialog is not shown";
  if (!Running()) return Name() + " is not running";
  Raise(By::Operator, OnTimer, "Timer");
  return {};
}

}  // namespace shown
}  // namespace orlin
