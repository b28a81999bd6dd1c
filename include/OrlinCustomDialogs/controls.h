#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/edit_text.h"
#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/keys.h"

// Private to the library: declared apart, for the namespace below exports whatever it declares.
namespace orlin {
class AnyControl;
class Dialog;
}  // namespace orlin

namespace [[using gnu: visibility("default")]] orlin {

class DialogHost;

enum class ControlKind {
  Label,
  Frame,
  Button,
  CheckBox,
  OptionButton,
  TextBox,
  ComboBox,
  ListBox,
  UpDown,
  StatusBar,
  Timer,
  Grid
};

/// "Label", "Frame", "Button" ...
[[nodiscard]] std::string_view KindName(ControlKind kind) noexcept;

/// Who causes an event. A failure in a handler ends the handler where the operator caused it, and reaches the
/// code that caused it otherwise.
enum class By { Code, Operator };

/// One event of a control: at most one handler, which the dialog sets when it is made.
template <class... Arguments>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(handler_); }
  void operator()(Arguments... arguments) const { handler_(arguments...); }

 private:
  std::function<void(Arguments...)> handler_;
};

/// Why the operator cannot do something, in words such as "cmdOK is disabled"; nothing where it was done.
using Refusal = std::optional<std::string>;

/// The controls of a dialog as a host meets them. The public side of each class is the operator's: reading what the
/// control shows, and doing what an operator can do with mouse and keyboard. What the logic of a dialog may set is
/// protected here; the library opens it for its own dialogs only.
///
/// Every operation of the operator's side that returns a `Refusal` first checks that the control is within reach,
/// moves the focus where a mouse would move it, fires the events in their order, and is done when it returns.
namespace shown {

class Dialog;
class Frame;
class RowList;
class UpDown;

/// How far Page Up and Page Down go in lists and grids.
inline constexpr int kRowsOfAPage = 10;

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] ControlKind Kind() const noexcept { return kind_; }
  /// The name, members of an array with their index: "cmbDigit(0)".
  [[nodiscard]] const std::string& Name() const noexcept { return name_; }
  /// The index in an array of controls, or -1.
  [[nodiscard]] int Index() const noexcept { return index_; }
  [[nodiscard]] shown::Dialog& Form() const noexcept { return *form_; }
  /// The frame that the control stands in, or null where it stands in the dialog itself.
  [[nodiscard]] const Frame* Parent() const noexcept { return parent_; }

  /// The control's own flags; it is within reach when these and those of all its frames are set.
  [[nodiscard]] bool Visible() const noexcept { return visible_; }
  [[nodiscard]] bool Enabled() const noexcept { return enabled_; }
  [[nodiscard]] bool IsShown() const noexcept;
  [[nodiscard]] bool WithinReach() const noexcept;

  /// Position in the container and size, in twips. A host may place controls by rules of its own.
  [[nodiscard]] int Left() const noexcept { return left_; }
  [[nodiscard]] int Top() const noexcept { return top_; }
  [[nodiscard]] int Width() const noexcept { return width_; }

  /// The caption of a label, frame, button, check box or option, with the marks of access keys (see `AccessKey`).
  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  /// Background as 0xBBGGRR, or nothing for the usual one of the kind.
  [[nodiscard]] std::optional<std::int32_t> BackColor() const noexcept { return backColor_; }

  /// Whether a control of this kind can have the focus.
  [[nodiscard]] bool TakesFocus() const noexcept;
  [[nodiscard]] bool HasFocus() const noexcept;
  /// Whether Tab may stop here. The mouse and the access key reach the control all the same.
  [[nodiscard]] bool TabStop() const noexcept { return tabStop_; }

  /// Grows with every change that a host may have to present.
  [[nodiscard]] std::uint32_t Revision() const noexcept { return revision_; }

  /// Moves the focus here.
  Refusal Focus();
  /// Presses a button, toggles a check box, picks an option.
  virtual Refusal Press();

 protected:
  Control(ControlKind kind, shown::Dialog& form, const Frame* parent, std::string name, int index);
  ~Control() = default;

  // The logic's side.
  void SetVisible(bool visible);
  void SetEnabled(bool enabled);
  void SetLeft(int left);
  void SetTop(int top);
  void SetWidth(int width);
  void SetCaption(std::string caption);
  void SetBackColor(std::optional<std::int32_t> color);
  void SetTabStop(bool stops);
  [[nodiscard]] const std::string& Tag() const noexcept { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  void SetFocus();

  Event<> GotFocus;
  Event<> LostFocus;

  // What the kinds build on.
  friend class shown::Dialog;
  friend class orlin::Dialog;
  friend class orlin::AnyControl;
  friend class RowList;

  // The state in which the control is made. Unlike the setters, the `Start...` routines load nothing.
  void StartCaption(std::string caption, std::int16_t number);
  void StartCommon(bool visible, bool enabled, int left, int top, int width) noexcept;
  /// The first touch of any control loads the dialog.
  void Touch() const;
  /// Something that a host presents has changed.
  void Changed() noexcept { ++revision_; }
  /// Why the operator cannot use the control, if so.
  [[nodiscard]] Refusal OutOfReach() const;
  /// `Focus` for the actions that begin with it: the control is within reach, has the focus where its kind takes it,
  /// and the dialog is still shown.
  [[nodiscard]] Refusal Approach();
  template <class... Arguments, class... Actual>
  void Raise(By by, const Event<Arguments...>& event, std::string_view name, Actual&&... arguments);

  /// A key arrives while the control has the focus.
  virtual void TakeKey(const Key& key);
  /// Whether Enter and Escape belong to the control instead of the dialog's buttons.
  [[nodiscard]] virtual bool KeepsEnter() const { return false; }
  [[nodiscard]] virtual bool KeepsEscape() const { return false; }
  /// The focus is about to go elsewhere.
  virtual void Leave(By by);

 private:
  ControlKind kind_;
  shown::Dialog* form_;
  const Frame* parent_;
  std::string name_;
  int index_;
  bool visible_ = true;
  bool enabled_ = true;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  std::string caption_;
  std::int16_t captionNumber_ = 0;  // in the catalogue; 0 for a caption that is not loaded
  std::optional<std::int32_t> backColor_;
  bool tabStop_ = true;
  std::string tag_;
  std::uint32_t revision_ = 0;
};

