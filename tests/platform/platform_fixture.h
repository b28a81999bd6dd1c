#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/host/dialog_host.h"

#include "files/text_file.h"

namespace orlin::testing {

/// Tests that need files: each runs in an empty folder of its own.
class FolderTest : public ::testing::Test {
 protected:
  FolderTest() {
    std::string name = ::testing::TempDir() + "orlin-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
    std::filesystem::current_path(folder_ = name);
  }
  ~FolderTest() override {
    std::filesystem::current_path(before_);
    std::filesystem::remove_all(folder_);
  }

  static void Write(const std::string& name, const std::string& content) {
    std::filesystem::remove(name);  // some file systems take their time to overwrite
    std::ofstream(name, std::ios::binary) << content;
  }
  static std::string Read(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
  std::filesystem::path folder_;
};

/// Errors of a file format, each with the lines that cause it.
using LinesByError = std::map<std::string, std::vector<std::string>>;

/// What the user is told about what he named; empty for nothing.
template <class Statement>
std::string ErrorOf(Statement statement) {
  try {
    statement();
  } catch (const PlatformError& error) {
    return error.what();
  }
  return {};
}

/// A host that writes messages down.
class MessageHost : public DialogHost {
 public:
  [[nodiscard]] SizeInTwips Screen() const override { return {}; }
  void ShowModal(shown::Dialog&) override {}
  int ShowMessage(const Message& message) override {
    Messages.push_back(message);
    return answers::Ok;
  }
  void Beep() override {}

  std::vector<Message> Messages;
};

}  // namespace orlin::testing
