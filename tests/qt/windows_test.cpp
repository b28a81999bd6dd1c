#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>
#include <cstdlib>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/host/form.h"
#include "OrlinCustomDialogs/hosts/qt/qt_host.h"
#include "OrlinCustomDialogs/platform.h"
#include "OrlinCustomDialogs/zones.h"

#include "frame/dialog/dialog.h"
#include "qt/colours.h"
#include "qt/dialog_window.h"
#include "qt/key_events.h"

namespace orlin::testing {
namespace {

/// Has a control of most kinds.
struct Sample {
  Dialog Form{"frmSample", "Sample", {}};
  Label lblName{Form, "lblName", "&Name:"};
  TextBox txtName{Form, "txtName", {.MaxLength = 4}};
  Label lblPick{Form, "lblPick", "Pi&ck:"};
  ComboBox cmbPick{Form, "cmbPick"};
  ComboBox cmbEdit{Form, "cmbEdit", {.HasEditField = true}};
  Label lblLines{Form, "lblLines", "Lines:"};
  TextBox txtLines{Form, "txtLines", {.MultiLine = true}};
  Frame fraMode{Form, "fraMode", "Mode"};
  OptionButton optA{fraMode, "optA", "&A", {.Value = true}};
  OptionButton optB{fraMode, "optB", "&B"};
  Label lblC{fraMode, "lblC", "C"};
  OptionButton optC{fraMode, "optC"};
  TextBox txtHour{fraMode, "txtHour", {.Text = "7", .MaxLength = 2}};
  UpDown udHour{fraMode, "udHour", {.Min = 0, .Max = 23, .Buddy = &txtHour}};
  Label lblUnit{fraMode, "lblUnit", "h", Label::Unit};
  CheckBox chkOn{Form, "chkOn", "&On"};
  ListBox lstChecks{Form, "lstChecks", {.Choice = shown::Choice::Checks}};
  Grid grdTable{Form, "grdTable", {.Rows = 4, .Cols = 2, .FixedRows = 1, .FixedCols = 1}};
  OKButton cmdOK{Form, "OK"};
  CancelButton cmdCancel{Form, "Cancel"};
  Timer tmrClock{Form, "tmrClock", {.Interval = 1}};

  Sample() {
    for (const char* text : {"one", "two", "a third one that is much longer than the others"}) {
      cmbPick.AddItem(text);
      cmbEdit.AddItem(text);
      lstChecks.AddItem(text);
    }
    // Capitals only; "!" is refused.
    txtName.KeyPress = [](int& key) {
      if (key == '!') key = 0;
      if (key >= 'a' && key <= 'z') key -= 'a' - 'A';
    };
    tmrClock.OnTimer = [this] { Form.Hide(); };
  }
};

/// Shows the sample in a window, and plays a function in front of it.
class WindowsTest : public ::testing::Test, public DialogHost {
 protected:
  WindowsTest() {
    Platform platform;
    platform.Host = std::shared_ptr<DialogHost>(std::shared_ptr<void>(), this);
    UsePlatform(std::move(platform));
  }
  ~WindowsTest() override { UsePlatform({}); }

  template <class Shown, class Play>
  void Show(Shown& dialog, Play play) {
    play_ = [&] { play(dialog); };
    dialog.Form.ShowModal();
  }

  [[nodiscard]] SizeInTwips Screen() const override { return {15360, 11520}; }
  void ShowModal(shown::Dialog& dialog) override {
    DialogWindow window(dialog, DialogWindow::Timers::Stand, nullptr);
    Window = &window;
    window.Open();
    play_();
    Window = nullptr;
    if (dialog.IsShown()) dialog.Close();
  }
  int ShowMessage(const Message&) override { return answers::Ok; }
  void Beep() override {}

  template <class Widget>
  [[nodiscard]] Widget& Of(const shown::Control& control) const {
    return dynamic_cast<Widget&>(*Window->ViewOf(control).Widget());
  }
  void Press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) const {
    for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, modifiers, text);
      QApplication::sendEvent(&Window->KeyTarget(), &event);
    }
  }
  void Type(const QString& text) const {
    for (const auto letter : text) Press(letter.toUpper().unicode(), letter);
  }

  DialogWindow* Window = nullptr;

 private:
  std::function<void()> play_;
};