class Label : public Control {
 public:
  /// The control that the label names, whose access key it carries, or null: the next one in order of declaration that
  /// takes the focus, has no caption of its own and stands in the same container. Where several take turns behind one
  /// label, it is the one that is visible. A label of an array names the control with its index in the array that
  /// follows.
  [[nodiscard]] Control* Names() const;

 protected:
  using Control::Control;
};

class Frame : public Control {
 protected:
  using Control::Control;
};

class Button : public Control {
 public:
  Refusal Press() override;

 protected:
  using Control::Control;
  void TakeKey(const Key& key) override;
  friend class shown::Dialog;

  Event<> Click;
};

class CheckBox : public Control {
 public:
  /// 0 or 1.
  [[nodiscard]] std::int16_t Value() const noexcept { return value_; }
  Refusal Press() override;

 protected:
  using Control::Control;
  void TakeKey(const Key& key) override;

  /// `Failure` 380 for anything but 0 and 1.
  void SetValue(int value);

  Event<> Click;

 private:
  std::int16_t value_ = 0;
};

class OptionButton : public Control {
 public:
  [[nodiscard]] bool Value() const noexcept { return value_; }
  Refusal Press() override;

 protected:
  using Control::Control;
  void TakeKey(const Key& key) override;

  void StartValue(bool value) noexcept { value_ = value; }
  void SetValue(bool value);

  Event<> Click;

 private:
  void ClearOthers();
  /// The next (previous) option of the container within reach, round its end.
  [[nodiscard]] OptionButton* Neighbour(int step) const;

  bool value_ = false;
};

