#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/host/keys.h"

namespace [[using gnu: visibility("default")]] orlin {

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

/// Why the operator cannot do something, in words such as "cmdOK is disabled"; nothing where it was done.
using Refusal = std::optional<std::string>;

/// The controls of a dialog as a host meets them: what they show, and what an operator can do with mouse and keyboard.
/// A host calls these interfaces; who implements them is the library, or a host that stands before another one.
///
/// Every operation that returns a `Refusal` first checks that the control is within reach, moves the focus where a
/// mouse would move it, fires the events in their order, and is done when it returns.
///
/// What is added to a class comes behind its last member, and no class here is built on another: a host that was built
/// against an older header goes on working.
namespace shown {

class Control;
class Dialog;

/// What the text of a label is for.
enum class LabelRole {
  Name,       ///< names a control
  Text,       ///< stands for itself
  Unit,       ///< stands behind a field and belongs to it: "Min"
  Separator,  ///< stands between two fields of one value: ":"
  Value,      ///< is the value that another label names: "4000"
  ColourKey,  ///< has no text, but a colour that another label explains
};

/// How far Page Up and Page Down go in lists and grids.
inline constexpr int kRowsOfAPage = 10;

/// A check box or an option.
class Mark {
 public:
  [[nodiscard]] virtual bool IsOn() const noexcept = 0;

 protected:
  ~Mark() = default;
};

/// The text of a text box, and of a combo box. Positions and lengths count characters, not bytes.
class TextField {
 public:
  /// UTF-8. Of a drop-down list without an edit field, the row that is selected.
  [[nodiscard]] virtual std::string Text() const = 0;
  [[nodiscard]] virtual int TextLength() const noexcept = 0;
  /// The longest text that the operator can type; 0 for no limit.
  [[nodiscard]] virtual int MaxLength() const noexcept = 0;
  [[nodiscard]] virtual bool Locked() const noexcept = 0;
  /// Of the edit field; its text may be marked although the row that is selected is another one.
  [[nodiscard]] virtual int SelStart() const noexcept = 0;
  [[nodiscard]] virtual int SelLength() const noexcept = 0;
  /// Whether the text can be edited at all: not in a drop-down list.
  [[nodiscard]] virtual bool HasEditField() const noexcept = 0;
  [[nodiscard]] virtual bool MultiLine() const noexcept = 0;

  /// Puts the caret, or marks a selection, as the mouse does.
  virtual Refusal SetCaret(int start, int length) = 0;
  /// Sends a text through the keys, character by character.
  virtual Refusal Paste(std::string_view text) = 0;

 protected:
  ~TextField() = default;
};

/// How many rows of a list can be chosen.
enum class Choice {
  One,     ///< one row
  Many,    ///< any rows
  Checks,  ///< any rows, each with a check mark
};

/// The rows of a list box or a combo box, counted from 0.
class RowList {
 public:
  [[nodiscard]] virtual std::int16_t ListCount() const noexcept = 0;
  /// The selected row, or -1.
  [[nodiscard]] virtual std::int16_t ListIndex() const noexcept = 0;
  /// The text of a row; empty outside.
  [[nodiscard]] virtual const std::string& List(int row) const noexcept = 0;
  /// The number that the logic keeps with a row; `Failure` 380 outside.
  [[nodiscard]] virtual std::int32_t ItemData(int row) const = 0;
  [[nodiscard]] virtual shown::Choice Choice() const noexcept = 0;
  /// Whether a row of a list with many choices or check marks is chosen; false outside.
  [[nodiscard]] virtual bool Selected(int row) const noexcept = 0;

  /// Picks a row of a list of one choice. A row that is selected already is picked without an event.
  virtual Refusal PickRow(int row) = 0;
  /// Chooses a row of a list of many choices, or gives it up. The row also becomes the one that `ListIndex` tells.
  virtual Refusal MarkRow(int row, bool on) = 0;

 protected:
  ~RowList() = default;
};

enum class Direction { Up, Down };

/// An up-down.
class Stepper {
 public:
  [[nodiscard]] virtual std::int16_t Value() const noexcept = 0;
  [[nodiscard]] virtual std::int16_t Min() const noexcept = 0;
  [[nodiscard]] virtual std::int16_t Max() const noexcept = 0;
  /// The box whose number the buttons step, or null.
  [[nodiscard]] virtual const Control* Buddy() const noexcept = 0;

  /// Presses one of the two buttons once. The focus stays where it is.
  virtual Refusal Step(shown::Direction direction) = 0;

 protected:
  ~Stepper() = default;
};

class Ticker {
 public:
  /// Milliseconds from tick to tick; 0 for never.
  [[nodiscard]] virtual int Interval() const noexcept = 0;
  /// Whether the timer is running: enabled, with an interval, in a dialog that is shown.
  [[nodiscard]] virtual bool Running() const noexcept = 0;

  /// The time has come.
  virtual Refusal Tick() = 0;

