#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "OrlinCustomDialogs/controls.h"

// The controls as the logic of a dialog declares and uses them. Each opens the protected side of its shown:: class;
// the rules stand there. A dialog declares its controls as members, in tab order, so that the declarations read as
// its table of controls: name, container, caption, initial state.
//
//     Frame fraTime{Form, "fraTime", 1520};
//     TextBox txtHour{fraTime, "txtHour", {.Text = "00", .MaxLength = 2}};

namespace orlin {

class Dialog;
class Frame;

/// Where a caption comes from: a number of the catalogue, loaded with the dialog, or a text of its own.
struct CaptionSource {
  CaptionSource() = default;
  CaptionSource(std::int16_t number) : Number(number) {}
  CaptionSource(int number) : Number(static_cast<std::int16_t>(number)) {}
  CaptionSource(const char* text) : Text(text) {}

  std::int16_t Number = 0;
  std::string Text;
};

/// What a control is declared in: the dialog, or a frame of it.
class Container {
 public:
  Container(Dialog& form);
  Container(Frame& frame);

  [[nodiscard]] shown::Dialog& Form() const noexcept { return *form_; }
  [[nodiscard]] const shown::Frame* Outer() const noexcept { return frame_; }

 private:
  shown::Dialog* form_;
  const shown::Frame* frame_ = nullptr;
};

/// The state in which a control of any kind is made, as far as it is not the usual one.
struct ControlState {
  bool Visible = true;
  bool Enabled = true;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  const char* Tag = "";
};

/// What every control offers the logic.
template <class Shown>
class Logic : public Shown {
 public:
  using Shown::GotFocus;
  using Shown::LostFocus;
  using Shown::SetBackColor;
  using Shown::SetCaption;
  using Shown::SetEnabled;
  using Shown::SetFocus;
  using Shown::SetLeft;
  using Shown::SetTabStop;
  using Shown::SetTag;
  using Shown::SetTop;
  using Shown::SetVisible;
  using Shown::SetWidth;
  using Shown::Tag;

 protected:
  Logic(ControlKind kind, const Container& in, std::string_view name, const ControlState& state, int index = -1)
      : Shown(kind, in.Form(), in.Outer(), NameInArray(name, index), index) {
    Shown::StartCommon(state.Visible, state.Enabled, state.Left, state.Top, state.Width);
    Shown::SetTag(state.Tag);
  }

  void StartCaption(const CaptionSource& caption) { Shown::StartCaption(caption.Text, caption.Number); }

 private:
  static std::string NameInArray(std::string_view name, int index) {
    std::string full(name);
    if (index >= 0) full.append("(").append(std::to_string(index)).append(")");
    return full;
  }
};

/// Any control of a dialog, for tables that name controls of several kinds.
class AnyControl {
 public:
  template <class Shown>
  AnyControl(Logic<Shown>& control) : control_(&control) {}

  void SetVisible(bool visible) const { control_->SetVisible(visible); }
  void SetEnabled(bool enabled) const { control_->SetEnabled(enabled); }

 private:
  shown::Control* control_;
};

class Label : public Logic<shown::Label> {
 public:
  Label(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {},
        int index = -1);
};

class Frame : public Logic<shown::Frame> {
 public:
  Frame(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {});
};

class Button : public Logic<shown::Button> {
 public:
  Button(const Container& in, std::string_view name, const CaptionSource& caption = {}, const ControlState& state = {});
  using shown::Button::Click;
};

class CheckBox : public Logic<shown::CheckBox> {
 public:
  CheckBox(const Container& in, std::string_view name, const CaptionSource& caption = {},
           const ControlState& state = {}, int index = -1);
  using shown::CheckBox::Click;
  using shown::CheckBox::SetValue;
};

struct OptionState {
  bool Value = false;
  ControlState Common = {};
};

class OptionButton : public Logic<shown::OptionButton> {
 public:
  OptionButton(const Container& in, std::string_view name, const CaptionSource& caption = {},
               const OptionState& state = {}, int index = -1);
  using shown::OptionButton::Click;
  using shown::OptionButton::SetValue;
};

struct TextState {
  std::string Text = {};
  int MaxLength = 0;
  bool Locked = false;
  bool MultiLine = false;
  ControlState Common = {};
};

class TextBox : public Logic<shown::TextBox> {
 public:
  TextBox(const Container& in, std::string_view name, const TextState& state = {});
  using shown::TextBox::Change;
  using shown::TextBox::KeyDown;
  using shown::TextBox::KeyPress;
  using shown::TextBox::SelectAll;
  using shown::TextBox::SetLocked;
  using shown::TextBox::SetMaxLength;
  using shown::TextBox::SetSelLength;
  using shown::TextBox::SetSelStart;
  using shown::TextBox::SetSelText;
  using shown::TextBox::SetText;
};

/// The rows of a list, as the logic fills and selects them.
template <class List>
class RowLogic : public Logic<List> {
 public:
  using List::AddItem;
  using List::Clear;
  using List::Click;
  using List::InsertItem;
  using List::NewIndex;
  using List::SelectRow;
  using List::SetItemData;
  using List::SetListIndex;

