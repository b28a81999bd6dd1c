#include "frame/dialog/dialog.h"

#include <array>

#include "OrlinCustomDialogs/host/form.h"

#include "form_fixture.h"

namespace orlin::testing {
namespace {

class DialogTest : public FormTest {
 protected:
  DialogTest() {
    Form.KeyDown = [this](int& code) {
      Note("Form_KeyDown " + std::to_string(code));
      if (code == keys::Up) code = 0;
    };
    for (auto* box : {&txtOne, &txtTwo, &txtNotes}) {
      const auto name = box->Name();
      box->GotFocus = [this, name] { Note(name + "_GotFocus"); };
      box->LostFocus = [this, name] { Note(name + "_LostFocus"); };
      box->Change = [this, name, box] { Note(name + "_Change " + box->Text()); };
      box->KeyDown = [this, name](int& code) { Note(name + "_KeyDown " + std::to_string(code)); };
      box->KeyPress = [this, name](int& character) {
        Note(name + "_KeyPress " + std::to_string(character));
        if (character == 'x') character = 0;
        if (character == 'y') character = 'Z';
      };
    }
    cmdOK.Click = [this] { Note("cmdOK_Click"); };
    cmdCancel.Click = [this] { Note("cmdCancel_Click"); };
  }

  Label lblOne{Form, "lblOne", "&One"};
  TextBox txtOne{Form, "txtOne", {.MaxLength = 3}};
  Label lblTwo{Form, "lblTwo", "T&wo && more"};
  TextBox txtTwo{Form, "txtTwo"};
  TextBox txtNotes{Form, "txtNotes", {.MultiLine = true}};
  CheckBox chkLast{Form, "chkLast", "&Last"};
  OKButton cmdOK{Form, "OK"};
  CancelButton cmdCancel{Form, "Cancel"};
};

TEST_F(DialogTest, KeyGoesThroughDialogBoxAndPress) {
  EXPECT_EQ(During([&] { Type(U'a'); }),
            (Log{"Form_KeyDown 65", "txtOne_KeyDown 65", "txtOne_KeyPress 97", "txtOne_Change a"}));
  EXPECT_EQ(During([&] { Press(keys::Backspace); }),
            (Log{"Form_KeyDown 8", "txtOne_KeyDown 8", "txtOne_KeyPress 8", "txtOne_Change "}));
  EXPECT_EQ(During([&] { Type(U'x'); }).back(), "txtOne_KeyPress 120");
  EXPECT_EQ(During([&] { Type(U'y'); }).back(), "txtOne_Change Z");
  EXPECT_EQ(During([&] { Press(keys::Up); }), Log{"Form_KeyDown 38"});
  // A sign that shares its number with a cursor key must not pass for it.
  EXPECT_EQ(During([&] { Type(U'&'); }).front(), "Form_KeyDown 231");
}

TEST_F(DialogTest, MaxLengthAndLockBindTheOperator) {
  EXPECT_EQ(During([&] { txtOne.Paste("\u00E4bcd"); }).back(), "txtOne_KeyPress 100");
  EXPECT_EQ(txtOne.Text(), "\u00E4bc");
  txtOne.SetText("longer");
  EXPECT_EQ(During([&] { txtOne.SetCaret(1, 5), Type(U'a'); }).back(), "txtOne_Change la");
  txtOne.SetLocked(true);
  const Log told{"Form_KeyDown 65", "txtOne_KeyDown 65", "txtOne_KeyPress 97", "Form_KeyDown 46", "txtOne_KeyDown 46"};
  EXPECT_EQ(During([&] { Type(U'a'), Press(keys::Delete); }), told);
}

TEST_F(DialogTest, PasteGoesThroughTheKeysAndSkipsLineEndsOfSingleLines) {
  EXPECT_EQ(During([&] { txtTwo.Paste("a\r\nb"); }),
            (Log{"txtOne_LostFocus", "txtTwo_GotFocus", "txtTwo_KeyDown 65", "txtTwo_KeyPress 97", "txtTwo_Change a",
                 "txtTwo_KeyDown 66", "txtTwo_KeyPress 98", "txtTwo_Change ab"}));
  During([&] { txtNotes.Paste("a\nb\r\n\tc"); });
  EXPECT_EQ(txtNotes.Text(), "a\r\nb\r\n\tc");
}

TEST_F(DialogTest, EnterAndEscapePressTheButtonsWhereTheyAre) {
  EXPECT_EQ(During([&] { Press(keys::Enter); }), Log{"cmdOK_Click"});
  EXPECT_TRUE(txtOne.HasFocus());
  EXPECT_EQ(During([&] { Press(keys::Escape); }), Log{"cmdCancel_Click"});
  EXPECT_EQ(During([&] { txtNotes.Focus(), Press(keys::Enter); }).back(), "txtNotes_Change \r\n");
  EXPECT_EQ(During([&] { cmdCancel.Focus(), Press(keys::Enter); }).back(), "cmdCancel_Click");
  // Left with the focus by code, a button that cannot be pressed leaves Enter to the default button.
  EXPECT_EQ(During([&] { cmdCancel.SetFocus(), cmdCancel.SetEnabled(false), Press(keys::Enter); }), Log{"cmdOK_Click"});
}

TEST_F(DialogTest, TabMarksTheTextOfALine) {
  txtOne.SetText("ab"), txtTwo.SetText("cd"), txtNotes.SetText("ef");
  const auto marks = [&] { return std::array{txtOne.SelLength(), txtTwo.SelLength(), txtNotes.SelLength()}; };
  During([&] {
    EXPECT_EQ(marks(), (std::array{0, 0, 0})) << "opening the dialog marks nothing";
    Press(keys::Tab), Press(keys::Tab);
    EXPECT_EQ(marks(), (std::array{0, 2, 0}));
    Form.PressKey(Key::ShiftTab()), Type(U'z');
    EXPECT_EQ(txtTwo.Text(), "z");
    txtOne.Focus();
    EXPECT_EQ(marks(), (std::array{0, 0, 0})) << "neither does another way to the box";
  });
}

TEST_F(DialogTest, ShowActivatesThenFocusesTheFirstControlWithinReach) {
  txtOne.SetEnabled(false);
  Form.OnActivate = [this] { Note("Activate"); };
  Form.ShowModal();
  EXPECT_EQ(Host->Happened, (Log{"show frmTest", "Activate", "txtTwo_GotFocus"}));
  Form.OnActivate = [this] { txtNotes.SetFocus(); };
  Host->Happened.clear();
  Form.ShowModal();
  EXPECT_TRUE(txtNotes.HasFocus());
}

TEST_F(DialogTest, FocusMovesByCodeClickTabAndAccessKey) {
  EXPECT_EQ(During([&] { txtTwo.SetFocus(), txtTwo.SetFocus(); }), (Log{"txtOne_LostFocus", "txtTwo_GotFocus"}));
  EXPECT_EQ(During([&] { cmdOK.Press(); }), (Log{"txtTwo_LostFocus", "cmdOK_Click"}));
  During([&] {
    Press(keys::Tab), Press(keys::Tab);
    EXPECT_TRUE(txtOne.HasFocus());
    Form.PressKey(Key::ShiftTab());
    EXPECT_TRUE(cmdCancel.HasFocus());
    Form.PressKey(Key::Access(U'W'));
    EXPECT_TRUE(txtTwo.HasFocus());
    Form.PressKey(Key::Access(U'l'));
    EXPECT_EQ(chkLast.Value(), 1);
    EXPECT_TRUE(Form.PressKey(Key::Access(U'm')));
  });
  EXPECT_EQ(PlainCaption(lblTwo.Caption()), "Two & more");
}

TEST_F(FormTest, ShowFocusesTheFirstOptionWhicheverIsOn) {
  OptionButton optFirst(Form, "optFirst"), optOn(Form, "optOn", "", {.Value = true});
  During([&] {
    EXPECT_TRUE(optFirst.HasFocus());
    Press(keys::Tab);
    EXPECT_TRUE(optOn.HasFocus());
  });
}

TEST_F(FormTest, LabelNamesTheVisibleControlBehindIt) {
  Label lblTurns(Form, "lblTurns", "&Turns");
  TextBox txtTurn(Form, "txtTurn");
  ListBox lstTurn(Form, "lstTurn");
  Label lblLone(Form, "lblLone");
  Frame fra(Form, "fra");
  Label lblLast(fra, "lblLast");
  CheckBox chkCaption(fra, "chkCaption", "&Caption");
  OptionButton optBare(fra, "optBare");
  ControlArray<Label, 2> lblDigit(Form, "lblDigit");
  ControlArray<ComboBox, 2> cmbDigit(Form, "cmbDigit");
  EXPECT_EQ(lblTurns.Names(), &txtTurn);
  txtTurn.SetVisible(false);
  EXPECT_EQ(lblTurns.Names(), &lstTurn);
  lstTurn.SetVisible(false);
  EXPECT_EQ(lblTurns.Names(), &txtTurn);
  EXPECT_EQ(lblDigit[1].Names(), &cmbDigit[1]);
  EXPECT_EQ(lblLast.Names(), &optBare);
}

TEST_F(FormTest, UnitsAndAlternativesStandWithTheirField) {
  Label lblA(Form, "lblA", "Time:");
  TextBox txtHour(Form, "txtHour");
  Label lblColon(Form, "lblColon", ":", Label::Separator);
  TextBox txtMinute(Form, "txtMinute");
  Label lblUnit(Form, "lblUnit", "any length, in any language:", Label::Unit);
  UpDown udTime(Form, "udTime");
  ComboBox cmbOther(Form, "cmbOther");
  Label lblB(Form, "lblB", "List:");
  TextBox txtB(Form, "txtB", {.Common = {.Visible = false}});
  ListBox lstB(Form, "lstB", {.HasHeading = true, .Common = {.Visible = false}});
  Button cmdMore(Form, "cmdMore", "More");
  OKButton cmdOK(Form, "OK");
  CancelButton cmdCancel(Form, "Cancel");
  lstB.AddItem("Heading");
  const auto form = FormOf(Form);
  const auto names = [](const FormLine& line) {
    std::string all;
    for (const auto* control : line) all.append(all.empty() ? "" : " ").append(control->Name());
    return all;
  };
  ASSERT_EQ(form.Body.size(), 2U);
  EXPECT_EQ(form.Body[0].Label, &lblA);
  ASSERT_EQ(form.Body[0].Lines.size(), 2U);
  EXPECT_EQ(names(form.Body[0].Lines[0]), "txtHour lblColon txtMinute udTime lblUnit");
  EXPECT_EQ(names(form.Body[0].Lines[1]), "cmbOther");
  EXPECT_EQ(form.Body[1].What, FormRow::Kind::Tall);
  EXPECT_EQ(form.Body[1].Label, &lblB) << "also while nothing behind it is visible";
  EXPECT_FALSE(form.Labels.contains(&lstB)) << "its heading names it";
  EXPECT_EQ(form.NameOf(txtB) + form.NameOf(lstB), "List:Heading") << "as a screen reader says it";
  EXPECT_EQ(names(form.LeftButtons), "cmdMore");
  EXPECT_EQ(names(form.RightButtons), "cmdOK cmdCancel");
}

TEST_F(FormTest, PeopleReadTranslationsOfWhatTheLogicKeepsInEnglish) {
  static constexpr FixedText words[] = {{"Low", 7}, {"only", 8}, {"Rest", 9}};
  Label lblFixed(Form, "lblFixed", {"&Name:", 6});
  ComboBox cmbFixed(Form, "cmbFixed", {.Common = {.Fixed = words}});
  Dialog titled("frmTitled", {"Title", 5}, {});
  cmbFixed.AddItem("High"), cmbFixed.AddItem("Low");
  EXPECT_EQ(lblFixed.TranslatedCaption(), "&Name:") << "without a catalogue";
  UseHost(Host, {{5, "Titel"}, {6, "&Zahl:"}, {7, "Wenig"}, {8, "nur"}});
  EXPECT_EQ(lblFixed.TranslatedCaption(), "&Zahl:");
  for (const auto& [text, read] : {std::pair("Low", "Wenig"), std::pair("5 only", "5 nur"), std::pair("Slow", "Slow"),
                                   std::pair("Low 5", "Low 5"), std::pair("Rest", "Rest"), std::pair("", "")}) {
    EXPECT_EQ(cmbFixed.Translated(text), read);
  }
  During([&] {
    for (const auto letter : {U'n', U'z'}) EXPECT_FALSE(Form.PressKey(Key::Access(letter)));
    Type(U'w');
    EXPECT_EQ(cmbFixed.Text(), "Low");
    cmbFixed.SetListIndex(0), Form.PauseTyping(), Type(U'l');
    EXPECT_EQ(cmbFixed.Text(), "Low");
  });
  EXPECT_EQ(titled.TranslatedCaption(), "Titel");
  titled.SetCaption("Title");
  EXPECT_EQ(titled.TranslatedCaption(), "Title") << "a new caption is not the fixed one, whatever it says";
  titled.SetCaption("Edit", "Bearbeiten");
  EXPECT_EQ(titled.Caption() + titled.TranslatedCaption(), "EditBearbeiten");
  lblFixed.SetCaption("Other");
  EXPECT_EQ(lblFixed.TranslatedCaption(), "Other");
}

TEST_F(DialogTest, CodeMovesTheFocusOutOfReachOrOn) {
  txtTwo.SetVisible(false);
  EXPECT_EQ(During([&] { txtTwo.SetFocus(), Type(U'a'); }), (Log{"txtOne_LostFocus", "txtTwo_GotFocus"}));
  EXPECT_EQ(During([&] { Press(keys::Tab); }), (Log{"txtTwo_LostFocus", "txtNotes_GotFocus"}));
  txtNotes.LostFocus = [this] { txtOne.SetFocus(); };
  EXPECT_EQ(During([&] { chkLast.Focus(); }), Log{"txtOne_GotFocus"});
}

TEST_F(DialogTest, FailureEndsTheHandlerThatTheOperatorCausedAndReachesTheCodeThatDid) {
  txtTwo.Change = [] { throw Failure(11); };
  chkLast.Click = [this] { txtTwo.SetText(txtTwo.Text() + "a"), Note("not reached"); };
  EXPECT_EQ(During([&] { txtTwo.Paste("b"); }).back(), "failed txtTwo_Change 11");
  EXPECT_EQ(During([&] { chkLast.Press(); }).back(), "failed chkLast_Click 11");
  EXPECT_EQ(FailureOf([&] { txtTwo.SetText("c"); }), 11);
  EXPECT_EQ(txtTwo.Text(), "c");
}

TEST_F(DialogTest, FirstTouchLoadsOnce) {
  int loads = 0;
  Dialog form("frmLoads", "Design", {}, {3000, 2000});
  Label label(form, "label", "x");
  form.OnLoad = [&] {
    ++loads, form.Centre(), label.SetCaption("loaded");
    throw Failure(5);
  };
  EXPECT_EQ(std::pair(loads, form.Left()), std::pair(0, 0));
  label.SetCaption("later"), label.SetVisible(true);
  EXPECT_EQ(std::pair(loads, label.Caption()), std::pair(1, std::string("later")));
  EXPECT_EQ(std::pair(form.Left(), form.Top()), std::pair((15360 - 3000) / 2, (11520 - 2000) / 2));
}

}  // namespace
}  // namespace orlin::testing
