#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/hosts/script/trace.h"

namespace orlin {

/// A table of parameters, each of which opens in its editor.
class ParameterTable {
 public:
  ParameterTable() = default;
  ParameterTable(const ParameterTable&) = delete;
  ParameterTable& operator=(const ParameterTable&) = delete;
  virtual ~ParameterTable() = default;

  [[nodiscard]] virtual std::string Title() const = 0;
  [[nodiscard]] virtual std::vector<std::string> Columns() const = 0;
  [[nodiscard]] virtual std::size_t Rows() const = 0;
  /// One text for each column.
  [[nodiscard]] virtual std::vector<std::string> Row(std::size_t row) const = 0;
  /// Opens the editor of a row, and returns what came of it in one line, also where it cannot be opened or stored. Any
  /// row may be another one afterwards.
  virtual std::string Open(std::size_t row) = 0;
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
