#include "support/windows_of_tests.h"

#include <memory>

#include <gtest/gtest.h>

#include "window_system/open_windows.h"

namespace orlin::testing {
namespace {

/// Open while the tests run.
class ScreenOfTests final : public ::testing::Environment {
 public:
  void SetUp() override {
    // Somebody who wants to look on names a platform of Qt.
    windows_ = OpenWindows(Screen::Unseen);
  }
  void TearDown() override { windows_.reset(); }
  [[nodiscard]] WindowSystem* Windows() const { return windows_.get(); }

 private:
  std::unique_ptr<WindowSystem> windows_;
};

// Belongs to the test framework.
const auto* const screen = dynamic_cast<const ScreenOfTests*>(
    ::testing::AddGlobalTestEnvironment(std::make_unique<ScreenOfTests>().release()));

}  // namespace

WindowSystem* WindowsOfTests() { return screen->Windows(); }

}  // namespace orlin::testing
