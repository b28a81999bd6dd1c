#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/platform.h"

namespace orlin::testing {

using Log = std::vector<std::string>;

/// An operator made of code: plays a function while a dialog is shown, answers messages from a queue, and writes down
/// what happens. A message that nobody expected fails the test, and so does an answer that is left over.
class OperatorHost : public DialogHost {
 public:
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
    Messages.push_back(message);
    if (Answers.empty()) {
      EXPECT_TRUE(AnswersAll) << "nobody expected the message: " << message.Text;
      return message.Flags == Message::YesNo ? answers::Yes : answers::Ok;
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
  bool AnswersAll = false;  ///< whatever comes, with OK or Yes
  Log Happened;
  std::vector<Message> Messages;
};

/// A catalogue of a few texts.
class FewTexts : public LocalTextComponent {
 public:
  explicit FewTexts(std::map<int, std::string> texts) : texts_(std::move(texts)) {}
  std::string GetLocalTextBASE(std::int16_t id) override { return texts_[id]; }

 private:
  std::map<int, std::string> texts_;
};

/// Has this host show the dialogs, on a platform of nothing else than perhaps a few texts.
inline void UseHost(std::shared_ptr<DialogHost> host, const std::map<int, std::string>& texts = {}) {
  Platform platform;
  platform.Host = std::move(host);
  if (!texts.empty()) {
    platform.Components["LocalText.clsLocalText"] = [texts] { return std::make_shared<FewTexts>(texts); };
  }
  UsePlatform(std::move(platform));
}

/// Tests that need a host, and nothing else of a platform.
class FrameTest : public ::testing::Test {
 protected:
  FrameTest() { UseHost(Host); }
  ~FrameTest() override { UsePlatform({}); }

  std::shared_ptr<OperatorHost> Host = std::make_shared<OperatorHost>();
};

/// The number of the failure that a statement ends with; 0 for none.
template <class Statement>
std::int32_t FailureOf(Statement statement) {
  try {
    static_cast<void>(statement());
  } catch (const Failure& failure) {
    return failure.Number();
  }
  return 0;
}

}  // namespace orlin::testing
