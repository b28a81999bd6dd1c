#include <csignal>
#include <iostream>
#include <memory>

#include "app/command.h"
#include "qt/open_windows.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::signal(SIGPIPE, SIG_IGN);
  std::unique_ptr<orlin::WindowSystem> windows;
  const auto open = [&windows]() -> orlin::WindowSystem& {
    if (windows == nullptr) windows = orlin::OpenWindows();
    return *windows;
  };
  return orlin::RunCommand(argc, argv, std::cin, std::cout, std::cerr, open);
}
