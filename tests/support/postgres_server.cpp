#include "support/postgres_server.h"

#include <chrono>
#include <csignal>
#include <thread>

#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orlin::testing {
namespace {

/// The folder of the newest server that is installed.
std::string Programs() {
  std::string newest;
  for (const auto& version : std::filesystem::directory_iterator("/usr/lib/postgresql")) {
    const auto programs = (version.path() / "bin").string();
    if (std::filesystem::exists(programs + "/initdb") && programs > newest) newest = programs;
  }
  if (newest.empty()) throw std::runtime_error("no PostgreSQL server is installed");
  return newest + "/";
}

/// Starts a program of the server, which refuses to run as root, so that it ends when this process does.
pid_t Spawn(const std::string& command) {
  const auto* const user = geteuid() == 0 ? "--reuid=postgres --regid=postgres --clear-groups " : "";
  const auto line = std::string("exec setpriv --pdeathsig QUIT ") + user + Programs() + command + " >/dev/null 2>&1";
  const auto started = fork();
  if (started == 0) _exit(execl("/bin/sh", "sh", "-c", line.c_str(), nullptr));
  return started;
}

int StatusOf(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  return status;
}

}  // namespace

PostgresServer::PostgresServer() {
  const auto password = folder_.Write("password", kPassword);
  if (geteuid() == 0) {
    const auto* user = getpwnam("postgres");
    if (user == nullptr || chown(folder_.Path().c_str(), user->pw_uid, user->pw_gid) != 0 ||
        chown(password.c_str(), user->pw_uid, user->pw_gid) != 0) {
      throw std::runtime_error("the folder cannot be given to the user postgres");
    }
  }
  const auto made =
      StatusOf(Spawn("initdb --pgdata " + folder_.Path().string() + "/data --username " + kUser +
                     " --auth scram-sha-256 --pwfile " + password.string() + " --encoding UTF8 --locale C --no-sync"));
  if (made != 0) throw std::runtime_error("initdb failed");
  Start();
}

PostgresServer::~PostgresServer() { Stop(); }

void PostgresServer::Start() {
  const auto folder = folder_.Path().string();
  server_ = Spawn("postgres -D " + folder + "/data -k " + folder + " -c listen_addresses= -F");
  for (int i = 0; i < 600; ++i) {
    if (StatusOf(Spawn("pg_isready -q -h " + folder)) == 0) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  throw std::runtime_error("the server does not start");
}

void PostgresServer::Stop() {
  if (server_ == 0) return;
  kill(server_, SIGQUIT);
  StatusOf(server_);
  server_ = 0;
}

std::string PostgresServer::Connect() const {
  return "Driver={PostgreSQL Unicode};Servername=" + folder_.Path().string() + ";Database=postgres";
}

}  // namespace orlin::testing