TEST_F(WindowsTest, NoWayIntoATextBoxGoesAroundItsKeys) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    auto& field = Of<QLineEdit>(its.txtName);
    const auto expect = [&](const char* text, const char* way) {
      EXPECT_EQ(its.txtName.Text(), text) << way;
      EXPECT_EQ(field.text().toStdString(), text) << way;
    };
    Type("a!b");
    expect("AB", "typing");
    QApplication::clipboard()->setText("c!def");
    Press(Qt::Key_V, {}, Qt::ControlModifier);
    expect("ABCD", "pasting");
    Press(Qt::Key_Z, {}, Qt::ControlModifier);
    expect("ABCD", "undoing");
    const auto caret = [&] { return field.inputMethodQuery(Qt::ImCursorRectangle).toRect().x(); };
    const int before = caret();
    QInputMethodEvent composing("xyz", {});
    QApplication::sendEvent(&field, &composing);
    expect("ABCD", "composing with an input method");
    EXPECT_GT(caret(), before) << "what is composed is seen";
    Press(Qt::Key_A, {}, Qt::ControlModifier);
    QInputMethodEvent composed;
    composed.setCommitString("x!");
    QApplication::sendEvent(&field, &composed);
    expect("X", "an input method");
    EXPECT_LT(caret(), before);
    QAccessible::queryAccessibleInterface(&field)->setText(QAccessible::Value, "ok!");
    expect("OK", "an assistive tool");
    field.setText("zz");
    expect("ZZ", "setting the text of the widget");
    EXPECT_FALSE(field.acceptDrops());
    Press(Qt::Key_A, {}, Qt::ControlModifier);
    Press(Qt::Key_X, {}, Qt::ControlModifier);
    expect("", "cutting");
    EXPECT_EQ(QApplication::clipboard()->text(), "ZZ");
  });
}

TEST_F(WindowsTest, LongTextsKeepTheirPlaceAndLineEndsStayWhole) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    std::string text = "a\r\nb";
    for (int i = 0; i < 200; ++i) text.append("\r\nline");
    its.txtLines.SetText(text);
    its.txtLines.SetCaret(1, 0);
    Window->Present();
    Press(Qt::Key_Right, {}, Qt::ShiftModifier);
    EXPECT_EQ(its.txtLines.SelLength(), 2);
    Press(Qt::Key_Delete);
    EXPECT_EQ(its.txtLines.Text().substr(0, 4), "ab\r\n");
    const auto scrolled = [&] { return Of<QPlainTextEdit>(its.txtLines).verticalScrollBar()->value(); };
    Press(Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 0);
    EXPECT_EQ(its.txtLines.SelStart(), 1) << "a page is turned for the eye, not for the caret";
    Press(Qt::Key_End, {}, Qt::ControlModifier);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    const int before = scrolled();
    Type("x");
    EXPECT_EQ(scrolled(), before);
  });
}

TEST_F(WindowsTest, TheLabelOfAnOptionPicksIt) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, QPointF(2, 2), QPointF(2, 2), Qt::LeftButton, Qt::LeftButton, {});
      QApplication::sendEvent(&Of<QWidget>(its.lblC), &event);
    }
    EXPECT_TRUE(its.optC.Value());
    EXPECT_TRUE(Of<QAbstractButton>(its.optC).isChecked());
    EXPECT_EQ(its.Form.FocusedControl(), &its.optC);
  });
}

