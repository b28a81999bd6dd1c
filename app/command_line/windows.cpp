#include "app/command_line/windows.h"

#include <filesystem>

#include <unistd.h>

#include "app/usage/usage_error.h"

namespace orlin {

void BecomeProgramWithWindows(const char* const* words) {
  std::error_code ignored;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", ignored);
  const auto sibling = self.parent_path() / (self.filename().string() + "-qt");
  // Returns where there is no such program.
  execv(sibling.c_str(), const_cast<char* const*>(words));
  throw UsageError("this build shows no windows: name an operator's script with --script FILE");
}

}  // namespace orlin
