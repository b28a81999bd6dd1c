#include "frame/controls.h"

#include "support/frame_fixture.h"

// What each kind of control does when code sets it and when the operator uses it: the state, and the events in order.

namespace orlin::testing {
namespace {

class ControlsTest : public FrameTest {
 protected:
  ControlsTest() {
    cmdPress.Click = [this] { Note("cmdPress_Click"); };
    chkOn.Click = [this] { Note("chkOn_Click"); };
    optA.Click = [this] { Note("optA_Click"); };
    optB.Click = [this] { Note("optB_Click"); };
    txtFree.Change = [this] { Note("txtFree_Change " + txtFree.Text()); };
    cmbDrop.Click = [this] { Note("cmbDrop_Click"); };
    cmbEdit.Click = [this] { Note("cmbEdit_Click"); };
    cmbEdit.Change = [this] { Note("cmbEdit_Change " + cmbEdit.Text()); };
    lstOne.Click = [this] { Note("lstOne_Click"); };
    lstMany.Click = [this] { Note("lstMany_Click"); };
    lstChecks.ItemCheck = [this](int row) { Note("lstChecks_ItemCheck " + std::to_string(row)); };
    udTied.Change = [this] { Note("udTied_Change " + std::to_string(udTied.Value())); };
    udTied.UpClick = [this] { Note("udTied_UpClick"); };
    udTied.DownClick = [this] { Note("udTied_DownClick"); };
    txtTied.Change = [this] { Note("txtTied_Change"); };
    Timer1.OnTimer = [this] { Note("Timer1_Timer"); };
    for (auto* list : std::initializer_list<ListBox*>{&lstOne, &lstMany, &lstChecks}) {
      for (const char* row : {"a", "b", "c"}) list->AddItem(row);
    }
    for (auto* list : {&cmbDrop, &cmbEdit}) {
      for (const char* row : {"a", "b", "c"}) list->AddItem(row);
    }
    Happened().clear();
  }

  Log& Happened() { return Host->Happened; }
  void Note(const std::string& what) { Happened().push_back(what); }

  /// What happens while code or the operator does something in the shown dialog.
  Log During(const std::function<void()>& action) {
    Log log;
    Host->Operate = [&](shown::Dialog&) {
      Happened().clear();
      action();
      log = Happened();
    };
    Form.ShowModal();
    return log;
  }

