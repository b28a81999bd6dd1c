#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QMessageBox>
#include <QStyleOptionButton>
#include <QTextBrowser>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/host/form.h"
#include "OrlinCustomDialogs/hosts/qt/qt_host.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/security_levels.h"

#include "app/account/account.h"
#include "app/calls/installed_platform.h"
#include "qt/colours.h"
#include "qt/dialog_window.h"
#include "qt/help_line.h"
#include "qt/stand_over.h"

// What a technician sees and hears of every dialog of the example account.

namespace orlin::testing {
namespace {

/// As a screen reader says it: drop-down lists are named by a label alone, where the name is their text.
std::string NameOf(QWidget& widget) {
  const auto* heard = QAccessible::queryAccessibleInterface(&widget);
  if (heard->role() != QAccessible::ComboBox) return heard->text(QAccessible::Name).toStdString();
  for (const auto& [label, kind] : heard->relations(QAccessible::Label)) {
    if (label->role() == QAccessible::StaticText) return label->text(QAccessible::Name).toStdString();
  }
  return {};
}

/// Opens the dialogs and looks at each.
class Looker final : public DialogHost {
 public:
  using Look = std::function<void(const shown::Dialog&, DialogWindow&)>;

  explicit Looker(Look look) : look_(std::move(look)) {}
  [[nodiscard]] SizeInTwips Screen() const override { return {15360, 11520}; }
  void ShowModal(shown::Dialog& dialog) override {
    DialogWindow window(dialog, DialogWindow::Timers::Stand, nullptr);
    window.SetRoom({3840, 2160});
    window.Open();
    window.Settle();
    SCOPED_TRACE(dialog.Name());
    look_(dialog, window);
    dialog.Close();
  }
  int ShowMessage(const Message&) override { return answers::Ok; }
  void Beep() override {}