 protected:
  ~Ticker() = default;
};

struct Cell {
  std::string Text;
  std::int32_t Color = 0;  ///< of the text, as 0xBBGGRR
  bool Bold = false;
  int Alignment = 0;  ///< 1: left, centred vertically; 0: as the column
};

/// The cells of a grid: texts in rows and columns, counted from 0. The first ones may be fixed: titles, which never
/// hold the current cell.
class Table {
 public:
  [[nodiscard]] virtual int Rows() const noexcept = 0;
  [[nodiscard]] virtual int Cols() const noexcept = 0;
  [[nodiscard]] virtual int FixedRows() const noexcept = 0;
  [[nodiscard]] virtual int FixedCols() const noexcept = 0;
  /// The current cell; -1 where the grid has none.
  [[nodiscard]] virtual int Row() const noexcept = 0;
  [[nodiscard]] virtual int Col() const noexcept = 0;
  /// A cell outside the grid reads as empty.
  [[nodiscard]] virtual const Cell& CellAt(int row, int col) const noexcept = 0;
  /// In twips; 0 where the logic gives none.
  [[nodiscard]] virtual int ColWidth(int col) const noexcept = 0;
  /// 1: left, centred vertically; 0 where the logic gives none.
  [[nodiscard]] virtual int ColAlignment(int col) const noexcept = 0;

  [[nodiscard]] virtual bool Editing() const noexcept = 0;
  /// The text that the editor of the current cell holds, and its mark; empty while no cell is edited.
  [[nodiscard]] virtual std::string EditorText() const = 0;
  [[nodiscard]] virtual int EditorSelStart() const noexcept = 0;
  [[nodiscard]] virtual int EditorSelLength() const noexcept = 0;

  /// Makes a cell the current one. An edit of another cell ends first.
  virtual Refusal MakeCurrent(int row, int col) = 0;
  /// Double-click on the current cell. On the keyboard F2, and every character, which then goes into the editor.
  virtual Refusal DoubleClick() = 0;
  /// Puts the caret of the open editor, or marks text in it.
  virtual Refusal SetEditorCaret(int start, int length) = 0;
  /// Sends a text through the keys of the open editor.
  virtual Refusal PasteIntoEditor(std::string_view text) = 0;

 protected:
  ~Table() = default;
};

/// What every control shows, and what its kind adds to it.
class Control {
 public:
  [[nodiscard]] virtual ControlKind Kind() const noexcept = 0;
  /// The name, members of an array with their index: "cmbDigit(0)".
  [[nodiscard]] virtual const std::string& Name() const noexcept = 0;
  /// The index in an array of controls, or -1.
  [[nodiscard]] virtual int Index() const noexcept = 0;
  [[nodiscard]] virtual Dialog& Form() const noexcept = 0;
  /// The frame that the control stands in, or null where it stands in the dialog itself.
  [[nodiscard]] virtual const Control* Parent() const noexcept = 0;

  /// The control's own flags; it is within reach when these and those of all its frames are set.
  [[nodiscard]] virtual bool Visible() const noexcept = 0;
  [[nodiscard]] virtual bool Enabled() const noexcept = 0;
  [[nodiscard]] virtual bool IsShown() const noexcept = 0;
  [[nodiscard]] virtual bool WithinReach() const noexcept = 0;

  /// Position in the container and size, in twips. A host may place controls by rules of its own.
  [[nodiscard]] virtual int Left() const noexcept = 0;
  [[nodiscard]] virtual int Top() const noexcept = 0;
  [[nodiscard]] virtual int Width() const noexcept = 0;

  /// The caption of a label, frame, button, check box or option, with the marks of access keys (see `AccessKey`); the
  /// text of a status line as it stands.
  [[nodiscard]] virtual const std::string& Caption() const noexcept = 0;
  /// Background as 0xBBGGRR, or nothing for the usual one of the kind.
  [[nodiscard]] virtual std::optional<std::int32_t> BackColor() const noexcept = 0;

  /// Whether a control of this kind can have the focus.
  [[nodiscard]] virtual bool TakesFocus() const noexcept = 0;
  [[nodiscard]] virtual bool HasFocus() const noexcept = 0;

  /// Grows with every change that a host may have to present.
  [[nodiscard]] virtual std::uint32_t Revision() const noexcept = 0;

  /// Of a label; other kinds have none, and tell `Name`.
  [[nodiscard]] virtual LabelRole Role() const noexcept = 0;
  /// Of a label that names a control: this control, whose access key it carries. Of every other control null.
  [[nodiscard]] virtual Control* Names() const = 0;
  /// Of a value or a colour key, the label that tells what it is; else null.
  [[nodiscard]] virtual Control* ToldBy() const noexcept = 0;
  /// What the dialog calls a control for people who do not see it, where that is more than caption and label tell. Of a
  /// unit, what it means, which a host with room for it shows in its place.
  [[nodiscard]] virtual std::string SpokenName() const = 0;

