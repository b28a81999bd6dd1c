#pragma once

#include <chrono>
#include <csignal>
#include <string>
#include <thread>

#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temporary_folder.h"

namespace orlin::testing {

/// A PostgreSQL server of this process alone: its data lies in a temporary folder, it listens on a socket in there, and
/// it goes with this process in any case.
class PostgresServer {
 public:
  /// Its one user, and a password that a connection text has to carry whole.
  static constexpr const char* kUser = "orlin";
  static constexpr const char* kPassword = "p} ;UID={x'\"";

  PostgresServer() {
    const auto password = folder_.Write("password", kPassword);
    for (const auto& path : {folder_.Path(), password}) {
      const auto* const user = IsRoot() ? getpwnam("postgres") : nullptr;
      if (IsRoot() && (user == nullptr || chown(path.c_str(), user->pw_uid, user->pw_gid) != 0)) {
        throw std::runtime_error("the folder cannot be given to the user postgres");
      }
    }
    const auto made = StatusOf(Spawn("initdb --pgdata data --username " + std::string(kUser) +
                                     " --auth scram-sha-256 --pwfile password --encoding UTF8 --locale C --no-sync"));
    if (made != 0) throw std::runtime_error("initdb failed");
    Start();
  }
  PostgresServer(const PostgresServer&) = delete;
  PostgresServer& operator=(const PostgresServer&) = delete;
  ~PostgresServer() { Stop(); }

  void Start() {
    server_ = Spawn("postgres -D data -k \"$PWD\" -c listen_addresses= -F");
    for (int i = 0; i < 600; ++i) {
      if (StatusOf(Spawn("pg_isready -q -h \"$PWD\"")) == 0) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    throw std::runtime_error("the server does not start");
  }
  /// Ends it at once; clients that are connected lose it.
  void Stop() {
    if (server_ == 0) return;
    kill(server_, SIGQUIT);
    StatusOf(std::exchange(server_, 0));
  }

  /// Without user name and password.
  [[nodiscard]] std::string Connect() const {
    return "Driver={PostgreSQL Unicode};Servername=" + folder_.Path().string() + ";Database=postgres";
  }

 private:
  static bool IsRoot() { return geteuid() == 0; }

  /// Starts a program of the newest server in the folder. It refuses to run as root, and ends when this process does.
  [[nodiscard]] pid_t Spawn(const std::string& command) const {
    const std::string user = IsRoot() ? "--reuid=postgres --regid=postgres --clear-groups " : "";
    const auto line = "cd " + folder_.Path().string() +
                      " && programs=$(ls -d /usr/lib/postgresql/*/bin | tail -1) && exec setpriv --pdeathsig QUIT " +
                      user + "\"$programs\"/" + command + " >/dev/null 2>&1";
    const auto started = fork();
    if (started == 0) _exit(execl("/bin/sh", "sh", "-c", line.c_str(), nullptr));
    return started;
  }
  static int StatusOf(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return status;
  }

  TemporaryFolder folder_;
  pid_t server_ = 0;
};

}  // namespace orlin::testing
