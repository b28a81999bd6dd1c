// What windows do for a person, beyond what the dialogs themselves do.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>
#include <QTextBrowser>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QtTest/qtestspontaneevent.h>
#include <gtest/gtest.h>

#include "OrlinCustomDialogs/notes.h"
#include "OrlinCustomDialogs/outputs.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/schedules.h"
#include "OrlinCustomDialogs/security_levels.h"
#include "OrlinCustomDialogs/verification.h"
#include "OrlinCustomDialogs/zones.h"

#include "frame/dialog/dialog.h"
#include "qt/dialog_window.h"
#include "qt/local_text.h"

namespace orlin::testing {
namespace {

/// Shows the dialogs of public classes to a person: `Person` plays in front of the window.
class PersonTest : public ::testing::Test, public DialogHost {
 protected:
  PersonTest() {
    StandardPlatformOptions options;
    options.Host = std::shared_ptr<DialogHost>(std::shared_ptr<void>(), this);
    UsePlatform(StandardPlatform(options));
  }
  ~PersonTest() override {
    EXPECT_FALSE(Person) << "no dialog was shown";
    UsePlatform({});
  }

  [[nodiscard]] SizeInTwips Screen() const override { return {15360, 11520}; }
  void ShowModal(shown::Dialog& dialog) override {
    DialogWindow window(dialog, timers, nullptr);
    Window = &window;
    Form = &dialog;
    window.Open();
    std::exchange(Person, nullptr)();
    if (dialog.IsShown()) dialog.Close();
  }
  int ShowMessage(const Message& message) override {
    Told = message.Text;
    return answers::Yes;
  }
  void Beep() override {}

  [[nodiscard]] QWidget& WidgetOf(const char* control) const { return *Window->ViewOf(*Form->Find(control)).Widget(); }

  void Press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) const {
    auto* popup = QApplication::activePopupWidget();
    auto* target = popup != nullptr ? popup->focusWidget() : &Window->KeyTarget();
    for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
      QKeyEvent event(type, key, modifiers, text);
      QApplication::sendEvent(target, &event);
    }
  }
  void Type(const QString& text) const {
    for (const auto letter : text) Press(letter.toUpper().unicode(), letter);
  }

  DialogWindow::Timers timers = DialogWindow::Timers::Run;
  std::function<void()> Person;
  DialogWindow* Window = nullptr;
  shown::Dialog* Form = nullptr;
  std::string Told;
};

TEST_F(PersonTest, TypingFindsRowsByNumberAndByWord) {
  const auto zone = [] {
    Value code{"3000"};
    clsZoneFunctionsWillow().Display(std::int16_t{5}, code);
  };
  const auto output = [] {
    Value code{std::int16_t{1}};
    clsOutputFunctions_Pine().Display("Output", code, {});
  };
  const auto sked = [] {
    Value type{std::int16_t{1}}, time{"**:30"}, edit{std::int16_t{0}}, data{"01/01"}, function{"340"};
    const Value levels{std::make_shared<SecurityLevels>()};
    clsSkedFunc_WillowAce().Display(std::int16_t{1}, type, time, edit, data, function, levels);
  };
  const struct {
    std::function<void()> Call;
    const char* List;
    const char* Typed;
    const char* Row;
    bool Closed = true;
    bool Opened = true;
  } cases[] = {
      {zone, "cmbDigit(0)", "6", "6. Technical zone"},
      {zone, "cmbDigit(0)", "key", "7. Keyswitch zone"},
      {zone, "cmbDigit(0)", "zone", "5. Medical zone"},
      {zone, "cmbDigit(0)", "24", "2. 24-hour alarm zone"},
      {zone, "cmbDigit(0)", "x", "4. Fire zone"},
      {output, "lstFunctionCode", "8,14", "8,14  System in order", true, false},
      {output, "lstFunctionCode", "0,2", "0,  2  Burglar alarm, pulsed", true, false},
      {output, "lstFunctionCode", "silent p", "0,  6  Silent panic alarm", true, false},
      {sked, "cmbSkedCode", "047", "047  Bypass zone 1"},
      {sked, "cmbSkedCode", "47", "047  Bypass zone 1", false},
      {sked, "cmbSkedCode", "silence", "005  Silence the sounders", false},
  };
  for (const auto& one : cases) {
    for (const bool opened : {false, true}) {
      if (!(opened ? one.Opened : one.Closed)) continue;
      SCOPED_TRACE(std::string(one.List) + " " + one.Typed + (opened ? ", open" : ""));
      std::string found;
      Person = [&] {
        Form->Find(one.List)->Focus();
        Window->Present();
        if (opened) Press(Qt::Key_Down, {}, Qt::AltModifier);
        Type(one.Typed);
        const auto& rows = *Form->Find(one.List)->AsRowList();
        found = rows.List(rows.ListIndex());
        if (!opened) return;
        auto& view = *dynamic_cast<QComboBox&>(WidgetOf(one.List)).view();
        EXPECT_EQ(view.currentIndex().data().toString().toStdString(), found) << "the open list follows";
        Press(Qt::Key_Escape);
        EXPECT_FALSE(view.isVisible());
      };
      one.Call();
      EXPECT_EQ(found, one.Row);
    }
  }
}

