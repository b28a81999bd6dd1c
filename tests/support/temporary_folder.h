#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace orlin::testing {

inline std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

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
    std::filesystem::remove(path_ / name);  // some file systems take their time to overwrite
    std::ofstream(path_ / name, std::ios::binary) << content;
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

/// Tests that name files: each runs in an empty folder of its own.
class FolderTest : public ::testing::Test {
 protected:
  FolderTest() { std::filesystem::current_path(Folder.Path()); }
  ~FolderTest() override { std::filesystem::current_path(before_); }

  TemporaryFolder Folder;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

/// What a statement throws as an `Error` tells; empty where it does not.
template <class Error, class Statement>
std::string ErrorOf(Statement statement) {
  try {
    static_cast<void>(statement());
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

}  // namespace orlin::testing