TEST_F(WindowsTest, OnlyPickingChangesAList) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    auto& list = Of<QComboBox>(its.cmbPick);
    QWheelEvent wheel({5, 5}, list.mapToGlobal(QPoint(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &wheel);
    EXPECT_EQ(its.cmbPick.ListIndex(), -1);
    Press(Qt::Key_C, "c", Qt::AltModifier);
    Press(Qt::Key_Down);
    EXPECT_EQ(its.cmbPick.ListIndex(), 0);
    EXPECT_EQ(list.currentText(), "one");
    // A row's text in the field of a combo box is no choice of the row.
    its.cmbEdit.Focus();
    Window->Present();
    Type("two");
    Press(Qt::Key_Tab);
    EXPECT_EQ(its.cmbEdit.Text(), "two");
    EXPECT_EQ(its.cmbEdit.ListIndex(), -1);
  });
}

TEST_F(WindowsTest, KeyboardAloneReachesEverything) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    EXPECT_TRUE(Window->testAttribute(Qt::WA_KeyboardFocusChange)) << "the focus is seen";
    std::vector<std::string> order;
    for (int i = 0; i < 10; ++i) {
      order.push_back(its.Form.FocusedControl()->Name());
      EXPECT_EQ(&Window->KeyTarget(), Window->ViewOf(*its.Form.FocusedControl()).KeyboardWidget());
      Press(Qt::Key_Tab);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"txtName", "cmbPick", "cmbEdit", "txtLines", "optA", "txtHour", "chkOn",
                                               "lstChecks", "grdTable", "cmdOK"}));
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(its.Form.FocusedControl(), &its.cmdOK);
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Of<QPushButton>(its.cmdCancel).isDefault()) << "Enter presses it";
    Press(Qt::Key_B, "b", Qt::AltModifier);
    EXPECT_TRUE(Of<QAbstractButton>(its.optB).isChecked());
    Press(Qt::Key_O, "o", Qt::AltModifier);
    EXPECT_TRUE(Of<QAbstractButton>(its.chkOn).isChecked());
    Press(Qt::Key_Escape);
    EXPECT_EQ(its.Form.ExitCode(), ExitCode::Cancel);
  });
}

TEST_F(WindowsTest, WhatIsMarkedOnTheScreenIsMarked) {
  Sample sample;
  sample.txtName.SetText("12");
  Show(sample, [this](Sample& its) {
    auto& field = Of<QLineEdit>(its.txtName);
    EXPECT_FALSE(field.hasSelectedText()) << "as the window opens";
    Press(Qt::Key_Tab);
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(field.selectedText(), "12");
    EXPECT_EQ(its.txtName.SelLength(), 2);
  });
}

TEST_F(WindowsTest, ScreenReadersHearLabelsAndRoles) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    const struct {
      const shown::Control& Control;
      const char* Name;
      QAccessible::Role Role;
    } expected[] = {
        {its.txtName, "Name", QAccessible::EditableText},   {its.cmbPick, "Pick", QAccessible::ComboBox},
        {its.txtLines, "Lines", QAccessible::EditableText}, {its.txtHour, "Mode", QAccessible::EditableText},
        {its.chkOn, "On", QAccessible::CheckBox},           {its.optA, "A", QAccessible::RadioButton},
        {its.fraMode, "Mode", QAccessible::Grouping},       {its.cmdOK, "OK", QAccessible::Button},
    };
    for (const auto& one : expected) {
      const auto* told = QAccessible::queryAccessibleInterface(&Of<QWidget>(one.Control));
      EXPECT_EQ(told->text(QAccessible::Name).toStdString(), one.Name) << one.Control.Name();
      EXPECT_EQ(told->role(), one.Role) << one.Control.Name();
    }
    its.lblName.SetCaption("Other:");
    Window->Present();
    EXPECT_EQ(Of<QWidget>(its.txtName).accessibleName(), "Other");
  });
}

TEST_F(WindowsTest, HiddenPartsLeaveNoHoles) {
  Sample sample;
  Show(sample, [this](Sample& its) {
    const int before = Window->sizeHint().height();
    const int between = Of<QWidget>(its.chkOn).y() - Of<QWidget>(its.fraMode).y();
    its.fraMode.SetVisible(false);
    Window->Present();
    EXPECT_EQ(Window->sizeHint().height(), before - between);
  });
}

