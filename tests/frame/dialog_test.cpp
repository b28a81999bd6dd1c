#include "frame/dialog.h"

#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

class DialogTest : public FrameTest {
 protected:
  DialogTest() {
    Form.KeyDown = [this](int& code) { FormKeyDown(code); };
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

  void Note(const std::string& what) { Host->Happened.push_back(what); }
  void FormKeyDown(int& code) {
    Note("Form_KeyDown " + std::to_string(code));
    if (code == keys::Up) code = 0;
  }
  Log During(const std::function<void()>& action) {
    Log log;
    Host->Operate = [&](shown::Dialog&) {
      Host->Happened.clear();
      action();
      log = Host->Happened;
    };
    Form.ShowModal();
    return log;
  }

  Dialog Form{"frmTest", "", {}};
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
  EXPECT_EQ(During([&] { Form.PressKey(Key::Typing(U'a')); }),
            (Log{"Form_KeyDown 65", "txtOne_KeyDown 65", "txtOne_KeyPress 97", "txtOne_Change a"}));
  EXPECT_EQ(During([&] { Form.PressKey(Key::Named(keys::Backspace)); }),
            (Log{"Form_KeyDown 8", "txtOne_KeyDown 8", "txtOne_KeyPress 8", "txtOne_Change "}));
  EXPECT_EQ(During([&] { Form.PressKey(Key::Typing(U'x')); }),
            (Log{"Form_KeyDown 88", "txtOne_KeyDown 88", "txtOne_KeyPress 120"}));
  EXPECT_EQ(During([&] { Form.PressKey(Key::Typing(U'y')); }).back(), "txtOne_Change Z");
  EXPECT_EQ(During([&] { Form.PressKey(Key::Named(keys::Up)); }), Log{"Form_KeyDown 38"});
  // A sign that shares its number with a cursor key must not pass for it.
  EXPECT_EQ(During([&] { Form.PressKey(Key::Typing(U'&')); }).front(), "Form_KeyDown 231");
}

TEST_F(DialogTest, MaxLengthBindsTheOperatorAndCountsCharacters) {
  During([&] {
    txtOne.Paste(
        "\xC3\xA4"
        "bcd");
  });
  EXPECT_EQ(txtOne.Text(),
            "\xC3\xA4"
            "bc");
  txtOne.SetText("longer");
  EXPECT_EQ(txtOne.Text(), "longer");
  EXPECT_EQ(During([&] { txtOne.SetCaret(0, 6), Form.PressKey(Key::Typing(U'a')); }).back(), "txtOne_Change a");
}

TEST_F(DialogTest, PasteGoesThroughTheKeysAndSkipsLineEndsOfSingleLines) {
  EXPECT_EQ(
      During([&] { txtTwo.Paste("ax\r\nb"); }),
      (Log{"txtOne_LostFocus", "txtTwo_GotFocus", "txtTwo_KeyDown 65", "txtTwo_KeyPress 97", "txtTwo_Change a",
           "txtTwo_KeyDown 88", "txtTwo_KeyPress 120", "txtTwo_KeyDown 66", "txtTwo_KeyPress 98", "txtTwo_Change ab"}));
  During([&] { txtNotes.Paste("a\nb\r\nc"); });
  EXPECT_EQ(txtNotes.Text(), "a\r\nb\r\nc");
}

TEST_F(DialogTest, LockedBoxTakesNoCharacter) {
  txtOne.SetLocked(true);
  EXPECT_EQ(
      During([&] { Form.PressKey(Key::Typing(U'a')), Form.PressKey(Key::Named(keys::Delete)); }),
      (Log{"Form_KeyDown 65", "txtOne_KeyDown 65", "txtOne_KeyPress 97", "Form_KeyDown 46", "txtOne_KeyDown 46"}));
}

TEST_F(DialogTest, EnterAndEscapePressTheButtonsWhereTheyAre) {
  EXPECT_EQ(During([&] { Form.PressKey(Key::Named(keys::Enter)); }), Log{"cmdOK_Click"});
  EXPECT_TRUE(txtOne.HasFocus());
  EXPECT_EQ(During([&] { Form.PressKey(Key::Named(keys::Escape)); }), Log{"cmdCancel_Click"});
  EXPECT_EQ(During([&] { txtNotes.Focus(), Form.PressKey(Key::Named(keys::Enter)); }).back(), "txtNotes_Change \r\n");
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
  During([&] { Form.PressKey(Key::Named(keys::Tab)), Form.PressKey(Key::Named(keys::Tab)); });
  EXPECT_TRUE(txtOne.HasFocus());
  During([&] { Form.PressKey(Key::ShiftTab()); });
  EXPECT_TRUE(cmdCancel.HasFocus());
  During([&] { Form.PressKey(Key::Access(U'W')); });
  EXPECT_TRUE(txtTwo.HasFocus());
  During([&] { Form.PressKey(Key::Access(U'l')); });
  EXPECT_EQ(chkLast.Value(), 1);
  During([&] { EXPECT_TRUE(Form.PressKey(Key::Access(U'm'))); });
  EXPECT_EQ(PlainCaption(lblTwo.Caption()), "Two & more");
}

TEST_F(FrameTest, LabelNamesTheVisibleControlBehindIt) {
  Dialog form("frmTest", "", {});
  Label lblTurns(form, "lblTurns", "&Turns");
  TextBox txtTurn(form, "txtTurn");
  ListBox lstTurn(form, "lstTurn");
  Label lblLone(form, "lblLone");
  Frame fra(form, "fra");
  Label lblLast(fra, "lblLast");
  CheckBox chkCaption(fra, "chkCaption", "&Caption");
  OptionButton optBare(fra, "optBare");
  ControlArray<Label, 2> lblDigit(form, "lblDigit");
  ControlArray<ComboBox, 2> cmbDigit(form, "cmbDigit");
  EXPECT_EQ(lblTurns.Names(), &txtTurn);
  txtTurn.SetVisible(false);
  EXPECT_EQ(lblTurns.Names(), &lstTurn);
  lstTurn.SetVisible(false);
  EXPECT_EQ(lblTurns.Names(), &txtTurn);
  EXPECT_EQ(lblDigit[1].Names(), &cmbDigit[1]);
  EXPECT_EQ(lblLast.Names(), &optBare);
}

TEST_F(DialogTest, NoKeyArrivesAtAControlOutOfReach) {
  txtTwo.SetVisible(false);
  EXPECT_EQ(During([&] {
              txtTwo.SetFocus();
              EXPECT_TRUE(Form.PressKey(Key::Typing(U'a')));
            }),
            (Log{"txtOne_LostFocus", "txtTwo_GotFocus"}));
  EXPECT_EQ(During([&] { Form.PressKey(Key::Named(keys::Tab)); }), (Log{"txtTwo_LostFocus", "txtNotes_GotFocus"}));
}

TEST_F(DialogTest, HandlerThatMovesTheFocusOnWinsOverTheMove) {
  txtOne.LostFocus = [this] { txtNotes.SetFocus(); };
  EXPECT_EQ(During([&] { txtTwo.Focus(); }), Log{"txtNotes_GotFocus"});
}

TEST_F(DialogTest, FailureEndsTheHandlerThatTheOperatorCausedAndReachesTheCodeThatDid) {
  txtTwo.Change = [] { throw Failure(11); };
  chkLast.Click = [this] {
    txtTwo.SetText(txtTwo.Text() + "a");
    Note("not reached");
  };
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
    ++loads;
    form.Centre();
    label.SetCaption("loaded");
    throw Failure(5);
  };
  EXPECT_EQ(form.Left(), 0);
  EXPECT_EQ(loads, 0);
  label.SetCaption("later");
  label.SetVisible(true);
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(label.Caption(), "later");
  EXPECT_EQ(form.Left(), (15360 - 3000) / 2);
  EXPECT_EQ(form.Top(), (11520 - 2000) / 2);
}

}  // namespace
}  // namespace orlin::testing