  Dialog Form{"frmTest", "", {}};
  Button cmdPress{Form, "cmdPress"};
  CheckBox chkOn{Form, "chkOn"};
  Frame fraOptions{Form, "fraOptions"};
  OptionButton optA{fraOptions, "optA"};
  OptionButton optB{fraOptions, "optB"};
  OptionButton optElsewhere{Form, "optElsewhere", "", {.Value = true}};
  TextBox txtFree{Form, "txtFree"};
  ComboBox cmbDrop{Form, "cmbDrop"};
  ComboBox cmbEdit{Form, "cmbEdit", {.HasEditField = true}};
  ListBox lstOne{Form, "lstOne"};
  ListBox lstMany{Form, "lstMany", {.Choice = shown::Choice::Many}};
  ListBox lstChecks{Form, "lstChecks", {.Choice = shown::Choice::Checks}};
  TextBox txtTied{Form, "txtTied", {.Text = "1"}};
  UpDown udTied{Form, "udTied", {.Min = 1, .Max = 24, .Buddy = &txtTied}};
  StatusBar StatusBar1{Form, "StatusBar1"};
  Timer Timer1{Form, "Timer1", {.Interval = 100}};
};

TEST_F(ControlsTest, FireTheirEventsForCodeAndForTheOperator) {
  using Events = Log;
  const struct {
    const char* Name;
    std::function<void()> Before;
    std::function<void()> Action;
    Events Expected;
  } cases[] = {
      {"a check box that code changes", {}, [&] { chkOn.SetValue(1); }, {"chkOn_Click"}},
      {"one that stands so", {}, [&] { chkOn.SetValue(0); }, {}},
      {"one that the operator toggles", {}, [&] { chkOn.Press(); }, {"chkOn_Click"}},
      {"an option that code selects", {}, [&] { optA.SetValue(true); }, {"optA_Click"}},
      {"one that stands so", [&] { optA.SetValue(true); }, [&] { optA.SetValue(true); }, {}},
      {"one that is cleared by another", [&] { optA.SetValue(true); }, [&] { optB.SetValue(true); }, {"optB_Click"}},
      {"one that code clears", [&] { optA.SetValue(true); }, [&] { optA.SetValue(false); }, {}},
      {"one that the operator presses again", [&] { optA.SetValue(true); }, [&] { optA.Press(); }, {"optA_Click"}},
      {"a text that code changes", {}, [&] { txtFree.SetText("x"); }, {"txtFree_Change x"}},
      {"a text that stands so", [&] { txtFree.SetText("x"); }, [&] { txtFree.SetText("x"); }, {}},
      {"a drop-down list set by code", {}, [&] { cmbDrop.SetListIndex(1); }, {"cmbDrop_Click"}},
      {"also to the row that stands",
       [&] { cmbDrop.SetListIndex(1); },
       [&] { cmbDrop.SetListIndex(1); },
       {"cmbDrop_Click"}},
      {"and to none", {}, [&] { cmbDrop.SetListIndex(-1); }, {"cmbDrop_Click"}},
      {"a row that the operator picks", {}, [&] { cmbDrop.PickRow(2); }, {"cmbDrop_Click"}},
      {"the row that stands already", [&] { cmbDrop.SetListIndex(1); }, [&] { cmbDrop.PickRow(1); }, {}},
      {"clearing a list", [&] { cmbDrop.SetListIndex(1); }, [&] { cmbDrop.Clear(); }, {}},
      {"a combo box set by code", {}, [&] { cmbEdit.SetListIndex(1); }, {"cmbEdit_Click"}},
      {"a combo box picked by the operator", {}, [&] { cmbEdit.PickRow(1); }, {"cmbEdit_Change b", "cmbEdit_Click"}},
      {"picked with its text in the field",
       [&] { cmbEdit.SetText("b"); },
       [&] { cmbEdit.PickRow(1); },
       {"cmbEdit_Click"}},
      {"a list box set by code", {}, [&] { lstOne.SetListIndex(1); }, {"lstOne_Click"}},
      {"to the row that stands", [&] { lstOne.SetListIndex(1); }, [&] { lstOne.SetListIndex(1); }, {}},
      {"a row of many", {}, [&] { lstMany.MarkRow(1, true); }, {"lstMany_Click"}},
      {"a row of many as it stands", {}, [&] { lstMany.MarkRow(1, false); }, {}},
      {"a check mark", {}, [&] { lstChecks.MarkRow(2, true); }, {"lstChecks_ItemCheck 2"}},
      {"a check mark by code", {}, [&] { lstChecks.SetSelected(0, true); }, {"lstChecks_ItemCheck 0"}},
      {"an up-down set by code", {}, [&] { udTied.SetValue(5); }, {"udTied_Change 5"}},
      {"a step", {}, [&] { udTied.Step(shown::UpDown::Direction::Up); }, {"udTied_Change 2", "udTied_UpClick"}},
      {"a step at the limit", {}, [&] { udTied.Step(shown::UpDown::Direction::Down); }, {"udTied_DownClick"}},
      {"a tick", {}, [&] { Timer1.Tick(); }, {"Timer1_Timer"}},
      {"a tick of a timer that is off", [&] { Timer1.SetEnabled(false); }, [&] { Timer1.Tick(); }, {}},
  };
  for (const auto& one : cases) {
    chkOn.SetValue(0), optA.SetValue(false), optB.SetValue(false), txtFree.SetText("");
    if (cmbDrop.ListCount() == 0) cmbDrop.AddItem("a"), cmbDrop.AddItem("b"), cmbDrop.AddItem("c");
    cmbDrop.SetListIndex(-1), cmbEdit.SetListIndex(-1), lstOne.SetListIndex(-1);
    for (int row = 0; row < 3; ++row) lstMany.SetSelected(row, false), lstChecks.SetSelected(row, false);
    udTied.SetValue(1), Timer1.SetEnabled(true);
    if (one.Before) one.Before();
    EXPECT_EQ(During(one.Action), one.Expected) << one.Name;
  }
}

TEST_F(ControlsTest, RefuseValuesThatTheyCannotTake) {
  constexpr auto kInvalid = failures::InvalidPropertyValue;
  EXPECT_EQ(FailureOf([&] { chkOn.SetValue(2); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { cmbDrop.SetListIndex(3); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { cmbDrop.SetListIndex(-2); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { cmbDrop.SelectRow(-1); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { lstOne.SetListIndex(3); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { lstMany.SetSelected(3, true); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { static_cast<void>(lstOne.ItemData(3)); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { udTied.SetValue(25); }), kInvalid);
  EXPECT_EQ(FailureOf([&] { udTied.SetValue(0); }), kInvalid);
  EXPECT_TRUE(Happened().empty());
}

TEST_F(ControlsTest, ListsKeepRowsNumbersAndSelection) {
  lstOne.SetListIndex(1);
  lstOne.InsertItem("top", 0);
  EXPECT_EQ(lstOne.ListIndex(), 2);
  EXPECT_EQ(lstOne.NewIndex(), 0);
  lstOne.AddItem("d", 7);
  EXPECT_EQ(lstOne.ItemData(4), 7);
  EXPECT_EQ(lstOne.List(0), "top");
  EXPECT_EQ(lstOne.List(9), "");
  lstOne.Clear();
  EXPECT_EQ(lstOne.ListCount(), 0);
  EXPECT_EQ(lstOne.ListIndex(), -1);
}

TEST_F(ControlsTest, UpDownTakesUpTheNumberInItsBox) {
  using Direction = shown::UpDown::Direction;
  const struct {
    const char* Text;
    Direction To;
    std::int16_t Value;
  } cases[] = {{"7", Direction::Up, 8},     {"7", Direction::Down, 6}, {"24", Direction::Up, 24},
               {"99", Direction::Down, 23}, {"", Direction::Up, 11},   {"x", Direction::Up, 2}};
  for (const auto& one : cases) {
    udTied.SetValue(1), udTied.SetValue(10);
    txtTied.SetText(one.Text);
    const auto events = During([&] { udTied.Step(one.To); });
    EXPECT_EQ(udTied.Value(), one.Value) << one.Text;
    EXPECT_EQ(txtTied.Text(), std::to_string(one.Value));
    EXPECT_EQ(std::count(events.begin(), events.end(), "txtTied_Change"), 0);
    EXPECT_FALSE(udTied.HasFocus());
  }
}

TEST_F(ControlsTest, KeysPickRowsInAListWithTheFocus) {
  for (int row = 3; row < 30; ++row) lstOne.AddItem(std::to_string(row)), cmbDrop.AddItem(std::to_string(row));
  const struct {
    int From;
    int Key;
    int To;
  } cases[] = {{-1, keys::Down, 0},      {0, keys::Up, 0},     {5, keys::Up, 4},   {5, keys::Down, 6},
               {29, keys::Down, 29},     {5, keys::Home, 0},   {5, keys::End, 29}, {5, keys::PageDown, 15},
               {25, keys::PageDown, 29}, {5, keys::PageUp, 0}, {5, keys::Left, 5}, {5, keys::Space, 5}};
  for (const auto& one : cases) {
    lstOne.SetListIndex(one.From), cmbDrop.SetListIndex(one.From);
    const auto inList = During([&] { lstOne.Focus(), Form.PressKey(Key::Named(one.Key)); });
    const auto inCombo = During([&] { cmbDrop.Focus(), Form.PressKey(Key::Named(one.Key)); });
    EXPECT_EQ(lstOne.ListIndex(), one.To);
    EXPECT_EQ(cmbDrop.ListIndex(), one.To);
    EXPECT_EQ(inList.size(), one.From == one.To ? 0U : 1U);
    EXPECT_EQ(inCombo, one.From == one.To ? Log() : Log{"cmbDrop_Click"});
  }
}

TEST_F(ControlsTest, SpaceAndArrowsWorkButtonsAndMarks) {
  EXPECT_EQ(During([&] { cmdPress.Focus(), Form.PressKey(Key::Typing(U' ')); }), Log{"cmdPress_Click"});
  EXPECT_EQ(During([&] { chkOn.Focus(), Form.PressKey(Key::Typing(U' ')); }), Log{"chkOn_Click"});
  EXPECT_EQ(During([&] { optA.Press(), Form.PressKey(Key::Named(keys::Up)); }), (Log{"optA_Click", "optB_Click"}));
  EXPECT_TRUE(optB.HasFocus());
  EXPECT_TRUE(optElsewhere.Value()) << "another container";
  EXPECT_EQ(During([&] { lstChecks.Focus(), Form.PressKey(Key::Named(keys::Down)), Form.PressKey(Key::Typing(U' ')); }),
            Log{"lstChecks_ItemCheck 0"});
  EXPECT_TRUE(lstChecks.Selected(0));
}

TEST_F(ControlsTest, AreOutOfReachWhereTheyOrTheirFrameAreHiddenOrDisabled) {
  During([&] {
    EXPECT_FALSE(optA.Press());
    fraOptions.SetEnabled(false);
    EXPECT_EQ(optA.Press(), "optA is disabled");
    EXPECT_TRUE(optA.Enabled());
    fraOptions.SetVisible(false);
    EXPECT_EQ(optB.Focus(), "optB is hidden");
    txtFree.SetEnabled(false);
    EXPECT_EQ(txtFree.Paste("x"), "txtFree is disabled");
    EXPECT_EQ(cmbDrop.PickRow(3), "cmbDrop has no row 3");
    EXPECT_TRUE(lstMany.PickRow(0));
    EXPECT_TRUE(lstOne.MarkRow(0, true));
    EXPECT_TRUE(cmbDrop.SetCaret(0, 0));
    EXPECT_TRUE(udTied.Focus());
    EXPECT_TRUE(StatusBar1.Press());
  });
  EXPECT_EQ(cmdPress.Press(), "the dialog is not shown");
  EXPECT_FALSE(optB.Value());
}

}  // namespace
}  // namespace orlin::testing
