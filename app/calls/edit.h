#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/public_classes.h"

#include "app/calls/call.h"
#include "window_system/window_system.h"

namespace orlin {

enum class HostKind { Script, Windows };

/// `orlin-host edit`, as the command line tells it.
struct EditOptions {
  std::string Class;
  std::vector<std::string> Arguments;  ///< NAME=VALUE
  ValueForm Form = ValueForm::Arguments;
  std::vector<std::string> Levels;    ///< NAME=VIEW,EDIT
  std::optional<std::string> Script;  ///< a file, or "-" for standard input
  std::optional<HostKind> Host;
  StandardPlatformOptions Platform;
  bool ExitStatus = false;
  bool Strict = false;
};

/// Opens a public class, tells what happens on `out`, and returns the exit status. What makes no sense is thrown as
/// `UsageError` or `PlatformError` before the class is called.
int Edit(const EditOptions& options, std::istream& in, std::ostream& out, const WindowOpener& windows);

/// One call of `Display` with somebody to operate it.
struct EditorCall {
  const PublicClass& Class;
  std::vector<Value> Arguments;
  std::optional<std::vector<Action>> Script;  ///< nothing: the operator sits in front of the windows
  bool Strict = false;
  StandardPlatformOptions Platform;
  WindowSystem* Windows = nullptr;  ///< null: there is no screen, which wants a script
  ValueForm Form = ValueForm::Arguments;
};

/// Makes the call, with a trace on `out`: of all that happens where there is a script, else of what comes back alone.
/// Throws `StrictRefusal` (see `ScriptPlayer`), and `PlatformError`.
Outcome Run(EditorCall call, std::ostream& out);

}  // namespace orlin