  /// Moves the focus here.
  virtual Refusal Focus() = 0;
  /// Presses a button, toggles a check box, picks an option.
  virtual Refusal Press() = 0;

  // What controls of this kind show beside that; null where they do not.
  [[nodiscard]] virtual Mark* AsMark() noexcept { return nullptr; }
  [[nodiscard]] virtual TextField* AsTextField() noexcept { return nullptr; }
  [[nodiscard]] virtual RowList* AsRowList() noexcept { return nullptr; }
  [[nodiscard]] virtual Stepper* AsStepper() noexcept { return nullptr; }
  [[nodiscard]] virtual Ticker* AsTicker() noexcept { return nullptr; }
  [[nodiscard]] virtual Table* AsTable() noexcept { return nullptr; }
  [[nodiscard]] const Mark* AsMark() const noexcept { return const_cast<Control*>(this)->AsMark(); }
  [[nodiscard]] const TextField* AsTextField() const noexcept { return const_cast<Control*>(this)->AsTextField(); }
  [[nodiscard]] const RowList* AsRowList() const noexcept { return const_cast<Control*>(this)->AsRowList(); }
  [[nodiscard]] const Stepper* AsStepper() const noexcept { return const_cast<Control*>(this)->AsStepper(); }
  [[nodiscard]] const Ticker* AsTicker() const noexcept { return const_cast<Control*>(this)->AsTicker(); }
  [[nodiscard]] const Table* AsTable() const noexcept { return const_cast<Control*>(this)->AsTable(); }

  /// Of a label that shows a code: the lists that the code is made of, in the order of its characters. A row stands for
  /// the character that its text begins with; a list that is not visible has none. Else empty.
  [[nodiscard]] virtual std::vector<Control*> CodeLists() const { return {}; }
  /// What the dialog would refuse of what stands here now, in words for the operator; else empty. A host can tell it
  /// beside the control before the operator is through.
  [[nodiscard]] virtual std::string Objection() const { return {}; }
  /// Whether the control is disabled because the operator's rights do not reach it; false also where nothing tells.
  [[nodiscard]] virtual bool DeniedByRights() const noexcept { return false; }

  /// A text of this control, its caption, a row, a cell or what a box holds, as people read it: what the dialog keeps
  /// in English, whatever the language, is translated, and all else is given back as it is. For eyes and ears alone:
  /// scripts and stored values have the text itself.
  [[nodiscard]] virtual std::string Translated(const std::string& text) const = 0;
  [[nodiscard]] std::string TranslatedCaption() const { return Translated(Caption()); }

 protected:
  ~Control() = default;
};

/// A dialog, as a host shows it.
class Dialog {
 public:
  [[nodiscard]] virtual const std::string& Name() const noexcept = 0;
  [[nodiscard]] virtual const std::string& Caption() const noexcept = 0;
  /// Place on the screen and size, in twips.
  [[nodiscard]] virtual int Left() const noexcept = 0;
  [[nodiscard]] virtual int Top() const noexcept = 0;
  [[nodiscard]] virtual int Width() const noexcept = 0;
  [[nodiscard]] virtual int Height() const noexcept = 0;

  /// From the begin of the modal show until OK, Cancel or the close box.
  [[nodiscard]] virtual bool IsShown() const noexcept = 0;
  /// All controls in order of declaration, which is the tab order.
  [[nodiscard]] virtual const std::vector<Control*>& Controls() const noexcept = 0;
  /// The control of that name, "cmbDigit(0)", or null.
  [[nodiscard]] virtual Control* Find(std::string_view name) const noexcept = 0;
  /// Null where no control has the focus. It may be out of the operator's reach.
  [[nodiscard]] virtual Control* FocusedControl() const noexcept = 0;
  [[nodiscard]] virtual Control* DefaultButton() const noexcept = 0;
  [[nodiscard]] virtual Control* CancelButton() const noexcept = 0;
  /// Grows with every change of caption, place and size, and with every move of the focus.
  [[nodiscard]] virtual std::uint32_t Revision() const noexcept = 0;

  /// The dialog becomes active for the first time: its `Activate` runs, then the first control in tab order that is
  /// within reach gets the focus, unless one has it.
  virtual void Activate() = 0;

  /// A key is pressed. In this order: Alt and a letter go to the control with that access key; Enter presses the button
  /// that has the focus, else the default button, and Escape the cancel button, unless the control with the focus keeps
  /// them; Tab moves the focus; every other key is seen by the dialog, where it wants to, and then by the control that
  /// has the focus.
  virtual Refusal PressKey(const Key& key) = 0;
  /// The operator has typed nothing for a second: what he types now in a list does not go on with what he typed before.
  /// A host without a clock tells it when a new action begins.
  virtual void PauseTyping() noexcept = 0;

  /// The close box.
  virtual void Close() = 0;

  /// The caption as people read it (see `Control::Translated`).
  [[nodiscard]] virtual std::string TranslatedCaption() const = 0;

 protected:
  ~Dialog() = default;
};

}  // namespace shown
}  // namespace orlin