 private:
  Look look_;
};

/// Calls each class of the account, or the one, with the host.
void CallAll(std::shared_ptr<DialogHost> host, const std::string& only = {}, const SecurityLevels& levels = {}) {
  StandardPlatformOptions options;
  options.Host = std::move(host);
  const InstalledPlatform installed(StandardPlatform(options));
  const Account account(ORLIN_EXAMPLES "/account.json");
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    const auto& parameter = account.Parameters()[i];
    if (!only.empty() && parameter.Class->Name() != only) continue;
    SCOPED_TRACE(parameter.Name);
    auto arguments = parameter.Class->ArgumentsFrom(account.ValuesOf(i));
    if (levels.Count() > 0) arguments.back() = std::make_shared<SecurityLevels>(levels);
    static_cast<void>(parameter.Class->Display(arguments));
    if (!only.empty()) return;
  }
}

void LookAtAll(Looker::Look look, const std::string& only = {}, const SecurityLevels& levels = {}) {
  CallAll(std::make_shared<Looker>(std::move(look)), only, levels);
}

TEST(SeenAndHeard, EveryFieldHasANameOfItsOwnARoleAndItsHelp) {
  const std::map<ControlKind, QAccessible::Role> roles = {{ControlKind::Button, QAccessible::Button},
                                                          {ControlKind::CheckBox, QAccessible::CheckBox},
                                                          {ControlKind::TextBox, QAccessible::EditableText},
                                                          {ControlKind::OptionButton, QAccessible::RadioButton},
                                                          {ControlKind::ComboBox, QAccessible::ComboBox},
                                                          {ControlKind::ListBox, QAccessible::List},
                                                          {ControlKind::Grid, QAccessible::Table}};
  LookAtAll([&](const shown::Dialog& dialog, DialogWindow& window) {
    const auto form = FormOf(dialog);
    std::map<std::string, std::string> owners;
    for (const auto* control : dialog.Controls()) {
      if (!control->TakesFocus() || !control->IsShown()) continue;
      auto* widget = window.ViewOf(*control).Widget();
      const auto name = NameOf(*widget);
      EXPECT_NE(name, "") << control->Name();
      const auto [owner, isFirst] = owners.emplace(name, control->Name());
      EXPECT_TRUE(isFirst) << owner->second << " and " << control->Name() << " are both called " << name;
      const auto* heard = QAccessible::queryAccessibleInterface(widget);
      EXPECT_EQ(heard->role(), roles.at(control->Kind())) << control->Name();
      EXPECT_EQ(heard->state().disabled, !control->WithinReach()) << control->Name();
      const auto help = form.HelpFor(*control);
      EXPECT_EQ(heard->text(QAccessible::Description).toStdString(), help) << control->Name();
      EXPECT_TRUE(help != "" || control->Kind() == ControlKind::Button) << control->Name();
    }
    EXPECT_EQ(window.Foot().Text().toStdString(), form.HelpFor(*dialog.FocusedControl()));
    for (const auto& [field, label] : form.Labels) {
      EXPECT_TRUE(!field->IsShown() || window.ViewOf(*label).Widget()->isVisible() == label->IsShown());
    }
  });
}

TEST(SeenAndHeard, ALabelIsSeenWithItsFieldAlone) {
  LookAtAll(
      [](const shown::Dialog& dialog, DialogWindow& window) {
        const auto seen = [&](const char* name) { return window.ViewOf(*dialog.Find(name)).Widget()->isVisible(); };
        EXPECT_TRUE(seen("Label1(1)"));
        EXPECT_TRUE(dialog.Find("Label1(2)")->Visible());
        EXPECT_FALSE(seen("Label1(2)"));
        window.Do([&] { return dialog.Find("List1")->AsRowList()->PickRow(11); });
        EXPECT_TRUE(seen("Label1(2)"));
      },
      "clsSkedFunc_Rowan");
}

TEST(SeenAndHeard, TheListsAndTablesTakeWhatAWindowGrows) {
  LookAtAll([](const shown::Dialog& dialog, DialogWindow& window) {
    constexpr int more = 200;
    const auto height = [&] {
      int all = 0;
      for (const auto* control : dialog.Controls()) {
        auto* area = qobject_cast<QAbstractScrollArea*>(window.ViewOf(*control).Widget());
        if (area != nullptr && area->isVisible()) all = std::max(all, area->height());
      }
      return all;
    };
    const bool isFixed = window.minimumSize() == window.maximumSize();
    const int before = height();
    EXPECT_EQ(isFixed, before == 0);
    if (isFixed) return;
    window.resize(window.size() + QSize(0, more));
    QApplication::processEvents();
    // Texts above each other share it.
    EXPECT_GE(height(), before + more / 2 - 1);
  });
}

TEST(SeenAndHeard, F1ShowsThePageOfTheClass) {
  int pages = 0;
  LookAtAll([&](const shown::Dialog& dialog, DialogWindow& window) {
    QTimer::singleShot(0, [&] {
      auto* page = QApplication::activeModalWidget()->findChild<QTextBrowser*>();
      ASSERT_NE(page, nullptr) << dialog.Name();
      EXPECT_NE(page->toPlainText().indexOf(QString::fromStdString(dialog.Name())), -1);
      EXPECT_EQ(page->toPlainText().left(3), "cls");
      ++pages;
      QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
      QApplication::sendEvent(page, &escape);
    });
    QKeyEvent help(QEvent::KeyPress, Qt::Key_F1, {});
    QApplication::sendEvent(&window.KeyTarget(), &help);
    EXPECT_TRUE(dialog.IsShown());
  });
  EXPECT_GT(pages, 40);
}

TEST(SeenAndHeard, WhatIsDisabledTellsWhyAlsoToTheMouse) {
  const auto expect = [](const char* control, const char* why) {
    return [=](const shown::Dialog& dialog, DialogWindow& window) {
      auto* widget = window.ViewOf(*dialog.Find(control)).Widget();
      EXPECT_FALSE(widget->isEnabled());
      QHelpEvent hover(QEvent::ToolTip, {2, 2}, widget->mapToGlobal(QPoint(2, 2)));
      QApplication::sendEvent(widget, &hover);
      EXPECT_TRUE(QToolTip::text().endsWith(why)) << QToolTip::text().toStdString();
      QToolTip::hideText();
    };
  };
  LookAtAll(expect("cmbAlarm", "Not available with the present choices."), "clsAltCommConfiguration");
  SecurityLevels levels;
  levels.Add("AuthorityLevel", 5, 1);
  levels.Add("Type", 1, 5);
  LookAtAll(expect("cmbType", "Your rights do not allow changing it."), "clsZoneFunctionsBirch", levels);
}

TEST(SeenAndHeard, MarksGrowWithTheLetters) {
  const auto font = QApplication::font();
  auto large = font;
  large.setPointSizeF(font.pointSizeF() * 2);
  QApplication::setFont(large);
  LookAtAll(
      [](const shown::Dialog& dialog, DialogWindow& window) {
        for (const char* name : {"optDate", "chkTimeEdit"}) {
          auto* mark = window.ViewOf(*dialog.Find(name)).Widget();
          const auto kind = name[0] == 'o' ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator;
          QStyleOptionButton option;
          option.initFrom(mark);
          EXPECT_GE(mark->style()->subElementRect(kind, &option, mark).height(), mark->fontMetrics().ascent()) << name;
        }
      },
      "clsSkedFunc_WillowDuo");
  QApplication::setFont(font);
}

TEST(SeenAndHeard, TextsMarksAndOutlinesStandOutInLightAndDark) {
  QPalette dark(QColor(45, 45, 48));
  dark.setColor(QPalette::Base, QColor(68, 68, 72));
  dark.setColor(QPalette::Highlight, QColor(53, 132, 228));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  QPalette light(QColor(239, 239, 239));
  light.setColor(QPalette::Highlight, QColor(48, 140, 198));
  light.setColor(QPalette::HighlightedText, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    dark.setColor(role, QColor(235, 235, 235));
    for (auto* palette : {&dark, &light}) palette->setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  for (const auto& given : {light, dark}) {
    const auto palette = Legible(given);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      const auto colour = [&](QPalette::ColorRole role) { return palette.color(group, role); };
      for (const auto& [text, ground] :
           {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
            std::pair(QPalette::ButtonText, QPalette::Button),
            std::pair(QPalette::HighlightedText, QPalette::Highlight)}) {
        EXPECT_GE(Contrast(colour(text), colour(ground)), 4.5) << group << ' ' << text;
      }
      EXPECT_GE(Contrast(Mark(palette, group), colour(QPalette::Base)), 3);
    }
    for (const auto ground : {QPalette::Window, QPalette::Base}) {
      EXPECT_GE(Contrast(Outline(Outlined(palette)), palette.color(ground)), 3);
      EXPECT_GE(Contrast(MarkOutline(Outlined(palette)), palette.color(ground)), 3);
    }
  }
}

TEST(SeenAndHeard, AMessageLeavesTheFieldThatItIsAboutUncovered) {
  const QRect screen(0, 0, 1000, 700);
  const QSize box(300, 150);
  const struct {
    const char* Where;
    QRect Window, Field;
  } cases[] = {{"right", {100, 100, 400, 300}, {150, 150, 80, 20}},
               {"below", {100, 100, 800, 300}, {150, 150, 80, 20}},
               {"left", {400, 0, 590, 690}, {450, 150, 80, 20}},
               {"beside the field", {0, 0, 1000, 700}, {150, 150, 80, 20}},
               {"below a wide field", {0, 0, 1000, 700}, {10, 10, 900, 20}},
               {"above a wide field", {0, 0, 1000, 700}, {10, 650, 900, 20}}};
  for (const auto& [where, window, field] : cases) {
    const QRect place(PlaceBeside(field, window, box, screen), box);
    EXPECT_TRUE(screen.contains(place)) << where;
    EXPECT_FALSE(place.intersects(field)) << where;
    const bool besideWindow = !where[0] || std::string(where).find("field") == std::string::npos;
    EXPECT_EQ(place.intersects(window), !besideWindow) << where;
  }
}

TEST(SeenAndHeard, TheBoxOfARefusalStandsBesideTheFocus) {
  int seen = 0;
  QTimer::singleShot(0, [] {
    auto* window = dynamic_cast<DialogWindow*>(QApplication::activeModalWidget());
    const auto press = [&](int key, const QString& text) {
      QKeyEvent event(QEvent::KeyPress, key, {}, text);
      QApplication::sendEvent(&window->KeyTarget(), &event);
    };
    for (int digit = 0; digit < 12; ++digit) press(Qt::Key_9, "9");
    press(Qt::Key_Return, {});
  });
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* shown = QApplication::activeModalWidget();
    if (const auto* box = qobject_cast<QMessageBox*>(shown)) {
      const auto field = dynamic_cast<DialogWindow&>(*box->parentWidget()).FieldAtHand();
      EXPECT_FALSE(field.isEmpty());
      EXPECT_FALSE(box->geometry().intersects(field));
      ++seen;
    }
    if (shown != nullptr) shown->close();
  });
  look.start(20);
  CallAll(std::make_shared<QtHost>(), "clsWirelessPointID");
  EXPECT_EQ(seen, 1);
}

}  // namespace
}  // namespace orlin::testing
