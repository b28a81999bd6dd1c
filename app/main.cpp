#include <csignal>
#include <iostream>

#include "app/command_line/command.h"
#include "app/command_line/windows.h"

// Most runs are scripted, and short: the windows are a program of their own, so that these runs load nothing of them.
int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // A reader of the output that goes away is no reason to die: what is written then fails.
  std::signal(SIGPIPE, SIG_IGN);
  return orlin::RunCommand(argc, argv, std::cin, std::cout, std::cerr,
                           [argv](orlin::Screen) -> orlin::WindowSystem& { orlin::BecomeProgramWithWindows(argv); });
}
