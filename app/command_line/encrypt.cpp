#include "app/command_line/encrypt.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <iostream>
#include <optional>
#include <string>

#include <poll.h>
#include <sys/signalfd.h>
#include <termios.h>
#include <unistd.h>

#include "app/usage/status.h"
#include "app/usage/usage_error.h"
#include "cipher/ccrypt.h"

namespace orlin {
namespace {

/// A terminal that shows nothing of what is typed, as long as this lives. Signals that would end or stop the program
/// arrive afterwards: no shell is left with a terminal that shows nothing.
class SilentTerminal {
 public:
  SilentTerminal() {
    sigemptyset(&held_);
    for (const int number : {SIGINT, SIGQUIT, SIGTERM, SIGHUP, SIGTSTP}) sigaddset(&held_, number);
    sigprocmask(SIG_BLOCK, &held_, &maskBefore_);
    signals_ = signalfd(-1, &held_, SFD_CLOEXEC);
    tcgetattr(STDIN_FILENO, &before_);
    auto silent = before_;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
  }
  SilentTerminal(const SilentTerminal&) = delete;
  SilentTerminal& operator=(const SilentTerminal&) = delete;
  ~SilentTerminal() {
    tcsetattr(STDIN_FILENO, TCSANOW, &before_);
    close(signals_);
    sigprocmask(SIG_SETMASK, &maskBefore_, nullptr);
  }

  /// Waits for a line, or its end; false where a signal waits.
  [[nodiscard]] bool WaitForLine() const {
    std::array<pollfd, 2> wanted = {{{STDIN_FILENO, POLLIN, 0}, {signals_, POLLIN, 0}}};
    while (poll(wanted.data(), wanted.size(), -1) < 0 && errno == EINTR) {
    }
    return wanted[1].revents == 0;
  }

 private:
  sigset_t held_{};
  sigset_t maskBefore_{};
  int signals_ = -1;
  termios before_{};
};

/// Nothing where the program was stopped meanwhile, and the terminal may be another state.
std::optional<std::string> AskOnce(std::istream& in, std::ostream& err) {
  err << "Password: " << std::flush;
  const SilentTerminal silent;
  const bool ready = silent.WaitForLine();
  std::string line;
  if (ready) std::getline(in, line);
  err << '\n';
  return ready ? std::optional(line) : std::nullopt;
}

std::string ReadPassword(std::istream& in, std::ostream& err) {
  std::optional<std::string> line;
  if (&in == &std::cin && isatty(STDIN_FILENO) != 0) {
    while (!line) line = AskOnce(in, err);
  } else {
    std::getline(in, line.emplace());
  }
  if (line->ends_with('\r')) line->pop_back();
  return *std::move(line);
}

}  // namespace

int Encrypt(std::istream& in, std::ostream& out, std::ostream& err) {
  const auto password = ReadPassword(in, err);
  if (password.empty()) throw UsageError("encrypt wants the password as one line on standard input");
  out << CCrypt::EncryptString(password) << '\n';
  return status::Done;
}

}  // namespace orlin