TEST_F(WindowsTest, NoTextIsClippedAtAnyFontSize) {
  const auto font = QApplication::font();
  for (const double scale : {1.0, 2.0}) {
    auto scaled = font;
    scaled.setPointSizeF(font.pointSizeF() * scale);
    QApplication::setFont(scaled);
    Sample sample;
    Show(sample, [this](Sample&) {
      for (const auto* widget : Window->findChildren<QWidget*>()) {
        const bool hasText = qobject_cast<const QLabel*>(widget) != nullptr ||
                             qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<const QComboBox*>(widget) != nullptr;
        if (!hasText || !widget->isVisible() || qobject_cast<const QToolButton*>(widget) != nullptr) continue;
        EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->metaObject()->className();
        EXPECT_GE(widget->height(), widget->sizeHint().height()) << widget->metaObject()->className();
        if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
          EXPECT_GT(list->width(), list->fontMetrics().horizontalAdvance(list->itemText(2)));
        }
      }
    });
  }
  QApplication::setFont(font);
}

TEST_F(WindowsTest, ADialogLargerThanTheScreenScrollsAndKeepsItsButtons) {
  Sample sample;
  sample.chkOn.SetCaption(std::string(400, 'W'));
  Show(sample, [this](Sample& its) {
    const auto screen = Window->screen()->availableGeometry().size();
    EXPECT_LE(Window->width(), screen.width());
    EXPECT_LE(Window->height(), screen.height());
    EXPECT_TRUE(Window->rect().contains(Of<QWidget>(its.cmdOK).geometry()));
    EXPECT_NE(Window->findChild<QScrollArea*>(), nullptr);
    EXPECT_EQ(&Window->KeyTarget(), &Of<QWidget>(its.txtName));
    Press(Qt::Key_Tab);
    EXPECT_EQ(its.Form.FocusedControl(), &its.cmbPick);
    // The keyboard is the window's own where no control has it.
    its.cmbPick.SetEnabled(false);
    Window->Present();
    Press(Qt::Key_Tab);
    EXPECT_EQ(its.Form.FocusedControl(), &its.cmbEdit);
  });
}

TEST(FormTest, UnitsAndAlternativesStandWithTheirField) {
  struct Parts {
    Dialog Form{"frmParts", "", {}};
    Label lblA{Form, "lblA", "Time:"};
    TextBox txtHour{Form, "txtHour"};
    Label lblColon{Form, "lblColon", ":", Label::Separator};
    TextBox txtMinute{Form, "txtMinute"};
    Label lblUnit{Form, "lblUnit", "any length, in any language:", Label::Unit};
    UpDown udTime{Form, "udTime"};
    ComboBox cmbOther{Form, "cmbOther"};
    Label lblB{Form, "lblB", "List:"};
    TextBox txtB{Form, "txtB", {.Common = {.Visible = false}}};
    ListBox lstB{Form, "lstB", {.HasHeading = true, .Common = {.Visible = false}}};
    Button cmdMore{Form, "cmdMore", "More"};
    OKButton cmdOK{Form};
    CancelButton cmdCancel{Form};
  };
  Platform platform;
  platform.Host = std::make_shared<QtHost>();
  UsePlatform(std::move(platform));
  Parts parts;
  parts.lstB.AddItem("Heading");
  const auto form = FormOf(parts.Form);
  const auto names = [](const FormLine& line) {
    std::string all;
    for (const auto* control : line) all.append(all.empty() ? "" : " ").append(control->Name());
    return all;
  };
  ASSERT_EQ(form.Body.size(), 2U);
  EXPECT_EQ(form.Body[0].Label, &parts.lblA);
  ASSERT_EQ(form.Body[0].Lines.size(), 2U);
  EXPECT_EQ(names(form.Body[0].Lines[0]), "txtHour lblColon txtMinute udTime lblUnit");
  EXPECT_EQ(names(form.Body[0].Lines[1]), "cmbOther");
  EXPECT_EQ(form.Body[1].What, FormRow::Kind::Tall);
  EXPECT_EQ(form.Body[1].Label, &parts.lblB) << "also while nothing behind it is visible";
  EXPECT_FALSE(form.Labels.contains(&parts.lstB)) << "its heading names it";
  EXPECT_EQ(form.NameOf(parts.txtB) + form.NameOf(parts.lstB), "List:Heading") << "as a screen reader says it";
  EXPECT_EQ(names(form.LeftButtons), "cmdMore");
  EXPECT_EQ(names(form.RightButtons), "cmdOK cmdCancel");
  UsePlatform({});
}

