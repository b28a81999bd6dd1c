#pragma once

#include <optional>
#include <ostream>
#include <string>

namespace orlin {

/// `orlin-host list`, as the command line tells it.
struct ListOptions {
  std::optional<std::string> Class;  ///< nothing: all public classes
  bool Json = false;
};

/// Prints public classes with their parameters. `UsageError` for the name of no class.
int List(const ListOptions& options, std::ostream& out);

}  // namespace orlin
