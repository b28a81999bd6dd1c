#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTableWidget>

#include "app/account/account.h"
#include "app/account/account_command.h"
#include "support/frame_fixture.h"
#include "support/temporary_folder.h"
#include "support/windows_of_tests.h"

namespace orlin::testing {
namespace {

/// An operator in front of the screen: he does a step whenever the window that is up by then waits for him.
class Operator {
 public:
  using Step = std::function<void()>;

  explicit Operator(std::vector<Step> steps) : steps_(std::move(steps)) {
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &hand_, [this] {
      const auto* window = QApplication::activeModalWidget();
      const bool waits = window != nullptr && window->focusWidget() != nullptr;
      if (!waits || planned_ != done_ || done_ == steps_.size()) return;
      ++planned_;
      QMetaObject::invokeMethod(
          &hand_, [this] { steps_[done_++](); }, Qt::QueuedConnection);
    });
  }

 private:
  std::vector<Step> steps_;
  std::size_t planned_ = 0;
  std::size_t done_ = 0;
  QObject hand_;
};

void Press(int key) {
  for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QApplication::sendEvent(QApplication::activeModalWidget()->focusWidget(), &event);
  }
}

TEST(AccountWindowTest, KeysAloneChangeOneParameterAfterTheOtherAlsoWhereOthersStore) {
  const TemporaryFolder folder;
  AccountOptions options;
  options.File = folder.Path() / "account.json";
  std::filesystem::copy_file(ORLIN_EXAMPLES "/account.json", options.File);
  std::vector<Operator::Step> steps;
  const auto press = [&](const std::vector<int>& keys) {
    for (const int key : keys) steps.emplace_back([key] { Press(key); });
  };
  // The line below the table, and the raw values of the first two.
  const auto expect = [&](const std::string& line, const std::string& zone5, const std::string& zone12) {
    steps.emplace_back([=] {
      const auto* window = QApplication::activeModalWidget();
      const auto* table = window->findChild<QTableWidget*>();
      EXPECT_EQ(window->findChild<QLabel*>()->text().toStdString(), line);
      EXPECT_EQ(table->item(0, 2)->text().toStdString(), "ZoneNum=5  ZoneCode=\"" + zone5 + "\"");
      EXPECT_EQ(table->item(1, 2)->text().toStdString(),
                "vName=Zone 12  vType=" + zone12 + "  vOption=1  vTroubleOn=2");
    });
  };
  press({Qt::Key_Return, Qt::Key_Up, Qt::Key_Up, Qt::Key_Return,        // zone 5: first digit 5 to 3
         Qt::Key_Down, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return});  // zone 12: type 3 to 4
  expect("Zone 12, function: result 0, stored", "3146", "4");
  press({Qt::Key_Up, Qt::Key_Return, Qt::Key_Down, Qt::Key_Escape});
  expect("Zone 5, code: result 1, not changed", "3146", "4");
  press({Qt::Key_Return, Qt::Key_Down});
  steps.emplace_back([&] {
    Account other(options.File);
    EXPECT_EQ(other.ValuesOf(0).at(1), "3146");
    other.Store(0, {std::int16_t{5}, "7146"});
    other.Store(1, {"Zone 12", std::int16_t{8}, std::int16_t{1}, std::int16_t{2}, Value()});
  });
  press({Qt::Key_Return});
  expect(
      "Zone 5, code: not stored, it was changed by somebody else meanwhile. "
      "Now in the file: Function code of zone 5: 7146; First digit: 7. Keyswitch zone. "
      "Entered here: Function code of zone 5: 4146; First digit: 4. Fire zone.",
      "7146", "8");
  steps.emplace_back([] { QApplication::activeModalWidget()->close(); });
  const Operator works(std::move(steps));
  ShowAccount(options, [](Screen) -> WindowSystem& { return *WindowsOfTests(); });
}

}  // namespace
}  // namespace orlin::testing
