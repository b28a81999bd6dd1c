#include "faultlog/fault_file.h"

#include <cerrno>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>

namespace orlin {

FaultFile::FaultFile(std::optional<std::filesystem::path> file) : file_(std::move(file)) {}

void FaultFile::Append(const std::filesystem::path& fallback, std::string_view line) {
  const auto& path = file_ ? *file_ : fallback;
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::app);
  if (file << line << '\n' << std::flush || warned_) return;
  warned_ = true;
  std::cerr << path.string()
            << " cannot be written, so that faults go unrecorded: " << std::generic_category().message(errno)
            << std::endl;
}

}  // namespace orlin
