#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTableWidget>
#include <map>

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

class AccountWindowTest : public ::testing::Test {
 protected:
  AccountWindowTest() {
    std::filesystem::copy_file(ORLIN_EXAMPLES "/account.json", File);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(Folder.Path()));
  }

  /// Shows the account until all steps are done.
  void Work(std::vector<Operator::Step> steps) {
    steps.emplace_back([this] {
      Look();
      QApplication::activeModalWidget()->close();
    });
    const Operator works(std::move(steps));
    AccountOptions options;
    options.File = File;
    ShowAccount(std::move(options), [](Screen) -> WindowSystem& { return *WindowsOfTests(); });
  }

  /// Notes what the window shows.
  void Look() {
    const auto* window = QApplication::activeModalWidget();
    const auto* table = window->findChild<QTableWidget*>();
    Line = window->findChild<QLabel*>("outcome")->text().toStdString();
    Rows.clear();
    Shown.clear();
    for (int row = 0; row < table->rowCount(); ++row) {
      const auto cell = [&](int column) { return table->item(row, column)->text().toStdString(); };
      if (row < 2) Rows.push_back(cell(2));
      if (!table->isRowHidden(row)) Shown[cell(0)] = cell(1);
    }
  }

  static std::vector<Operator::Step> Keys(std::initializer_list<int> keys) {
    std::vector<Operator::Step> steps;
    for (const int key : keys) steps.emplace_back([key] { Press(key); });
    return steps;
  }

  TemporaryFolder Folder;
  std::filesystem::path File = Folder.Path() / "account.json";
  // When the window was closed:
  std::vector<std::string> Rows;             ///< the raw values of the first two
  std::map<std::string, std::string> Shown;  ///< the words of all that the filter leaves, by name
  std::string Line;                          ///< below the table
};

TEST_F(AccountWindowTest, KeysAloneChangeOneParameterAfterTheOther) {
  Work(Keys({Qt::Key_Return, Qt::Key_Up, Qt::Key_Up, Qt::Key_Return,      // zone 5: first digit 5 to 3
             Qt::Key_Down, Qt::Key_Return, Qt::Key_Down, Qt::Key_Return,  // zone 12: type 3 to 4
             Qt::Key_Up, Qt::Key_Return, Qt::Key_Down, Qt::Key_Escape,    // cancelled
             Qt::Key_Return, Qt::Key_Down, Qt::Key_Return}));             // zone 5: 4
  EXPECT_EQ(Line, "Zone 5, code: stored");
  EXPECT_EQ(Rows, (std::vector<std::string>{
                      "ZoneNum=5  ZoneCode=\"4146\"\nbefore: ZoneNum=5  ZoneCode=\"5146\"",
                      "vName=Zone 12  vType=4  vOption=1  vTroubleOn=2\nbefore: vName=Zone 12  vType=3  vOption=1  "
                      "vTroubleOn=2"}));
  EXPECT_EQ(Account(File).ValuesOf(0).at(1), "4146");
  EXPECT_EQ(Account(File).ValuesOf(1).at(1), Value(std::int16_t{4}));
}

TEST_F(AccountWindowTest, TellsInWordsWhatSomebodyElseHasStoredMeanwhile) {
  auto steps = Keys({Qt::Key_Return, Qt::Key_Up, Qt::Key_Up});
  steps.emplace_back([this] {
    Account other(File);
    other.Store(0, {std::int16_t{5}, "7146"});
    other.Store(1, {"Zone 12", std::int16_t{8}, std::int16_t{1}, std::int16_t{2}, Value()});
  });
  for (auto& step : Keys({Qt::Key_Return})) steps.push_back(std::move(step));
  Work(std::move(steps));
  EXPECT_EQ(Line,
            "Zone 5, code: not stored, it was changed by somebody else meanwhile. "
            "Now in the file: Function code of zone 5: 7146; First digit: 7. Keyswitch zone. "
            "Entered here: Function code of zone 5: 3146; First digit: 3. Burglary zone.");
  EXPECT_EQ(Rows, (std::vector<std::string>{
                      "ZoneNum=5  ZoneCode=\"7146\"\nbefore: ZoneNum=5  ZoneCode=\"5146\"",
                      "vName=Zone 12  vType=8  vOption=1  vTroubleOn=2\nbefore: vName=Zone 12  vType=3  vOption=1  "
                      "vTroubleOn=2"}));
}

TEST_F(AccountWindowTest, ShowsWhatAnotherProgramStoresAndFiltersByWords) {
  auto steps = std::vector<Operator::Step>{[this] {
    Account(File).Store(1, {"Zone 12", std::int16_t{8}, std::int16_t{1}, std::int16_t{2}, Value()});
    const auto* line = QApplication::activeModalWidget()->findChild<QLabel*>("outcome");
    for (const auto hint = line->text(); line->text() == hint;) QApplication::processEvents();
    Look();
    EXPECT_EQ(Line, "Changed by another program: Zone 12, function");
    EXPECT_EQ(Shown.at("Zone 12, function"), "Type: Fire\nbefore: Type: Interior follower");
    EXPECT_EQ(Shown.at("Passcodes after a change of the length"), "\u2022\u2022\u2022\u2022");
    QApplication::activeModalWidget()->findChild<QCheckBox*>()->click();
    Look();
    EXPECT_NE(Shown.at("Passcodes after a change of the length").find("1236"), std::string::npos);
    QApplication::activeModalWidget()->findChild<QLineEdit*>()->setText("INTERIOR follow");
  }};
  Work(std::move(steps));
  EXPECT_EQ(Shown.size(), 1U) << "found by what it meant";
}

}  // namespace
}  // namespace orlin::testing