TEST(ColourTest, TheColoursOfPasscodesCanBeReadOnAnyGround) {
  const QPalette palette;
  for (const std::int32_t colour : {0x0000FF, 0xFF0000}) {
    for (const QColor ground : {QColor(Qt::white), QColor(30, 30, 30), QColor(Qt::black), QColor(239, 239, 239)}) {
      const auto shown = Readable(ColourOf(colour, palette), ground);
      EXPECT_GE(Contrast(shown, ground), 4.5);
      EXPECT_EQ(shown.red() > shown.blue(), colour == 0x0000FF) << "still the same hue";
    }
  }
}

/// The windows of an operator: a message waits, and the clock runs.
class QtHostTest : public ::testing::Test {
 protected:
  QtHostTest() {
    Platform platform;
    platform.Host = Host;
    UsePlatform(std::move(platform));
    Main->setStyleSheet("QMessageBox, QDialog { color: #123456 }");
    Main->show();
  }
  ~QtHostTest() override { UsePlatform({}); }

  /// A window of the application, with a page in it.
  std::unique_ptr<QWidget> Main = std::make_unique<QWidget>();
  QWidget* Page = new QWidget(Main.get());
  std::shared_ptr<QtHost> Host = std::make_shared<QtHost>(Page);
};

TEST_F(QtHostTest, AMessageShowsWhatTheHandlerHasDoneSoFar) {
  Sample sample;
  int answer = 0;
  sample.tmrClock.OnTimer = [&] {
    sample.txtName.SetText("new");
    answer = sample.Form.ShowMessage("Sure?", Message::YesNo, "Title");
    sample.Form.Hide();
  };
  QString seen;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    seen = box->parentWidget()->findChild<QLineEdit*>()->text();
    EXPECT_EQ(box->text(), "Sure?");
    EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    box->button(QMessageBox::No)->click();
  });
  look.start(1);
  sample.Form.ShowModal();
  EXPECT_EQ(seen, "new");
  EXPECT_EQ(answer, answers::No);
}

TEST_F(QtHostTest, AParentThatGoesClosesTheDialog) {
  const auto shown = [] { return QApplication::activeModalWidget(); };
  const auto later = [](auto what) { QTimer::singleShot(1, what); };
  const auto go = [&] { Main.reset(); };
  const auto ask = [](Sample& its) { EXPECT_EQ(its.Form.ShowMessage("Sure?", Message::YesNo), answers::No); };
  const struct {
    const char* When;
    std::function<void(Sample&)> Handler;
    bool Throws = false;
  } ways[] = {
      {"between handlers", [&](Sample&) { later(go); }},
      {"in a handler, which asks then", [&](Sample& its) { go(), ask(its), ask(its); }},
      {"while a handler asks, twice", [&](Sample& its) { later(go), ask(its), ask(its); }},
      {"while a dialog of the handler is shown",
       [&](Sample&) {
         Sample inner;
         inner.tmrClock.SetEnabled(false);
         later(go), inner.Form.ShowModal();
       }},
      {"in a handler that throws", [&](Sample&) { go(), throw std::runtime_error("the host"); }, true},
      {"while a drop-down list is open",
       [&](Sample&) { later([&] { shown()->findChild<QComboBox*>()->showPopup(), later(go); }); }},
      {"while a menu is open",
       [&](Sample&) {
         later([&] {
           later(go);
           QContextMenuEvent event(QContextMenuEvent::Mouse, {}, {});
           QApplication::sendEvent(shown()->findChild<QLineEdit*>(), &event);
         });
       }},
  };
  for (const auto& way : ways) {
    SCOPED_TRACE(way.When);
    Main = std::make_unique<QWidget>();
    const QtHost::ParentForCalls parent(*Host, new QWidget(Main.get()));
    Sample sample;
    bool ends = false;
    sample.tmrClock.OnTimer = [&] {
      sample.tmrClock.SetEnabled(false);
      way.Handler(sample);
      ends = true;
    };
    if (way.Throws) {
      EXPECT_THROW(sample.Form.ShowModal(), std::runtime_error);
    } else {
      sample.Form.ShowModal();
    }
    EXPECT_EQ(ends, !way.Throws) << "a handler runs to its end";
    EXPECT_EQ(sample.Form.ExitCode(), ExitCode::None);
    EXPECT_EQ(Main, nullptr);
  }
  Main = std::make_unique<QWidget>();
  const QtHost::ParentForCalls parent(*Host, Main.get());
  Sample sample;
  later(go), ask(sample);
}