/// What text boxes and combo boxes have in common: a text, and the road of a key into it.
class TextControl : public Control {
 public:
  [[nodiscard]] std::string Text() const { return edit_.Text(); }
  /// In characters.
  [[nodiscard]] int TextLength() const noexcept { return edit_.Length(); }
  /// The longest text that the operator can type, in characters; 0 for no limit.
  [[nodiscard]] int MaxLength() const noexcept { return maxLength_; }
  [[nodiscard]] bool Locked() const noexcept { return locked_; }
  [[nodiscard]] int SelStart() const noexcept { return edit_.SelStart(); }
  [[nodiscard]] int SelLength() const noexcept { return edit_.SelLength(); }
  /// Whether the text can be edited at all: not in a drop-down list.
  [[nodiscard]] bool HasEditField() const noexcept { return hasEditField_; }
  [[nodiscard]] bool MultiLine() const noexcept { return multiLine_; }

  /// Puts the caret, or marks a selection, as the mouse does.
  Refusal SetCaret(int start, int length);
  /// Sends a text through the keys, character by character.
  Refusal Paste(std::string_view text);

 protected:
  using Control::Control;
  void TakeKey(const Key& key) override;
  [[nodiscard]] bool KeepsEnter() const override { return multiLine_; }

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

  friend class UpDown;
  void StartText(std::string_view text, int maxLength, bool locked, bool multiLine);
  void StartEditField(bool hasEditField) noexcept { hasEditField_ = hasEditField; }
  /// The text was changed, by typing or by `SetText`, before `Change` fires.
  virtual void TextChanged() {}
  /// Takes the text over without an event; tells whether it is another one.
  bool PutText(std::string_view text);

 private:
  void TypeCharacter(int character);
  void MoveCaret(const Key& key);

  EditText edit_;
  int maxLength_ = 0;
  bool locked_ = false;
  bool hasEditField_ = true;
  bool multiLine_ = false;
};

class TextBox : public TextControl {
 protected:
  using TextControl::TextControl;
  void TextChanged() override;

 private:
  friend class UpDown;
  UpDown* follower_ = nullptr;  // whose value is the number in here
};

/// What list boxes and combo boxes have in common: rows, and one of them selected.
class RowList {
 public:
  RowList(const RowList&) = delete;
  RowList& operator=(const RowList&) = delete;

  [[nodiscard]] std::int16_t ListCount() const noexcept { return static_cast<std::int16_t>(rows_.size()); }
  /// The selected row, counted from 0, or -1.
  [[nodiscard]] std::int16_t ListIndex() const noexcept { return listIndex_; }
  /// The text of a row; empty outside.
  [[nodiscard]] const std::string& List(int row) const noexcept;
  /// The number that the logic keeps with a row; `Failure` 380 outside.
  [[nodiscard]] std::int32_t ItemData(int row) const;

  /// Picks a row. A row that is selected already is picked without an event.
  Refusal PickRow(int row);

 protected:
  explicit RowList(Control& owner) : owner_(owner) {}
  ~RowList() = default;

  struct Row {
    std::string Text;
    std::int32_t ItemData = 0;
    bool Selected = false;
  };

  void AddItem(std::string text);
  void AddItem(std::string text, std::int32_t itemData);
  /// `Failure` 380 outside 0 to `ListCount`.
  void InsertItem(std::string text, int row);
  void SetItemData(int row, std::int32_t itemData);
  /// The row of the last `AddItem`, or -1.
  [[nodiscard]] std::int16_t NewIndex() const noexcept { return newIndex_; }
  void Clear();
  /// Selects a row, or none with -1; `Failure` 380 beyond.
  void SetListIndex(int row);
  /// Selects the row that a raw value names; unlike in `SetListIndex`, -1 names none and fails with 380.
  void SelectRow(int row);

  [[nodiscard]] Row& RowAt(int row);
  [[nodiscard]] bool IsMarked(int row) const noexcept;
  [[nodiscard]] bool HasRow(int row) const noexcept { return row >= 0 && row < ListCount(); }
  /// Picks a row for Up, Down, Home, End, Page Up and Page Down; tells whether the key was one of them.
  bool PickByKey(const Key& key);
  void PutListIndex(int row) noexcept { listIndex_ = static_cast<std::int16_t>(row); }
  [[nodiscard]] virtual Refusal RefusePick() const { return {}; }
  /// Makes a row, which exists, or -1, the selected one, and fires what is due.
  virtual void Select(int row, By by) = 0;
  virtual void RowsCleared() {}

