#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/platform.h"

#include "frame/dialog/dialog.h"

namespace orlin::testing {

using Log = std::vector<std::string>;

/// An operator made of code: plays a function while a dialog is shown, answers messages from a queue, and writes down
/// what happens. A message that nobody expected fails the test, and so does an answer that is left over.
class OperatorHost : public DialogHost {
 public:
  OperatorHost() = default;
  ~OperatorHost() override { EXPECT_TRUE(Answers.empty()) << "answers are left over"; }

  [[nodiscard]] SizeInTwips Screen() const override { return {15360, 11520}; }
  void ShowModal(shown::Dialog& dialog) override {
    Happened.push_back("show " + dialog.Name());
    dialog.Activate();
    if (Operate && dialog.IsShown()) Operate(dialog);
    if (dialog.IsShown()) dialog.Close();
  }
  int ShowMessage(const Message& message) override {
    Happened.push_back("message " + message.Text);
    if (Answers.empty()) {
      ADD_FAILURE() << "nobody expected the message: " << message.Text;
      return answers::Ok;
    }
    const int answer = Answers.front();
    Answers.erase(Answers.begin());
    return answer;
  }
  void Beep() override { Happened.emplace_back("beep"); }
  void HandlerFailed(const shown::Dialog&, std::string_view handler, const Failure& failure) override {
    Happened.push_back("failed " + std::string(handler) + " " + std::to_string(failure.Number()));
  }

  std::function<void(shown::Dialog&)> Operate;
  std::vector<int> Answers;
  Log Happened;
};

/// Tests that need a host, and nothing else of a platform.
class FrameTest : public ::testing::Test {
 protected:
  FrameTest() {
    Platform platform;
    platform.Host = Host;
    UsePlatform(std::move(platform));
  }
  ~FrameTest() override { UsePlatform({}); }

  std::shared_ptr<OperatorHost> Host = std::make_shared<OperatorHost>();
};

/// The number of the failure that a statement ends with; 0 for none.
template <class Statement>
std::int32_t FailureOf(Statement statement) {
  try {
    statement();
  } catch (const Failure& failure) {
    return failure.Number();
  }
  return 0;
}

}  // namespace orlin::testing
