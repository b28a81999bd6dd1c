#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/hosts/script/trace.h"

namespace orlin {

/// What a parameter holds, for the eye.
struct ShownValues {
  std::string Words;  ///< what the values mean, on one line
  std::string Raw;

  bool operator==(const ShownValues& other) const = default;
};

struct ParameterRow {
  std::string Name;
  std::string Hint;  ///< the class that edits it
  ShownValues Now;
  std::optional<ShownValues> Before;  ///< what it held when the table was opened, where that was something else
};

/// A table of parameters, each of which opens in its editor. What it says is in the language of the operator.
class ParameterTable {
 public:
  ParameterTable() = default;
  ParameterTable(const ParameterTable&) = delete;
  ParameterTable& operator=(const ParameterTable&) = delete;
  virtual ~ParameterTable() = default;

  [[nodiscard]] virtual std::string Title() const = 0;
  /// A text of the catalogue.
  [[nodiscard]] virtual std::string Text(std::int16_t number) const = 0;
  [[nodiscard]] virtual const std::vector<ParameterRow>& Rows() const = 0;

  // Each of these returns in one line what came of it, also where nothing did. Any row may be another one afterwards.

  /// Opens the editor of a row.
  virtual std::string Open(std::size_t row) = 0;
  /// Puts back what the last change replaced, or takes that back.
  virtual std::string Undo() = 0;
  virtual std::string Redo() = 0;
  /// Reads the file again, which another program may have changed. Empty where nothing is new.
  virtual std::string Refresh() = 0;

  /// The file that the parameters stand in.
  [[nodiscard]] virtual std::string File() const = 0;
  [[nodiscard]] virtual bool HasSecrets() const = 0;
  /// Shows passcodes as they are, or as dots.
  virtual void ShowSecrets(bool shown) = 0;
};

/// A host that a script works.
struct ScriptedHost {
  std::shared_ptr<DialogHost> Host;
  /// To be called after the call of `Display`.
  std::function<void()> Finish;
};

/// How pictures of dialogs are made.
struct PictureOptions {
  std::string Folder;
  double FontScale = 1;
  bool Dark = false;
};

/// All that needs a screen, behind an interface that needs none, so that the command does not depend on Qt.
class WindowSystem {
 public:
  WindowSystem() = default;
  WindowSystem(const WindowSystem&) = delete;
  WindowSystem& operator=(const WindowSystem&) = delete;
  virtual ~WindowSystem() = default;

  /// Windows for an operator in front of the screen.
  [[nodiscard]] virtual std::shared_ptr<DialogHost> Windows() = 0;
  /// Windows that a script works. The trace outlives the host. See `ScriptPlayer` for `strict`.
  [[nodiscard]] virtual ScriptedHost ScriptedWindows(std::vector<Action> script, Trace& trace, bool strict) = 0;
  /// A host that saves a picture of each dialog as `Folder`/<name of the picture>.png and closes it. The name is asked
  /// for each dialog.
  [[nodiscard]] virtual std::shared_ptr<DialogHost> Pictures(PictureOptions options,
                                                             std::function<std::string()> name) = 0;
  /// Shows the table until its window is closed.
  virtual void ShowTable(ParameterTable& table) = 0;
};

/// Where windows are: in front of an operator, or on a screen that nobody sees, which needs no display.
enum class Screen { Visible, Unseen };

/// Opens the screen, when a window is first wanted. Throws a `std::runtime_error` that tells in one line why there is
/// none.
using WindowOpener = std::function<WindowSystem&(Screen screen)>;

}  // namespace orlin