 private:
  Control& owner_;
  std::vector<Row> rows_;
  std::int16_t listIndex_ = -1;
  std::int16_t newIndex_ = -1;
};

/// A drop-down list, or, with an edit field, a combo box.
class ComboBox : public TextControl, public RowList {
 public:
  [[nodiscard]] std::string Text() const;

 protected:
  ComboBox(ControlKind kind, shown::Dialog& form, const Frame* parent, std::string name, int index);
  void TakeKey(const Key& key) override;
  void TextChanged() override;
  void Select(int row, By by) override;
  void RowsCleared() override;

  Event<> Click;
};

/// How many rows of a list can be chosen.
enum class Choice {
  One,     ///< one row
  Many,    ///< any rows
  Checks,  ///< any rows, each with a check mark
};

class ListBox : public Control, public RowList {
 public:
  [[nodiscard]] orlin::shown::Choice Choice() const noexcept { return choice_; }
  /// Whether a row of a list with many choices or check marks is chosen; false outside.
  [[nodiscard]] bool Selected(int row) const noexcept { return IsMarked(row); }

  /// Chooses a row of such a list, or gives it up. The row also becomes the one that `ListIndex` tells.
  Refusal MarkRow(int row, bool on);

 protected:
  ListBox(ControlKind kind, shown::Dialog& form, const Frame* parent, std::string name, int index);
  void TakeKey(const Key& key) override;
  [[nodiscard]] Refusal RefusePick() const override;
  void Select(int row, By by) override;

  void StartChoice(orlin::shown::Choice choice) noexcept { choice_ = choice; }
  /// `Failure` 380 where there is no such row.
  void SetSelected(int row, bool on);

  Event<> Click;
  Event<int> ItemCheck;

 private:
  void Mark(int row, bool on, By by);

  orlin::shown::Choice choice_ = orlin::shown::Choice::One;
};

class UpDown : public Control {
 public:
  enum class Direction { Up, Down };

  [[nodiscard]] std::int16_t Value() const noexcept { return value_; }
  [[nodiscard]] std::int16_t Min() const noexcept { return min_; }
  [[nodiscard]] std::int16_t Max() const noexcept { return max_; }
  /// The box whose number the buttons step, or null.
  [[nodiscard]] const TextControl* Buddy() const noexcept { return buddy_; }

  /// Presses one of the two buttons once. The focus stays where it is. Tied to a box, a press at a limit does nothing.
  Refusal Step(Direction direction);

 protected:
  using Control::Control;

  /// `Failure` 380 outside the limits.
  void SetValue(int value);
  /// The tied box outlives the up-down. A press takes up the number in it first; `followsBuddy` takes it up whenever
  /// the text changes. An empty box holds no number: the value stays. Taking a number up fires nothing.
  void StartLimits(int min, int max, TextBox* buddy, bool followsBuddy);

  Event<> Change;
  Event<> UpClick;
  Event<> DownClick;

 private:
  friend class TextBox;
  void FollowBuddy();
  /// The number that a press starts from, within the limits.
  [[nodiscard]] int Start() const;
  void Put(int value, By by);

  std::int16_t value_ = 0;
  std::int16_t min_ = 0;
  std::int16_t max_ = 100;
  TextControl* buddy_ = nullptr;
};

class StatusBar : public Control {
 public:
  [[nodiscard]] const std::string& Text() const noexcept { return text_; }

 protected:
  using Control::Control;
  void SetText(std::string text);

 private:
  std::string text_;
};

class Timer : public Control {
 public:
  /// Milliseconds from tick to tick; 0 for never.
  [[nodiscard]] int Interval() const noexcept { return interval_; }
  /// Whether the timer is running: enabled, with an interval, in a dialog that is shown.
  [[nodiscard]] bool Running() const noexcept;

  /// The time has come.
  Refusal Tick();

 protected:
  using Control::Control;
  void StartInterval(int milliseconds) noexcept { interval_ = milliseconds; }
  void SetInterval(int milliseconds);

  /// The event "Timer".
  Event<> OnTimer;

 private:
  int interval_ = 0;
};

