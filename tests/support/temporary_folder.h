#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace orlin::testing {

/// An empty folder that goes with its owner.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = ::testing::TempDir() + "orlin-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }

  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

  /// Writes a file of the folder; returns its path.
  std::filesystem::path Write(const std::string& name, const std::string& content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace orlin::testing
