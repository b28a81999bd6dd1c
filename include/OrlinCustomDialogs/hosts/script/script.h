#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "OrlinCustomDialogs/host/controls.h"
#include "OrlinCustomDialogs/host/keys.h"

namespace orlin {

/// What an operator can do, one struct for each action of a script. Controls are named as in their dialog.
namespace actions {

/// Picks a row of a list, or, with `On`, chooses it or gives it up in a list of many choices.
struct Select {
  std::string Control;
  int Row = 0;
  std::optional<bool> On;
};

/// Presses a button, toggles a check box, picks an option.
struct Click {
  std::string Control;
};

/// Presses the keys of a text; in a grid, in its open editor.
struct Type {
  std::string Control;
  std::u32string Text;
};

/// Presses one key, with the focus on the control, or wherever it is.
struct KeyStroke {
  std::optional<std::string> Control;
  Key Pressed;
};

struct Caret {
  std::string Control;
  int Start = 0;
  int Length = 0;
};

struct FocusOn {
  std::string Control;
};

struct Step {
  std::string Control;
  shown::Direction Direction = shown::Direction::Up;
  int Times = 1;
};

struct MakeCell {
  std::string Grid;
  int Row = 0;
  int Col = 0;
};

struct DoubleClick {
  std::string Grid;
};

/// Makes a cell the current one and replaces its text.
struct EditCell {
  MakeCell Cell;
  std::u32string Text;
};

struct Tick {
  std::string Timer;
};

/// The close box.
struct Close {};

/// Prints the state of all controls.
struct Dump {};

/// Queues the answer to a message to come.
struct Answer {
  int Button = 0;
};

}  // namespace actions

using Operation = std::variant<actions::Select, actions::Click, actions::Type, actions::KeyStroke, actions::Caret,
                               actions::FocusOn, actions::Step, actions::MakeCell, actions::DoubleClick,
                               actions::EditCell, actions::Tick, actions::Close, actions::Dump, actions::Answer>;

/// One line of a script.
struct Action {
  int Line = 0;        ///< counted from 1
  std::string Source;  ///< as it is written, without blanks around it and without comment
  Operation Do;
};

/// A line that makes no sense: "line 3: select wants a control and a row: select C ROW [on|off]".
class ScriptError : public std::runtime_error {
 public:
  ScriptError(int line, const std::string& what) : std::runtime_error("line " + std::to_string(line) + ": " + what) {}
};

/// Reads a whole script; `ScriptError` for the first line that makes no sense.
[[nodiscard]] std::vector<Action> ParseScript(std::string_view text);

}  // namespace orlin