/// A table of texts. Its first rows and columns may be fixed: titles, which never hold the current cell.
class Grid : public Control {
 public:
  struct Cell {
    std::string Text;
    std::int32_t Color = 0;  ///< of the text, as 0xBBGGRR
    bool Bold = false;
    int Alignment = 0;  ///< 1: left, centred vertically; 0: as the column
  };

  [[nodiscard]] int Rows() const noexcept { return rows_; }
  [[nodiscard]] int Cols() const noexcept { return cols_; }
  [[nodiscard]] int FixedRows() const noexcept { return fixedRows_; }
  [[nodiscard]] int FixedCols() const noexcept { return fixedCols_; }
  /// The current cell; -1 where the grid has none.
  [[nodiscard]] int Row() const noexcept { return row_; }
  [[nodiscard]] int Col() const noexcept { return col_; }
  /// A cell outside the grid reads as empty.
  [[nodiscard]] const Cell& CellAt(int row, int col) const noexcept;
  [[nodiscard]] const std::string& CellText(int row, int col) const noexcept { return CellAt(row, col).Text; }
  /// In twips; 0 where the logic gives none.
  [[nodiscard]] int ColWidth(int col) const noexcept;
  /// 1: left, centred vertically; 0 where the logic gives none.
  [[nodiscard]] int ColAlignment(int col) const noexcept;

  [[nodiscard]] bool Editing() const noexcept { return editing_; }
  /// The text that the editor of the current cell holds; empty while no cell is edited.
  [[nodiscard]] std::string EditorText() const { return editor_.Text(); }
  [[nodiscard]] int EditorSelStart() const noexcept { return editor_.SelStart(); }
  [[nodiscard]] int EditorSelLength() const noexcept { return editor_.SelLength(); }

  /// Makes a cell the current one. An edit of another cell ends first.
  Refusal MakeCurrent(int row, int col);
  /// Double-click on the current cell; F2 on the keyboard.
  Refusal DoubleClick();
  /// Puts the caret of the open editor, or marks text in it.
  Refusal SetEditorCaret(int start, int length);
  /// Sends a text through the keys of the open editor.
  Refusal PasteIntoEditor(std::string_view text);

 protected:
  using Control::Control;
  void TakeKey(const Key& key) override;
  [[nodiscard]] bool KeepsEnter() const override { return editing_; }
  [[nodiscard]] bool KeepsEscape() const override { return editing_; }
  void Leave(By by) override;

  void StartSize(int rows, int cols, int fixedRows, int fixedCols);
  void SetRows(int rows);
  /// Inserts a row of tab-separated cell texts before the row at that index.
  void AddItem(std::string_view tabSeparatedTexts, int row);
  void RemoveItem(int row);
  /// A write outside the grid is ignored.
  void SetCellText(int row, int col, std::string text);
  void SetCellColor(int row, int col, std::int32_t color);
  void SetCellBold(int row, int col, bool bold);
  void SetCellAlignment(int row, int col, int alignment);
  void SetColWidth(int col, int width);
  void SetColAlignment(int col, int alignment);
  /// Makes a cell the current one, if it can be.
  void SelectCell(int row, int col);
  /// The number that the text of a cell begins with.
  [[nodiscard]] double CellNumber(int row, int col) const;
  /// Starts editing the current cell, unless `StartEdit` cancels.
  void EditCell();

  Event<> DblClick;
  Event<int, int, bool&> StartEdit;    ///< row, column, cancel
  Event<int, int, int&> KeyPressEdit;  ///< row, column, key
  Event<int, int> AfterEdit;           ///< row, column

 private:
  [[nodiscard]] bool CanBeCurrent(int row, int col) const noexcept;
  [[nodiscard]] Cell* FindCell(int row, int col) noexcept;
  void KeepCurrentInside() noexcept;
  void StartEditing(By by);
  void EndEditing(bool keepText, By by);
  void TakeEditorKey(const Key& key);
  void TakeNavigationKey(const Key& key);