TEST_F(PersonTest, ACodeThatIsTypedPicksItsRows) {
  const auto field = [&] { return WidgetOf("lblZoneCode").findChild<QLineEdit*>(); };
  const auto expect = [&](const char* typed, const char* code, bool takes) {
    EXPECT_EQ(field()->text(), typed);
    EXPECT_EQ(Form->Find("lblZoneCode")->Caption(), code) << typed;
    EXPECT_EQ(WidgetOf("cmdOK").isEnabled(), takes) << typed;
  };
  const auto remark = [&](const char* list) { return WidgetOf(list).accessibleDescription().toStdString(); };
  Value code{"4000"};
  Person = [&] {
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(&Window->KeyTarget(), field());
    Type("16");
    expect("16", "5111", false);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Form->IsShown()) << "another code would be stored";
    bool helps = false;
    QTimer::singleShot(0, [&] {
      helps = QApplication::activeModalWidget()->findChild<QTextBrowser*>() != nullptr;
      if (helps) QApplication::activeModalWidget()->close();
    });
    Press(Qt::Key_F1);
    EXPECT_TRUE(helps);
    Type("46");
    expect("1646", "1646", true);
    QApplication::processEvents();
    EXPECT_EQ(remark("cmbDigit(1)"), LocalText(1783).toStdString() + " One of 8 rows.");
    Press(Qt::Key_A, {}, Qt::ControlModifier);
    Type("5199");
    expect("5199", "1646", false);
    EXPECT_NE(remark("cmbDigit(2)"), "");
    Press(Qt::Key_Escape);
    expect("1646", "1646", true);
    QApplication::processEvents();
    EXPECT_EQ(remark("cmbDigit(2)"), "One of 8 rows.");
    Type("52");
    Press(Qt::Key_Tab);
    EXPECT_EQ(&Window->KeyTarget(), &WidgetOf("cmbDigit(0)"));
    expect("1646", "1646", true);
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(&Window->KeyTarget(), &WidgetOf("cmdCancel"));
    Press(Qt::Key_Tab);
    Type("5146");
    Press(Qt::Key_Return);
  };
  EXPECT_EQ(clsZoneFunctionsWillow().Display(std::int16_t{5}, code), 0);
  EXPECT_EQ(code, "5146");

  // The rows of the first list depend on the second character.
  Person = [&] {
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    Type("a1000");
    expect("A1000", "A1000", true);
    Press(Qt::Key_A, {}, Qt::ControlModifier);
    Type("b0000");
    expect("b0000", "A1000", false);
    EXPECT_NE(remark("cmbDigit(0)"), "");
  };
  clsZoneFunctions_Fir().Display(code = "00000");
  EXPECT_FALSE(Person);

  Person = [&] {
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    Type("111");
    EXPECT_EQ(Form->Find("lblPointCode")->Caption(), "111");
    EXPECT_EQ(remark("cmbDigit(3)"), LocalText(1455).toStdString());
  };
  clsPointCodes_OakMid().Display(std::int16_t{1}, code = "200");
  EXPECT_FALSE(Person);

  timers = DialogWindow::Timers::Stand;
  Person = [&] {
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(&Window->KeyTarget(), &WidgetOf("cmdCancel")) << "a script knows the controls of the dialog alone";
  };
  clsZoneFunctionsWillow().Display(std::int16_t{5}, code);
}

