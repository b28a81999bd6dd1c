#include "support/postgres_server.h"

#include <chrono>
#include <csignal>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <spawn.h>
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
pid_t Spawn(std::vector<std::string> words) {
  const bool isRoot = geteuid() == 0;
  std::vector<std::string> line{"setpriv", "--pdeathsig", "QUIT"};
  if (isRoot) line.insert(line.end(), {"--reuid=postgres", "--regid=postgres", "--clear-groups"});
  line.insert(line.end(), words.begin(), words.end());
  std::vector<char*> arguments;
  for (auto& word : line) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t files{};
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t started = 0;
  const int failed = posix_spawnp(&started, "setpriv", &files, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  if (failed != 0) throw std::runtime_error("setpriv cannot be started");
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
      StatusOf(Spawn({Programs() + "initdb", "--pgdata", folder_.Path() / "data", "--username", kUser, "--auth",
                      "scram-sha-256", "--pwfile", password, "--encoding", "UTF8", "--locale", "C", "--no-sync"}));
  if (made != 0) throw std::runtime_error("initdb failed");
  Start();
}

PostgresServer::~PostgresServer() { Stop(); }

void PostgresServer::Start() {
  server_ = Spawn(
      {Programs() + "postgres", "-D", folder_.Path() / "data", "-k", folder_.Path(), "-c", "listen_addresses=", "-F"});
  for (int i = 0; i < 600; ++i) {
    if (StatusOf(Spawn({Programs() + "pg_isready", "-q", "-h", folder_.Path()})) == 0) return;
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
