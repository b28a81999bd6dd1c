#include <QtWidgets>
#include <stdexcept>

#include "OrlinCustomDialogs/host/texts.h"
#include "OrlinCustomDialogs/hosts/qt/qt_host.h"
#include "OrlinCustomDialogs/zones.h"

#include "qt/colours.h"
#include "qt/dialog_window.h"
#include "qt/key_events.h"
#include "support/frame_fixture.h"
#include "support/sample_dialog.h"

namespace orlin::testing {
namespace {

/// Shows a dialog with every kind of control in a window, and plays a function in front of it.
class WindowsTest : public FrameTest, public OperatorHost {
 protected:
  WindowsTest() { UseHost({std::shared_ptr<void>(), this}); }

  void Show(const std::function<void()>& play) {
    Operate = [&](shown::Dialog&) { play(); };
    its.Form.ShowModal();
  }
  void ShowModal(shown::Dialog& dialog) override {
    DialogWindow window(dialog, DialogWindow::Timers::Stand, nullptr);
    Window = &window;
    window.Open();
    Operate(dialog);
    Window = nullptr;
    if (dialog.IsShown()) dialog.Close();
  }

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
  Sample its;
};

TEST_F(WindowsTest, NoWayIntoATextBoxGoesAroundItsKeys) {
  // Capitals only; "!" is refused.
  its.txtName.KeyPress = [](int& key) {
    if (key == '!') key = 0;
    if (key >= 'a' && key <= 'z') key -= 'a' - 'A';
  };
  its.txtName.SetText("");
  Show([&] {
    auto& field = Of<QLineEdit>(its.txtName);
    const auto expect = [&](const char* text, const char* way) {
      EXPECT_EQ(its.txtName.Text(), text) << way;
      EXPECT_EQ(field.text().toStdString(), text) << way;
    };
    Type("a!b");
    expect("AB", "typing");
    QApplication::clipboard()->setText("c!defg");
    Press(Qt::Key_V, {}, Qt::ControlModifier);
    expect("ABCDE", "pasting");
    Press(Qt::Key_Z, {}, Qt::ControlModifier);
    expect("ABCDE", "undoing");
    const auto caret = [&] { return field.inputMethodQuery(Qt::ImCursorRectangle).toRect().x(); };
    const int before = caret();
    QInputMethodEvent composing("xyz", {});
    QApplication::sendEvent(&field, &composing);
    expect("ABCDE", "composing with an input method");
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
  Show([&] {
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
  Show([&] {
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
  Show([&] {
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
  its.txtName.SetText("12");
  Show([&] {
    EXPECT_TRUE(Window->testAttribute(Qt::WA_KeyboardFocusChange)) << "the focus is seen";
    EXPECT_FALSE(Of<QLineEdit>(its.txtName).hasSelectedText()) << "as the window opens";
    std::string order;
    for (int i = 0; i < 15; ++i) {
      order += its.Form.FocusedControl()->Name() + " ";
      EXPECT_EQ(&Window->KeyTarget(), Window->ViewOf(*its.Form.FocusedControl()).KeyboardWidget());
      Press(Qt::Key_Tab);
    }
    EXPECT_EQ(order,
              "txtName cmbPick cmbEdit txtLines txtLocked optA txtHour chkOn lstOne lstMany lstChecks grdTable cmdAsk "
              "cmdFail cmdOK ");
    EXPECT_TRUE(Of<QPushButton>(its.cmdCancel).isDefault()) << "Enter presses it";
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(its.Form.FocusedControl(), &its.cmdOK);
    its.txtName.Focus();
    Press(Qt::Key_Tab);
    Press(Qt::Key_Backtab, {}, Qt::ShiftModifier);
    EXPECT_EQ(Of<QLineEdit>(its.txtName).selectedText(), "12");
    EXPECT_EQ(its.txtName.SelLength(), 2);
    Press(Qt::Key_B, "b", Qt::AltModifier);
    EXPECT_TRUE(Of<QAbstractButton>(its.optB).isChecked());
    Press(Qt::Key_O, "o", Qt::AltModifier);
    EXPECT_TRUE(Of<QAbstractButton>(its.chkOn).isChecked());
    Press(Qt::Key_Escape);
    EXPECT_EQ(its.Form.ExitCode(), ExitCode::Cancel);
  });
}

TEST_F(WindowsTest, ScreenReadersHearLabelsAndRoles) {
  Show([&] {
    const std::tuple<const shown::Control*, const char*, QAccessible::Role> expected[] = {
        {&its.txtName, "Name", QAccessible::EditableText},   {&its.cmbPick, "Pick", QAccessible::ComboBox},
        {&its.txtLines, "Lines", QAccessible::EditableText}, {&its.txtHour, "Mode", QAccessible::EditableText},
        {&its.chkOn, "On", QAccessible::CheckBox},           {&its.optA, "A", QAccessible::RadioButton},
        {&its.fraMode, "Mode", QAccessible::Grouping},       {&its.cmdOK, "OK", QAccessible::Button}};
    for (const auto& [control, name, role] : expected) {
      const auto* told = QAccessible::queryAccessibleInterface(&Of<QWidget>(*control));
      EXPECT_EQ(told->text(QAccessible::Name).toStdString(), name);
      EXPECT_EQ(told->role(), role) << name;
    }
    its.lblName.SetCaption("Other:");
    Window->Present();
    EXPECT_EQ(Of<QWidget>(its.txtName).accessibleName(), "Other");
  });
}

TEST_F(WindowsTest, FixedTextsAreReadInTheOperatorsLanguage) {
  static constexpr FixedText words[] = {{"N/A", 1}};
  struct {
    Dialog Form{"frmFixed", {"Title", 2}, {}};
    Frame fraAll{Form, "fraAll", {"Frame", 2}};
    Label lblRows{fraAll, "lblRows", {"&Rows:", 3}};
    ListBox lstRows{fraAll, "lstRows", {.Common = {.Fixed = words}}};
    ComboBox cmbRows{Form, "cmbRows", {.Common = {.Fixed = words}}};
    TextBox txtRow{Form, "txtRow", {.Text = "N/A", .Common = {.Fixed = words}}};
    Grid grdRows{Form, "grdRows", {.Rows = 1, .Cols = 1, .Common = {.Fixed = words}}};
    Button cmdGo{Form, "cmdGo", {"Go", 2}};
  } fixed;
  UseHost({std::shared_ptr<void>(), this},
          {{1, "entf\u00E4llt"}, {2, "Titel"}, {3, "&Zeilen:"}, {texts::Copy, "&Kopieren"}});
  fixed.lstRows.AddItem("N/A"), fixed.cmbRows.AddItem("N/A"), fixed.grdRows.SetCellText(0, 0, "N/A");
  Operate = [&](shown::Dialog&) {
    const QString word = QStringLiteral("entf\u00E4llt"), title = QStringLiteral("Titel");
    EXPECT_EQ(Window->windowTitle(), title);
    EXPECT_EQ(Of<QGroupBox>(fixed.fraAll).title(), title);
    EXPECT_EQ(Of<QLabel>(fixed.lblRows).text(), "&Zeilen:");
    EXPECT_EQ(Of<QWidget>(fixed.lstRows).accessibleName(), "Zeilen");
    EXPECT_EQ(Of<QAbstractItemView>(fixed.lstRows).model()->index(0, 0).data(), word);
    EXPECT_EQ(Of<QComboBox>(fixed.cmbRows).itemText(0), word);
    EXPECT_EQ(Of<QLineEdit>(fixed.txtRow).text(), word);
    EXPECT_EQ(Of<QAbstractItemView>(fixed.grdRows).model()->index(0, 0).data(), word);
    EXPECT_EQ(Of<QPushButton>(fixed.cmdGo).text(), title);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {}, {});
    QApplication::sendEvent(&Of<QLineEdit>(fixed.txtRow), &event);
    const auto* menu = Of<QLineEdit>(fixed.txtRow).findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().at(1)->text(), "&Kopieren");
    EXPECT_EQ(menu->actions().at(2)->text(), "&Paste");
  };
  fixed.Form.ShowModal();
}

TEST_F(WindowsTest, HiddenPartsLeaveNoHoles) {
  Show([&] {
    const int before = Window->sizeHint().height();
    const int between = Of<QWidget>(its.chkOn).y() - Of<QWidget>(its.fraMode).y();
    its.fraMode.SetVisible(false);
    Window->Present();
    EXPECT_EQ(Window->sizeHint().height(), before - between);
  });
}

TEST_F(WindowsTest, NoTextIsClippedAtAnyFontSize) {
  for (auto* list : {&its.cmbPick, &its.cmbEdit}) list->AddItem("a third one that is much longer than the others");
  const auto font = QApplication::font();
  for (const double scale : {1.0, 2.0}) {
    auto scaled = font;
    scaled.setPointSizeF(font.pointSizeF() * scale);
    QApplication::setFont(scaled);
    Show([&] {
      for (const auto* widget : Window->findChildren<QWidget*>()) {
        const auto* list = qobject_cast<const QComboBox*>(widget);
        const bool hasText = qobject_cast<const QLabel*>(widget) != nullptr || list != nullptr ||
                             qobject_cast<const QAbstractButton*>(widget) != nullptr;
        if (!hasText || !widget->isVisible() || qobject_cast<const QToolButton*>(widget) != nullptr) continue;
        EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->metaObject()->className();
        EXPECT_GE(widget->height(), widget->sizeHint().height()) << widget->metaObject()->className();
        if (list == nullptr) continue;
        EXPECT_GT(list->width(), list->fontMetrics().horizontalAdvance(list->itemText(2)));
      }
    });
  }
  QApplication::setFont(font);
}

TEST_F(WindowsTest, ADialogLargerThanTheScreenScrollsAndKeepsItsButtons) {
  its.chkOn.SetCaption(std::string(400, 'W'));
  Show([&] {
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
    UseHost(Host, {{texts::No, "&Nein"}});
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
  sample.tmrClock.OnTimer = [&] {
    sample.txtName.SetText("new");
    QTimer::singleShot(1, [] {
      auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
      EXPECT_EQ(box.parentWidget()->findChild<QLineEdit*>()->text(), "new");
      EXPECT_EQ(box.text(), "Sure?");
      EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
      EXPECT_EQ(box.button(QMessageBox::No)->text(), "&Nein") << "in the language of the message";
      EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Yes") << "which the catalogue lacks";
      box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(sample.Form.ShowMessage("Sure?", Message::YesNo, "Title"), answers::No);
    sample.Form.Hide();
  };
  sample.Form.ShowModal();
}

TEST_F(QtHostTest, AParentThatGoesClosesTheDialog) {
  const auto shown = [] { return QApplication::activeModalWidget(); };
  const auto later = [](auto what) { QTimer::singleShot(1, what); };
  const auto go = [&] { Main.reset(); };
  const auto ask = [](Sample& its) { EXPECT_EQ(its.Form.ShowMessage("Sure?", Message::YesNo), answers::No); };
  const std::pair<const char*, std::function<void(Sample&)>> ways[] = {
      {"between handlers", [&](Sample&) { later(go); }},
      {"in a handler, which asks then", [&](Sample& its) { go(), ask(its), ask(its); }},
      {"while a handler asks, twice", [&](Sample& its) { later(go), ask(its), ask(its); }},
      {"while a dialog of the handler is shown",
       [&](Sample&) {
         Sample inner;
         inner.tmrClock.SetEnabled(false);
         later(go), inner.Form.ShowModal();
       }},
      {"in a handler that throws", [&](Sample&) { go(), throw std::runtime_error("the host"); }},
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
  for (const auto& [when, handler] : ways) {
    SCOPED_TRACE(when);
    Main = std::make_unique<QWidget>();
    const QtHost::ParentForCalls parent(*Host, new QWidget(Main.get()));
    Sample sample;
    bool ends = false;
    sample.tmrClock.OnTimer = [&, &handle = handler] {
      sample.tmrClock.SetEnabled(false);
      handle(sample);
      ends = true;
    };
    try {
      sample.Form.ShowModal();
      EXPECT_TRUE(ends) << "a handler runs to its end";
    } catch (const std::runtime_error&) {
      EXPECT_FALSE(ends);
    }
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
