#include <QString>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "app/command_line/command.h"
#include "app/usage/status.h"
#include "window_system/open_windows.h"

namespace {

// Qt ends the process when a display that is named cannot be reached; that is told in one line as well.
void TellFatal(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    if (type == QtCriticalMsg) std::fprintf(stderr, "orlin-host: %s\n", qPrintable(text));
    return;
  }
  std::fprintf(stderr, "orlin-host: %s\n", orlin::kNoDisplay);
  std::_Exit(orlin::status::NoSense);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::signal(SIGPIPE, SIG_IGN);
  qInstallMessageHandler(TellFatal);
  std::unique_ptr<orlin::WindowSystem> windows;
  const auto open = [&windows](orlin::Screen screen) -> orlin::WindowSystem& {
    if (windows == nullptr) windows = orlin::OpenWindows(screen);
    return *windows;
  };
  return orlin::RunCommand(argc, argv, std::cin, std::cout, std::cerr, open);
}
