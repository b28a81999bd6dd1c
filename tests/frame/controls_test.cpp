#include "form_fixture.h"
#include "frame/controls/all_controls.h"

// What each kind of control does when code sets it and when the operator uses it: the state, and the events in order.

namespace orlin::testing {
namespace {

class ControlsTest : public FormTest {
 protected:
  ControlsTest() {
    const auto note = [this](const char* what) { return [this, what] { Note(what); }; };
    cmdPress.Click = note("cmdPress_Click"), chkOn.Click = note("chkOn_Click"), Timer1.OnTimer = note("Timer1_Timer");
    optA.Click = note("optA_Click"), optB.Click = note("optB_Click");
    cmbDrop.Click = note("cmbDrop_Click"), cmbEdit.Click = note("cmbEdit_Click");
    lstOne.Click = note("lstOne_Click"), lstMany.Click = note("lstMany_Click");
    udTied.UpClick = note("udTied_UpClick"), udTied.DownClick = note("udTied_DownClick");
    udFollowing.DownClick = note("udFollowing_DownClick");
    txtTied.Change = note("txtTied_Change"), txtFree.Change = [this] { Note("txtFree_Change " + txtFree.Text()); };
    cmbEdit.Change = [this] { Note("cmbEdit_Change " + cmbEdit.Text()); };
    lstChecks.ItemCheck = [this](int row) { Note("lstChecks_ItemCheck " + std::to_string(row)); };
    udTied.Change = [this] { Note("udTied_Change " + std::to_string(udTied.Value())); };
    for (const char* row : {"a", "b", "c"}) {
      lstOne.AddItem(row), lstMany.AddItem(row), lstChecks.AddItem(row), cmbDrop.AddItem(row), cmbEdit.AddItem(row);
    }
    Host->Happened.clear();
  }

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
  TextBox txtFollowed{Form, "txtFollowed", {.Text = "3"}};
  UpDown udFollowing{Form, "udFollowing", {.Min = 1, .Max = 24, .Buddy = &txtFollowed, .FollowsBuddy = true}};
  StatusBar StatusBar1{Form, "StatusBar1"};
  Timer Timer1{Form, "Timer1", {.Interval = 100}};
};

TEST_F(ControlsTest, FireTheirEventsForCodeAndForTheOperator) {
  using Direction = shown::Direction;
  // One after another, each from where the one before left the controls.
  const std::pair<std::function<void()>, Log> steps[] = {
      {[&] { chkOn.SetValue(0), chkOn.SetValue(1); }, {"chkOn_Click"}},
      {[&] { chkOn.Press(); }, {"chkOn_Click"}},
      {[&] { optA.SetValue(true), optA.SetValue(true); }, {"optA_Click"}},
      {[&] { optA.Press(); }, {"optA_Click"}},
      {[&] { optB.SetValue(true), optB.SetValue(false); }, {"optB_Click"}},
      {[&] { txtFree.SetText("x"), txtFree.SetText("x"); }, {"txtFree_Change x"}},
      {[&] { cmbDrop.SetListIndex(1), cmbDrop.SetListIndex(1); }, {"cmbDrop_Click", "cmbDrop_Click"}},
      {[&] { cmbDrop.PickRow(1); }, {}},
      {[&] { cmbDrop.PickRow(2); }, {"cmbDrop_Click"}},
      {[&] { cmbDrop.SetListIndex(-1); }, {"cmbDrop_Click"}},
      {[&] { cmbDrop.SelectRow(1), cmbDrop.Clear(); }, {"cmbDrop_Click"}},
      {[&] { cmbEdit.SetListIndex(0); }, {"cmbEdit_Click"}},
      {[&] { cmbEdit.PickRow(1); }, {"cmbEdit_Change b", "cmbEdit_Click"}},
      {[&] { cmbEdit.SetText("c"), cmbEdit.PickRow(2); }, {"cmbEdit_Change c", "cmbEdit_Click"}},
      {[&] { lstOne.SetListIndex(1), lstOne.SetListIndex(1); }, {"lstOne_Click"}},
      {[&] { lstMany.MarkRow(1, true), lstMany.MarkRow(1, true); }, {"lstMany_Click"}},
      {[&] { lstChecks.MarkRow(2, true); }, {"lstChecks_ItemCheck 2"}},
      {[&] { lstChecks.SetSelected(0, true); }, {"lstChecks_ItemCheck 0"}},
      {[&] { udTied.Step(Direction::Up); }, {"udTied_Change 2", "udTied_UpClick"}},
      {[&] { udTied.SetValue(1); }, {"udTied_Change 1"}},
      {[&] { udTied.Step(Direction::Down); }, {"udTied_DownClick"}},
      {[&] { udFollowing.Step(Direction::Down); }, {"udFollowing_DownClick"}},
      {[&] { txtFollowed.SetText("1"), udFollowing.Step(Direction::Down); }, {}},
      {[&] { txtFollowed.SetText(""), udFollowing.Step(Direction::Down); }, {}},
      {[&] { Timer1.Tick(); }, {"Timer1_Timer"}},
      {[&] { Timer1.SetEnabled(false), Timer1.Tick(); }, {}},
  };
  int step = 0;
  for (const auto& [action, events] : steps) {
    ++step;
    EXPECT_EQ(During(action), events) << "step " << step;
  }
}

TEST_F(ControlsTest, RefuseValuesThatTheyCannotTake) {
  const std::function<void()> wrong[] = {
      [&] { chkOn.SetValue(2); },        [&] { cmbDrop.SetListIndex(3); }, [&] { cmbDrop.SetListIndex(-2); },
      [&] { cmbDrop.SelectRow(-1); },    [&] { lstOne.SetListIndex(3); },  [&] { lstMany.SetSelected(3, true); },
      [&] { (void)lstOne.ItemData(3); }, [&] { udTied.SetValue(25); },     [&] { udTied.SetValue(0); }};
  for (const auto& set : wrong) EXPECT_EQ(FailureOf(set), failures::InvalidPropertyValue) << &set - wrong;
  EXPECT_EQ(Host->Happened, Log());
}

TEST_F(ControlsTest, ListsKeepRowsNumbersAndSelection) {
  lstOne.SetListIndex(1);
  lstOne.InsertItem("top", 0);
  EXPECT_EQ(std::pair(0 + lstOne.ListIndex(), 0 + lstOne.NewIndex()), std::pair(2, 0));
  lstOne.AddItem("d", 7);
  EXPECT_EQ(lstOne.ItemData(4), 7);
  EXPECT_EQ(lstOne.List(0) + "," + lstOne.List(9), "top,");
  During([&] { cmbEdit.SetListIndex(1), cmbEdit.Paste("x"); });
  EXPECT_EQ(cmbEdit.ListIndex(), -1) << "a text that is typed is no row";
  lstOne.Clear();
  EXPECT_EQ(std::pair(0 + lstOne.ListCount(), 0 + lstOne.ListIndex()), std::pair(0, -1));
}

TEST_F(ControlsTest, UpDownTakesUpTheNumberInItsBox) {
  using Direction = shown::Direction;
  const std::tuple<std::string, Direction, std::int16_t> cases[] = {
      {"7", Direction::Up, 8},     {"7", Direction::Down, 6}, {"24", Direction::Up, 24},
      {"99", Direction::Down, 23}, {"", Direction::Up, 11},   {"x", Direction::Up, 2}};
  for (const auto& [text, to, value] : cases) {
    udTied.SetValue(1), udTied.SetValue(10);
    txtTied.SetText(text);
    const auto events = During([&, to = to] { udTied.Step(to); });
    EXPECT_EQ(std::pair(udTied.Value(), txtTied.Text()), std::pair(value, std::to_string(value))) << text;
    EXPECT_EQ(std::count(events.begin(), events.end(), "txtTied_Change"), 0);
    EXPECT_FALSE(udTied.HasFocus());
  }
}

TEST_F(ControlsTest, UpDownMayFollowTheNumberInItsBox) {
  EXPECT_EQ(udFollowing.Value(), 3);
  for (const auto& [text, value] : {std::pair("7", 7), {"99", 24}, {"", 24}, {"0", 1}, {"", 1}}) {
    txtFollowed.SetText(text);
    EXPECT_EQ(udFollowing.Value(), value) << text;
  }
  During([&] { txtFollowed.Paste("12"), udFollowing.Step(shown::Direction::Up); });
  EXPECT_EQ(std::pair(0 + udFollowing.Value(), txtFollowed.Text()), std::pair(13, std::string("13")));
}

TEST_F(ControlsTest, KeysPickRowsInAListWithTheFocus) {
  for (int row = 3; row < 30; ++row) lstOne.AddItem(std::to_string(row)), cmbDrop.AddItem(std::to_string(row));
  const std::tuple<int, int, int> cases[] = {{-1, keys::Down, 0},  {0, keys::Up, 0},        {5, keys::Up, 4},
                                             {5, keys::Down, 6},   {29, keys::Down, 29},    {5, keys::Home, 0},
                                             {5, keys::End, 29},   {5, keys::PageDown, 15}, {25, keys::PageDown, 29},
                                             {5, keys::PageUp, 0}, {5, keys::Left, 5},      {5, keys::Space, 5}};
  for (const auto& [from, key, to] : cases) {
    lstOne.SetListIndex(from), cmbDrop.SetListIndex(from);
    const auto events = During([&, code = key] { lstOne.Focus(), Press(code), cmbDrop.Focus(), Press(code); });
    EXPECT_EQ(lstOne.ListIndex(), to);
    EXPECT_EQ(cmbDrop.ListIndex(), to);
    EXPECT_EQ(events, from == to ? Log() : (Log{"lstOne_Click", "cmbDrop_Click"}));
  }
}

TEST_F(ControlsTest, SpaceAndArrowsWorkButtonsAndMarks) {
  EXPECT_EQ(During([&] { cmdPress.Focus(), Type(U' '); }), Log{"cmdPress_Click"});
  EXPECT_EQ(During([&] { chkOn.Focus(), Type(U' '); }), Log{"chkOn_Click"});
  EXPECT_EQ(During([&] { optA.Press(), Press(keys::Up); }), (Log{"optA_Click", "optB_Click"}));
  EXPECT_TRUE(optB.HasFocus() && !optA.Value());
  EXPECT_TRUE(optElsewhere.Value()) << "another container";
  EXPECT_EQ(During([&] { lstChecks.Focus(), Press(keys::Down), Type(U' '); }), Log{"lstChecks_ItemCheck 0"});
  EXPECT_TRUE(lstChecks.Selected(0));
}

TEST_F(ControlsTest, TypingPicksTheRowThatBeginsSo) {
  lstOne.Clear(), cmbDrop.Clear();
  for (const char* row : {"Medical", "\u00C4rger", "  Mode", "Month", "5. x"})
    lstOne.AddItem(row), cmbDrop.AddItem(row);
  // A pause stands as "|".
  const std::tuple<int, std::u32string_view, std::int16_t, std::size_t> cases[] = {
      {-1, U"m", 0, 1},     {0, U"m", 2, 1},    {3, U"M", 0, 1},    {0, U"mo", 2, 1}, {0, U"mon", 3, 2},
      {0, U"m|m", 3, 2},    {1, U"5. X", 4, 1}, {2, U"mode", 2, 2}, {1, U"z", 1, 0},  {0, U"5zm", 0, 2},
      {4, U"\u00E4", 1, 1}, {0, U" ", 0, 0},    {0, U"mz|m", 3, 2}};
  for (const auto& [from, typed, to, clicks] : cases) {
    lstOne.SetListIndex(from), cmbDrop.SetListIndex(from);
    for (auto* list : {static_cast<shown::Control*>(&lstOne), static_cast<shown::Control*>(&cmbDrop)}) {
      const auto log = During([&, &text = typed] {
        list->Focus(), Form.PauseTyping();
        for (const auto c : text) c == U'|' ? Form.PauseTyping() : static_cast<void>(Type(c));
      });
      EXPECT_EQ(list->AsRowList()->ListIndex(), to) << list->Name() << from;
      EXPECT_EQ(log.size(), clicks) << list->Name();
    }
  }
  // Where rows are chosen, a letter moves to one, and a blank chooses it.
  EXPECT_EQ(During([&] { lstMany.Focus(), Type(U'b'), Type(U' '); }), Log{"lstMany_Click"});
  EXPECT_TRUE(lstMany.Selected(1));
}

TEST_F(ControlsTest, OptionsOfAContainerAreOneStopOfTab) {
  OptionButton optC(fraOptions, "optC"), optD(fraOptions, "optD");
  const auto stopBehind = [&] {
    chkOn.Focus(), Press(keys::Tab);
    return Form.FocusedControl()->Name();
  };
  During([&] {
    EXPECT_EQ(stopBehind(), "optA");
    optB.SetValue(true), Host->Happened.clear();
    EXPECT_EQ(stopBehind(), "optB");
    Press(keys::Tab);
    EXPECT_TRUE(optElsewhere.HasFocus());
    optC.SetEnabled(false), optB.Focus();
    Press(keys::Right);
    EXPECT_TRUE(optD.HasFocus() && optD.Value());
    Press(keys::Down);
    EXPECT_TRUE(optA.Value());
    optA.SetEnabled(false);
    EXPECT_EQ(stopBehind(), "optB") << "what cannot be reached is no stop, though it is on";
  });
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