TEST_F(QtHostTest, EachCallHasItsParent) {
  QWidget active;
  active.show();
  // What a dialog and a message have from the window that they stand over.
  const auto expect = [&](const QWidget* over, const char* which) {
    for (const bool isMessage : {false, true}) {
      active.activateWindow();
      QApplication::processEvents();
      QTimer::singleShot(1, [&] {
        auto* window = QApplication::activeModalWidget();
        EXPECT_EQ(window->windowHandle()->transientParent(), over != nullptr ? over->windowHandle() : nullptr) << which;
        const bool isStyled = window->palette().color(QPalette::WindowText) == QColor(0x123456);
        EXPECT_EQ(isStyled, over != nullptr && over == Main.get()) << which;
        window->close();
      });
      Sample sample;
      sample.tmrClock.SetEnabled(false);
      isMessage ? static_cast<void>(sample.Form.ShowMessage("")) : sample.Form.ShowModal();
    }
  };
  expect(Main.get(), "the host's");
  {
    QWidget other;
    const QtHost::ParentForCalls parent(*Host, &other);
    other.show();
    expect(&other, "the call's");
  }
  expect(Main.get(), "the host's again");
  Main.reset();
  expect(&active, "the active one");
  active.hide();
  const auto fail = [] { ADD_FAILURE() << "a dialog is no window to quit with"; };
  QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &active, fail);
  QTimer::singleShot(0, [&] {
    expect(nullptr, "none");
    QCoreApplication::exit();
  });
  QApplication::exec();
}

TEST_F(QtHostTest, AnApplicationThatQuitsClosesTheDialog) {
  const std::function<void()> ways[] = {[] { QCoreApplication::exit(); }, [] { QApplication::quit(); },
                                        [this] { Main->close(); }};
  QGuiApplication::setQuitOnLastWindowClosed(true);
  for (const auto& quit : ways) {
    for (const bool asks : {false, true}) {
      Main->show();
      Sample sample;
      int answer = answers::No;
      sample.tmrClock.OnTimer = [&] {
        sample.tmrClock.SetEnabled(false);
        QTimer::singleShot(1, quit);
        if (asks) answer = sample.Form.ShowMessage("", Message::YesNo);
      };
      QTimer::singleShot(0, [&] { sample.Form.ShowModal(); });
      QApplication::exec();
      EXPECT_EQ(answer, answers::No);
      EXPECT_FALSE(sample.Form.IsShown());
    }
  }
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

TEST_F(QtHostTest, ACallWithinACallHasAWindowOfItsOwn) {
  Sample sample;
  sample.tmrClock.SetEnabled(false);
  const auto closeOnTop = [] { QApplication::activeModalWidget()->close(); };
  std::int32_t inner = -1;
  QTimer::singleShot(0, [&] {
    QTimer::singleShot(0, closeOnTop);
    Value code{"4000"};
    inner = clsZoneFunctionsWillow().Display(std::int16_t{5}, code);
    EXPECT_TRUE(sample.Form.IsShown());
    QTimer::singleShot(0, closeOnTop);
  });
  sample.Form.ShowModal();
  EXPECT_EQ(inner, 1);
}

}  // namespace
}  // namespace orlin::testing
