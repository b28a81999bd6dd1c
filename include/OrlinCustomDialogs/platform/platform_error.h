#pragma once

#include <stdexcept>

namespace orlin {

/// What is wrong with a file or an option that the user named: one plain line for him.
class PlatformError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace orlin
