#pragma once

#include <string>

#include <sys/types.h>

#include "support/temporary_folder.h"

namespace orlin::testing {

/// A PostgreSQL server of this process alone: its data lies in a temporary folder, it listens on a socket in there, and
/// it goes with this process in any case.
class PostgresServer {
 public:
  /// Its one user, and a password that a connection text has to carry whole.
  static constexpr const char* kUser = "orlin";
  static constexpr const char* kPassword = "p} ;UID={x'\"";

  PostgresServer();
  PostgresServer(const PostgresServer&) = delete;
  PostgresServer& operator=(const PostgresServer&) = delete;
  ~PostgresServer();

  void Start();
  /// Ends it at once; clients that are connected lose it.
  void Stop();

  /// Without user name and password.
  [[nodiscard]] std::string Connect() const;

 private:
  TemporaryFolder folder_;
  pid_t server_ = 0;
};

}  // namespace orlin::testing
