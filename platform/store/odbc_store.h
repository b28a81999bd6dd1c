#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "store/connection.h"

namespace orlin {

struct OdbcOptions {
  std::string UserName;  ///< empty: the connection text or the source names one, or none is needed
  std::string Password;  ///< likewise
  /// How long the server may take to answer the opening, and another program that writes is waited for.
  std::chrono::seconds Patience{6};
  /// How long the server may take to answer one statement.
  std::chrono::seconds MostForStatement{30};
};

/// Opens an ODBC source by its connection text. The tables of a source are its administrator's.
/// `Failure` 3049 where it cannot be opened; neither text nor password is ever a part of a failure.
[[nodiscard]] std::shared_ptr<Connection> OpenOdbc(const std::string& connect, const OdbcOptions& options);

}  // namespace orlin
