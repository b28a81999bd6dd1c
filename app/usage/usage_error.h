#pragma once

#include <stdexcept>

namespace orlin {

/// A call of the command that makes no sense, told in one line.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace orlin