  int rows_ = 0;
  int cols_ = 0;
  int fixedRows_ = 0;
  int fixedCols_ = 0;
  int row_ = -1;
  int col_ = -1;
  std::vector<std::vector<Cell>> cells_;
  std::vector<int> colWidths_;
  std::vector<int> colAlignments_;
  bool editing_ = false;
  EditText editor_;
};

/// A dialog, as a host shows it.
class Dialog {
 public:
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  [[nodiscard]] const std::string& Name() const noexcept { return name_; }
  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  /// Place on the screen and size, in twips.
  [[nodiscard]] int Left() const noexcept { return left_; }
  [[nodiscard]] int Top() const noexcept { return top_; }
  [[nodiscard]] int Width() const noexcept { return width_; }
  [[nodiscard]] int Height() const noexcept { return height_; }

  /// From the begin of the modal show until OK, Cancel or the close box.
  [[nodiscard]] bool IsShown() const noexcept { return shown_; }
  /// All controls in order of declaration, which is the tab order.
  [[nodiscard]] const std::vector<Control*>& Controls() const noexcept { return controls_; }
  /// The control of that name, "cmbDigit(0)", or null.
  [[nodiscard]] Control* Find(std::string_view name) const noexcept;
  /// Null where no control has the focus. It may be out of the operator's reach.
  [[nodiscard]] Control* FocusedControl() const noexcept { return focus_; }
  [[nodiscard]] Button* DefaultButton() const noexcept { return defaultButton_; }
  [[nodiscard]] Button* CancelButton() const noexcept { return cancelButton_; }
  /// Grows with every change of caption, place and size.
  [[nodiscard]] std::uint32_t Revision() const noexcept { return revision_; }

  /// The dialog becomes active for the first time: its `Activate` runs, then the first control in tab order that is
  /// within reach gets the focus, unless one has it.
  void Activate();

  /// A key is pressed. In this order: Alt and a letter go to the control with that access key; Enter and Escape press
  /// the default and the cancel button, unless the control with the focus keeps them; Tab moves the focus; every other
  /// key is seen by the dialog, where it wants to, and then by the control that has the focus.
  Refusal PressKey(const Key& key);

  /// The close box.
  void Close();

 protected:
  Dialog(std::string name, DialogHost& host) : name_(std::move(name)), host_(&host) {}
  ~Dialog() = default;

  Event<> OnActivate;
  Event<int&> KeyDown;

  /// The first touch of a control, while it makes a difference.
  virtual void Touched() = 0;

  [[nodiscard]] DialogHost& Host() const noexcept { return *host_; }
  void StartCaption(std::string caption) { caption_ = std::move(caption); }
  void SetCaption(std::string caption);
  void SetWidth(int width);
  void SetHeight(int height);
  void MoveTo(int left, int top);
  void SetSize(int width, int height);
  void SetDefaultButton(Button* button) noexcept { defaultButton_ = button; }
  void SetCancelButton(Button* button) noexcept { cancelButton_ = button; }
  void BeginShow() noexcept { shown_ = true; }
  void EndShow() noexcept { shown_ = false; }

 private:
  friend class Control;
  friend class Label;
  friend class orlin::Dialog;
  friend class orlin::AnyControl;

  void MoveFocus(Control* to, By by);
  Refusal PressAccessKey(char32_t letter);
  void MoveFocusByTab(bool backwards);
  void PressButton(Button* button);
  /// Runs a handler that the operator caused: a failure ends it and is told to the host.
  void Guarded(std::string_view owner, std::string_view event, const std::function<void()>& handler);

  std::string name_;
  DialogHost* host_;
  std::string caption_;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
  std::uint32_t revision_ = 0;
  bool shown_ = false;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  Control* entered_ = nullptr;  // has had its GotFocus, and is due its LostFocus
  Button* defaultButton_ = nullptr;
  Button* cancelButton_ = nullptr;
};

template <class... Arguments, class... Actual>
void Control::Raise(By by, const Event<Arguments...>& event, std::string_view name, Actual&&... arguments) {
  if (!event) return;
  if (by == By::Code) return event(std::forward<Actual>(arguments)...);
  form_->Guarded(name_, name, [&] { event(std::forward<Actual>(arguments)...); });
}

}  // namespace shown
}  // namespace orlin
