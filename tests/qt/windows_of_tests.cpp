#include "support/windows_of_tests.h"

#include <cstdlib>
#include <memory>

#include <gtest/gtest.h>

#include "qt/open_windows.h"

namespace orlin::testing {
namespace {

/// Open while the tests run.
class ScreenOfTests final : public ::testing::Environment {
 public:
  void SetUp() override {
    // On a screen of their own, unless somebody wants to look on.
    constexpr int keepWhatIsSet = 0;
    setenv("QT_QPA_PLATFORM", "offscreen", keepWhatIsSet);
    windows_ = OpenWindows();
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