 protected:
  using Logic<List>::Logic;
};

struct ComboState {
  bool HasEditField = false;
  ControlState Common = {};
};

/// A drop-down list, or, with an edit field, a combo box.
class ComboBox : public RowLogic<shown::ComboBox> {
 public:
  ComboBox(const Container& in, std::string_view name, const ComboState& state = {}, int index = -1);
  using shown::ComboBox::Change;
  using shown::ComboBox::KeyDown;
  using shown::ComboBox::KeyPress;
  using shown::ComboBox::SetMaxLength;
  using shown::ComboBox::SetSelLength;
  using shown::ComboBox::SetSelStart;
  using shown::ComboBox::SetText;
};

struct ListState {
  shown::Choice Choice = shown::Choice::One;
  ControlState Common = {};
};

class ListBox : public RowLogic<shown::ListBox> {
 public:
  ListBox(const Container& in, std::string_view name, const ListState& state = {});
  using shown::ListBox::ItemCheck;
  using shown::ListBox::SetSelected;
};

struct UpDownState {
  int Min = 0;
  int Max = 100;
  TextBox* Buddy = nullptr;
  ControlState Common = {};
};

class UpDown : public Logic<shown::UpDown> {
 public:
  UpDown(const Container& in, std::string_view name, const UpDownState& state = {});
  using shown::UpDown::Change;
  using shown::UpDown::DownClick;
  using shown::UpDown::SetValue;
  using shown::UpDown::UpClick;
};

class StatusBar : public Logic<shown::StatusBar> {
 public:
  StatusBar(const Container& in, std::string_view name, const ControlState& state = {});
  using shown::StatusBar::SetText;
};

struct TimerState {
  int Interval = 0;
  ControlState Common = {};
};

class Timer : public Logic<shown::Timer> {
 public:
  Timer(const Container& in, std::string_view name, const TimerState& state = {});
  using shown::Timer::OnTimer;
  using shown::Timer::SetInterval;
};

struct GridState {
  int Rows = 0;
  int Cols = 0;
  int FixedRows = 0;
  int FixedCols = 0;
  ControlState Common = {};
};

class Grid : public Logic<shown::Grid> {
 public:
  Grid(const Container& in, std::string_view name, const GridState& state);
  using shown::Grid::AddItem;
  using shown::Grid::AfterEdit;
  using shown::Grid::CellNumber;
  using shown::Grid::DblClick;
  using shown::Grid::EditCell;
  using shown::Grid::KeyPressEdit;
  using shown::Grid::RemoveItem;
  using shown::Grid::SelectCell;
  using shown::Grid::SetCellAlignment;
  using shown::Grid::SetCellBold;
  using shown::Grid::SetCellColor;
  using shown::Grid::SetCellText;
  using shown::Grid::SetColAlignment;
  using shown::Grid::SetColWidth;
  using shown::Grid::SetRows;
  using shown::Grid::StartEdit;
};

/// Controls of one kind under one name, told apart by their index: "cmbDigit(0)", "cmbDigit(1)" ..., or counted from
/// another `First`.
template <class Kind, std::size_t Size, std::size_t First = 0>
class ControlArray {
 public:
  /// Members without captions, all in the same initial state.
  ControlArray(const Container& in, std::string_view name)
      : ControlArray(in, name, std::array<CaptionSource, Size>{}) {}
  /// One caption for each index, from the first.
  ControlArray(const Container& in, std::string_view name, const std::array<CaptionSource, Size>& captions)
      : ControlArray(in, name, captions, std::make_index_sequence<Size>()) {}

  /// `Failure` 9 outside the array.
  [[nodiscard]] Kind& operator[](std::integral auto index) { return members_[Checked(index)]; }
  [[nodiscard]] const Kind& operator[](std::integral auto index) const { return members_[Checked(index)]; }
  [[nodiscard]] static constexpr std::size_t size() noexcept { return Size; }
  [[nodiscard]] auto begin() noexcept { return members_.begin(); }
  [[nodiscard]] auto end() noexcept { return members_.end(); }
  [[nodiscard]] auto begin() const noexcept { return members_.begin(); }
  [[nodiscard]] auto end() const noexcept { return members_.end(); }

  /// One handler for the `Click` of all members, which gets the index.
  template <class Handler>
  void OnClick(Handler handler) {
    for (std::size_t i = 0; i < Size; ++i) members_[i].Click = [handler, i] { handler(static_cast<int>(First + i)); };
  }

 private:
  template <std::size_t... Indexes>
  ControlArray(const Container& in, std::string_view name, const std::array<CaptionSource, Size>& captions,
               std::index_sequence<Indexes...>)
      : members_{Make(in, name, captions[Indexes], static_cast<int>(First + Indexes))...} {}

  static std::size_t Checked(std::integral auto index) {
    if (std::cmp_less(index, First) || std::cmp_greater_equal(index, First + Size)) {
      throw Failure(failures::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index) - First;
  }

  static Kind Make(const Container& in, std::string_view name, const CaptionSource& caption, int index) {
    if constexpr (std::is_constructible_v<Kind, const Container&, std::string_view, const CaptionSource&>) {
      return Kind(in, name, caption, {}, index);
    } else {
      return Kind(in, name, {}, index);
    }
  }

  std::array<Kind, Size> members_;
};

}  // namespace orlin
