#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "OrlinCustomDialogs/host/controls.h"

namespace orlin {

/// What a control shows, by its kind.
namespace told {

/// A text box, or a label that names no other control.
struct Text {
  std::string Shown;
};

/// A list or a drop-down list.
struct Choice {
  std::vector<std::string> Chosen;  ///< empty: nothing is selected
  bool Many = false;                ///< more rows than one can be chosen
  /// All rows of a list that nothing labels and in which nothing is selected: it is there to be read.
  std::vector<std::string> Rows;
};

/// A check box or an option.
struct Mark {
  bool On = false;
};

struct Table {
  /// What the colour of a cell stands for, where a label beside the table explains it.
  struct Remark {
    int Row = 0;
    int Col = 0;
    std::string Text;
  };
  std::vector<std::vector<std::string>> Cells;
  int FixedRows = 0;
  int FixedCols = 0;
  std::vector<Remark> Remarks;
};

}  // namespace told

/// Whether a control stands on the line of the one before it.
enum class Joins {
  No,
  WithBlank,     ///< a unit or what a box means: "5 Min"
  WithoutBlank,  ///< a separator, and the box behind it: "12:30"
};

/// One control that the operator sees, as it is told.
struct ToldControl {
  std::string Name;
  ControlKind Kind = ControlKind::Label;
  std::string Caption;  ///< its own, or that of the label that names it, without access key and colon
  std::string Frame;    ///< the caption of the innermost frame that has one
  bool Enabled = true;  ///< within reach of the operator
  orlin::Joins Joins = Joins::No;
  std::variant<told::Text, told::Choice, told::Mark, told::Table> Shows;
};

/// What keeps a value from being shown, or was told to the operator before it was.
struct Note {
  std::optional<std::int32_t> Failure;  ///< nothing: a message
  std::string Text;                     ///< the message, or the description of the failure
  std::string Where;                    ///< the routine that failed, or the title of the message; may be empty
};

/// What a raw value means: the dialog as it stands when it is shown, in words.
struct Description {
  std::string Class;
  std::optional<std::string> Dialog;  ///< nothing where none was shown
  std::string Title;
  std::vector<ToldControl> Controls;  ///< in the order of the dialog
  std::vector<Note> Notes;
  bool Failed = false;  ///< the call ended with a failure
};

/// The words for what a dialog keeps in English, whatever the language.
enum class Wording {
  Translated,  ///< for people
  Fixed,       ///< as the dialog has them, for programs
};

/// The controls of a dialog that can be seen. Buttons, timers and what only helps the operator on are left out.
[[nodiscard]] std::vector<ToldControl> Tell(const shown::Dialog& dialog, Wording wording);

}  // namespace orlin