TEST_F(PersonTest, CellsAreEditedInPlaceAndTellWhatTheirColoursMean) {
  Value values{Array({std::int16_t{10}})};
  Person = [&] {
    auto& table = dynamic_cast<QTableView&>(WidgetOf("vsFlexArray1"));
    EXPECT_TRUE(table.isColumnHidden(0));
    EXPECT_EQ(table.model()->headerData(0, Qt::Vertical).toString(), "Exit delay (seconds)") << "never scrolled away";
    EXPECT_FALSE(table.verticalHeader()->isHidden());
    const auto& grid = *Form->Find("vsFlexArray1")->AsTable();
    const int before = Window->width();
    Window->resize(1, Window->height());
    const auto narrow = Window->size();
    EXPECT_LT(narrow.width(), before);
    Press(Qt::Key_F2);
    EXPECT_EQ(dynamic_cast<QLineEdit&>(Window->KeyTarget()).selectedText(), "60");
    Press(Qt::Key_Escape);
    Type("7");
    EXPECT_EQ(grid.EditorText(), "7");
    EXPECT_EQ(Window->size(), narrow) << "as the operator wants it";
    Press(Qt::Key_Escape);
    EXPECT_TRUE(Form->IsShown());
  };
  const Value levels{std::make_shared<SecurityLevels>()};
  clsErrorMessageNova().Display(Array({std::int16_t{29}}), values, levels, 49, false);
  EXPECT_FALSE(Person);

  std::vector<Value> codes(250, "");
  codes[0] = "12";
  codes[1] = "1234";
  Value result{Array(codes)};
  Value present = result;
  std::int16_t changed = 0;
  Person = [&] {
    auto& table = dynamic_cast<QTableView&>(WidgetOf("fa"));
    const auto cell = [&](int row) {
      const auto* told = QAccessible::queryAccessibleInterface(&table)->tableInterface()->cellAt(row, 1);
      return told->text(QAccessible::Name).toStdString() + ": " + told->text(QAccessible::Description).toStdString();
    };
    const auto sign = [&](const char* key) { return dynamic_cast<QLabel&>(WidgetOf(key)).text(); };
    EXPECT_EQ(cell(0), "12: Unusable Passcodes");
    EXPECT_EQ(cell(1), "1234: Duplicate/Duress Passcodes");
    EXPECT_EQ(cell(2), ": ");
    EXPECT_NE(sign("Shape1"), sign("Shape2"));
    EXPECT_EQ(table.model()->index(1, 1).data(Qt::UserRole).toString(), sign("Shape2"));
  };
  clspasscodeLen().Display(result, present, changed, 4, 9, 0, 0, {});
}

TEST_F(PersonTest, ALongTextIsNotLostByASlip) {
  const struct {
    const char* Typed;
    bool Escape;
    bool Sure;
    int Questions;
    bool Closes;
  } cases[] = {
      {"", true, false, 0, true},    {"", false, false, 0, true}, {"x", true, false, 1, false},
      {"x", false, false, 1, false}, {"x", true, true, 1, true},  {"x", false, true, 1, true},
  };
  for (const auto& one : cases) {
    int questions = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      EXPECT_EQ(box->text().toStdString(), LocalText(20100).toStdString());
      ++questions;
      box->button(one.Sure ? QMessageBox::Yes : QMessageBox::No)->click();
    });
    look.start(1);
    bool closed = false;
    Person = [&] {
      Type(one.Typed);
      if (one.Escape) {
        Press(Qt::Key_Escape);
      } else {
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close);
        static_cast<QObject&>(*Window).event(&close);
      }
      closed = !Form->IsShown();
    };
    std::string content = "before";
    Value firstLine;
    clsPanelNotes().Display("GUID", "Notes", 1, content, firstLine, true);
    EXPECT_EQ(questions, one.Questions) << one.Typed << one.Escape;
    EXPECT_EQ(closed, one.Closes) << one.Typed << one.Escape << one.Sure;
  }

  Dialog plain("frmPlain", "", {});
  Button cmdMore(plain, "cmdMore");
  Person = [&] {
    Press(Qt::Key_Escape);
    EXPECT_TRUE(Form->IsShown()) << "without a cancel button there is no Escape";
  };
  plain.ShowModal();
}

}  // namespace
}  // namespace orlin::testing
