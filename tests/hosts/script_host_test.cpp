#include "OrlinCustomDialogs/hosts/script/script_host.h"

#include <memory>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/platform.h"

#include "frame/dialog/dialog.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

/// Has a control of every kind.
struct Everything {
  Dialog Form{"frmEverything", "Every &kind", {}};

  Label lblName{Form, "lblName", "&Name"};
  TextBox txtName{Form, "txtName", {.Text = "ab", .MaxLength = 5, .Common = {.Left = 10, .Top = 20, .Width = 30}}};
  TextBox txtLines{Form, "txtLines", {.MultiLine = true}};
  TextBox txtLocked{Form, "txtLocked", {.Locked = true}};
  Frame fraMode{Form, "fraMode", "Mode"};
  OptionButton optA{fraMode, "optA", "A", {.Value = true, .Common = {}}};
  OptionButton optB{fraMode, "optB", "B"};
  CheckBox chkOn{Form, "chkOn", "On"};
  ComboBox cmbPick{Form, "cmbPick"};
  ComboBox cmbEdit{Form, "cmbEdit", {.HasEditField = true, .Common = {}}};
  ListBox lstOne{Form, "lstOne"};
  ListBox lstMany{Form, "lstMany", {.Choice = shown::Choice::Many, .Common = {}}};
  ListBox lstChecks{Form, "lstChecks", {.Choice = shown::Choice::Checks, .Common = {}}};
  UpDown updCount{Form, "updCount", {.Min = 1, .Max = 3, .Buddy = nullptr, .Common = {}}};
  StatusBar staLine{Form, "staLine"};
  Timer tmrClock{Form, "tmrClock", {.Interval = 500, .Common = {}}};
  Grid grdTable{Form, "grdTable", {.Rows = 3, .Cols = 2, .FixedRows = 1, .FixedCols = 0, .Common = {}}};
  Button cmdHidden{Form, "cmdHidden", "Hidden", {.Visible = false}};
  Button cmdAsk{Form, "cmdAsk", "Ask"};
  Button cmdFail{Form, "cmdFail", "Fail"};
  Button cmdOK{Form, "cmdOK", "OK"};

  int Answered = 0;

  Everything() {
    for (const char* text : {"one", "two"}) {
      cmbPick.AddItem(text, 7), cmbEdit.AddItem(text);
      lstOne.AddItem(text), lstMany.AddItem(text), lstChecks.AddItem(text);
    }
    txtLines.KeyPress = [this](int& character) {
      if (character == '!') txtLines.SetEnabled(false);
    };
    grdTable.SetCellText(0, 0, "Title"), grdTable.SetCellText(1, 1, "old");
    grdTable.SetCellColor(1, 1, 255), grdTable.SetCellBold(2, 0, true);
    grdTable.DblClick = [this] { grdTable.EditCell(); };
    grdTable.StartEdit = [](int, int col, bool& cancel) { cancel = col == 0; };
    tmrClock.OnTimer = [this] { staLine.SetText("ticked"); };
    cmdAsk.Click = [this] { Answered = Form.ShowMessage("Sure?", Message::YesNo, "Title"); };
    cmdFail.Click = [this] { Form.Beep(), throw Failure(failures::InvalidPropertyValue); };
    cmdOK.Click = [this] { Form.HideWith(ExitCode::OK); };
    Form.MakeDefault(cmdOK);
  }
};

/// Plays scripts on a dialog of every kind, without a public class around it.
class ScriptHostTest : public ::testing::Test {
 protected:
  ~ScriptHostTest() override { UsePlatform({}); }

  /// The trace of a script.
  std::string Trace(const std::string& script, bool strict = false) {
    std::ostringstream out;
    orlin::Trace trace(out);
    const auto host = std::make_shared<ScriptHost>(ParseScript(script), trace, strict);
    Platform platform;
    platform.Host = host;
    UsePlatform(std::move(platform));
    Everything dialog;
    try {
      dialog.Form.ShowModal();
      EXPECT_FALSE(dialog.Form.IsShown());
      host->Finish();
      Exit = dialog.Form.ExitCode();
    } catch (const StrictRefusal&) {
      out << "strict\n";
    }
    Answered = dialog.Answered;
    return out.str();
  }

  /// The dialog at the end of a script.
  Json State(const std::string& script) {
    const auto trace = Trace(script + "\ndump");
    return Json::parse(trace.substr(trace.rfind("{\"event\":\"state\"")));
  }

  ExitCode Exit = ExitCode::None;
  int Answered = 0;
};

constexpr const char* kShow = R"({"event":"show","dialog":"frmEverything","caption":"Every &kind"})"
                              "\n";

TEST_F(ScriptHostTest, DumpsEveryKindOfControl) {
  const auto common = [](const std::string& kind) {
    return R"({"kind":")" + kind + R"(","visible":true,"enabled":true,"left":0,"top":0,"width":0,)";
  };
  const std::string lists = R"("listIndex":-1,"list":["one","two"],"itemData":[0,0])";
  const std::pair<const char*, std::string> expected[] = {
      {"lblName", common("Label") + R"("caption":"&Name"})"},
      {"txtName", R"({"kind":"TextBox","visible":true,"enabled":true,"left":10,"top":20,"width":30,)"
                  R"("text":"ab","locked":false,"maxLength":5,"selStart":0,"selLength":0})"},
      {"txtLocked", common("TextBox") + R"("text":"","locked":true,"maxLength":0,"selStart":0,"selLength":0})"},
      {"fraMode", common("Frame") + R"("caption":"Mode"})"},
      {"optA", common("OptionButton") + R"("caption":"A","value":true})"},
      {"chkOn", common("CheckBox") + R"("caption":"On","value":0})"},
      {"cmbPick", common("ComboBox") + R"("text":"","locked":false,"maxLength":0,"selStart":0,"selLength":0,)"
                                       R"("listIndex":-1,"list":["one","two"],"itemData":[7,7]})"},
      {"lstOne", common("ListBox") + lists + "}"},
      {"lstMany", common("ListBox") + lists + R"(,"selected":[false,false]})"},
      {"updCount", common("UpDown") + R"("value":1,"min":1,"max":3})"},
      {"staLine", common("StatusBar") + R"("text":""})"},
      {"tmrClock", common("Timer") + R"("interval":500})"},
      {"grdTable", common("Grid") + R"("rows":3,"cols":2,"row":1,"col":0,)"
                                    R"("cells":[["Title",""],["","old"],["",""]],)"
                                    R"("colours":[[0,0],[0,255],[0,0]],)"
                                    R"("bold":[[false,false],[false,false],[true,false]],"editing":false})"},
      {"cmdHidden", R"({"kind":"Button","visible":false,"enabled":true,"left":0,"top":0,"width":0,)"
                    R"("caption":"Hidden"})"},
  };
  const auto trace = Trace("dump");
  EXPECT_TRUE(trace.starts_with(
      kShow + std::string(R"({"event":"state","caption":"Every &kind","focus":"txtName","controls":{"lblName":{)")));
  for (const auto& [name, state] : expected) {
    EXPECT_EQ(Json::parse(trace.substr(trace.find('\n'))).at("controls").at(name).dump(), state);
  }
}

TEST_F(ScriptHostTest, PlaysEachAction) {
  const struct {
    const char* Script;
    const char* Control;
    const char* Field;
    const char* Holds;
  } cases[] = {
      {"select cmbPick 1", "cmbPick", "text", "\"two\""},
      {"select lstMany 1 on", "lstMany", "selected", "[false,true]"},
      {"select lstChecks 0 on\nselect lstChecks 1 on\nselect lstChecks 0 off", "lstChecks", "selected", "[false,true]"},
      {"click optB", "optA", "value", "false"},
      {"click chkOn", "chkOn", "value", "1"},
      {"type txtName \"\u20AC\"", "txtName", "text", "\"\u20ACab\""},
      {"type txtName \"x\\t\\tz\"", "txtName", "text", "\"xab\""},
      {"type txtLines \"a\\r\\nb\\nc\"", "txtLines", "text", R"("a\r\nb\r\nc")"},
      {"type cmbEdit \"o\"", "cmbEdit", "text", "\"o\""},
      {"key txtName End\nkey txtName Backspace", "txtName", "text", "\"a\""},
      {"key - Delete", "txtName", "text", "\"b\""},
      {"focus cmbPick\nkey - Down\nkey - Down", "cmbPick", "listIndex", "1"},
      {"key - Alt+n\ntype txtName \"z\"", "txtName", "text", "\"zab\""},
      {"caret txtName 1 1\ntype txtName \"z\"", "txtName", "text", "\"az\""},
      {"step updCount up 2\nstep updCount down", "updCount", "value", "2"},
      {"tick tmrClock", "staLine", "text", "\"ticked\""},
      {"cell grdTable 2 1", "grdTable", "row", "2"},
      {"cell grdTable 1 1\ndoubleclick grdTable", "grdTable", "editing", "true"},
      {"cell grdTable 1 1\nkey grdTable F2\nkey - End\ntype grdTable \"er\"\nkey - Enter", "grdTable", "cells",
       R"([["Title",""],["","older"],["",""]])"},
      {"cell grdTable 1 1\ntype grdTable \"er\\n\"", "grdTable", "cells", R"([["Title",""],["","er"],["",""]])"},
      {"type cmbPick \"tw\"", "cmbPick", "listIndex", "1"},
      {"type cmbPick \"t\"\ntype cmbPick \"o\"", "cmbPick", "listIndex", "0"},
      {"type txtName \"\\t\\r\\nx\"", "txtLines", "text", R"("\r\nx")"},
      {"edit grdTable 1 1 \"\"", "grdTable", "cells", R"([["Title",""],["",""],["",""]])"},
      // The first line end ends the edit; nothing that follows it reaches the default button.
      {"edit grdTable 1 1 \"a\\nb\\n\"", "grdTable", "cells", R"([["Title",""],["","a"],["",""]])"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(State(one.Script).at("controls").at(one.Control).at(one.Field).dump(), one.Holds) << one.Script;
  }
}

TEST_F(ScriptHostTest, MovesTheFocusFirst) {
  const std::pair<const char*, const char*> cases[] = {
      {"select lstOne 0", "lstOne"},   {"select lstMany 0 on", "lstMany"},
      {"click cmdAsk", "cmdAsk"},      {"type cmbEdit \"\"", "cmbEdit"},
      {"key lstOne Down", "lstOne"},   {"caret cmbEdit 0 0", "cmbEdit"},
      {"focus chkOn", "chkOn"},        {"cell grdTable 1 0", "grdTable"},
      {"step updCount up", "txtName"}, {"type txtName \"\\t\"", "txtLines"},
  };
  for (const auto& [script, focus] : cases) EXPECT_EQ(State(script).at("focus"), focus) << script;
}

TEST_F(ScriptHostTest, RefusesWhatTheOperatorCannotDo) {
  const std::pair<const char*, const char*> refusals[] = {
      {"click cmdNone", "no control named cmdNone"},
      {"click cmdHidden", "cmdHidden is hidden"},
      {"click lblName", "lblName is a Label, which cannot be pressed"},
      {"select cmdOK 1", "cmdOK (Button) is not a list"},
      {"select cmbPick 2", "cmbPick has no row 2"},
      {"select cmbPick 1 on", "cmbPick is a list of one choice: its rows are picked"},
      {"select lstMany 1", "lstMany is a list of many choices: its rows are selected on or off"},
      {"type lblName \"x\"", "lblName does not take the focus"},
      {"key - Alt+z", "no control within reach has that access key"},
      {"caret cmbPick 0 0", "cmbPick has no edit field"},
      {"caret chkOn 0 0", "chkOn (CheckBox) is not a text box"},
      {"step txtName up", "txtName (TextBox) is not an up-down"},
      {"cell grdTable 0 0", "grdTable has no cell 0, 0 that can be the current one"},
      {"doubleclick lstOne", "lstOne (ListBox) is not a grid"},
      {"edit grdTable 1 0 \"x\"", "the dialog does not let this cell be edited"},
      {"edit grdTable 3 0 \"x\"", "grdTable has no cell 3, 0 that can be the current one"},
      {"tick txtName", "txtName (TextBox) is not a timer"},
  };
  for (const auto& [action, why] : refusals) {
    const Json refused = {{"event", "refused"}, {"line", 2}, {"action", action}, {"why", why}};
    EXPECT_EQ(Trace("# refused\n" + std::string(action)), kShow + refused.dump() + "\n");
  }
}

TEST_F(ScriptHostTest, PressesTheKeysThatFollowARefusedOne) {
  const Json refused = {{"event", "refused"},
                        {"line", 1},
                        {"action", R"(type txtLines "!xy\n")"},
                        {"why", "no control within reach has the focus"}};
  EXPECT_EQ(Trace("type txtLines \"!xy\\n\""), kShow + refused.dump() + "\n");
  EXPECT_EQ(Exit, ExitCode::OK);
}

TEST_F(ScriptHostTest, TellsWhatHappensInItsOrder) {
  EXPECT_EQ(
      Trace("answer 7\nclick cmdAsk\nclick cmdFail"),
      kShow + std::string("{\"event\":\"message\",\"text\":\"Sure?\",\"title\":\"Title\",\"flags\":4,\"answer\":7}\n"
                          "{\"event\":\"beep\"}\n"
                          "{\"event\":\"failure\",\"number\":380,\"handler\":\"cmdFail_Click\"}\n"));
}

TEST_F(ScriptHostTest, AnswersMessages) {
  const std::string refused = R"({"event":"refused","line":1,"action":"answer 1","why":")";
  const struct {
    const char* Script;
    int Answer;
    std::string Refused;
  } cases[] = {
      {"click cmdAsk", 6, ""},
      {"answer 7\nclick cmdAsk", 7, ""},
      {"answer 6\nanswer 7\nclick cmdAsk\nclick cmdAsk", 7, ""},
      {"answer 1\nclick cmdAsk", 6, refused + "the message has no such button\"}\n"},
      {"answer 1", 0, refused + "no message came\"}\n"},
      {"answer 1\nclick cmdOK\nanswer 7", 0, refused + "no message came\"}\n"},
  };
  for (const auto& one : cases) {
    const auto trace = Trace(one.Script);
    EXPECT_EQ(Answered, one.Answer) << one.Script;
    const auto at = trace.find("{\"event\":\"refused\"");
    EXPECT_EQ(at == std::string::npos ? "" : trace.substr(at), one.Refused) << one.Script;
  }
}

TEST_F(ScriptHostTest, AnswersMessagesBeforeTheDialogByWhatTheyOffer) {
  constexpr int kOkOnly = Message::OkOnly, kWarning = Message::Warning, kOkCancel = Message::OkCancel,
                kYesNo = Message::YesNo;
  const std::tuple<int, const char*, int> cases[] = {{kOkOnly, "", 1},
                                                     {kOkOnly, "answer 2", 1},
                                                     {kWarning, "answer 1", 1},
                                                     {kOkCancel, "", 1},
                                                     {kOkCancel, "answer 2", 2},
                                                     {kOkCancel, "answer 7", 1},
                                                     {kOkCancel + kWarning, "answer 2", 2},
                                                     {kYesNo, "", 6},
                                                     {kYesNo, "answer 7", 7},
                                                     {kYesNo + kWarning, "answer 7", 7},
                                                     {kYesNo, "dump\nanswer 7", 6}};
  for (const auto& [flags, script, answer] : cases) {
    std::ostringstream out;
    orlin::Trace trace(out);
    ScriptHost host(ParseScript(script), trace, false);
    EXPECT_EQ(host.ShowMessage({"?", flags, std::nullopt}), answer) << flags << ' ' << script;
    EXPECT_NE(out.str().find(R"("title":null,)"), std::string::npos);
  }
}

TEST_F(ScriptHostTest, StrictEndsWithTheFirstRefusal) {
  const std::string message = R"({"event":"message","text":"Sure?","title":"Title","flags":4,"answer":6})";
  const std::tuple<const char*, const char*, std::string, const char*> cases[] = {
      {"click cmdNone\nclick cmdFail", "click cmdNone", "", "no control named cmdNone"},
      {"answer 1\nanswer 2", "answer 1", "", "no message came"},
      {"answer 1\nclick cmdAsk\nclick cmdFail", "answer 1", message + "\n", "the message has no such button"}};
  for (const auto& [script, action, before, why] : cases) {
    const Json refused = {{"event", "refused"}, {"line", 1}, {"action", action}, {"why", why}};
    EXPECT_EQ(Trace(script, true), kShow + before + refused.dump() + "\nstrict\n");
  }
}

TEST_F(ScriptHostTest, PlaysUntilTheDialogIsHidden) {
  const std::pair<const char*, ExitCode> ends[] = {
      {"", ExitCode::None},
      {"close\nclick cmdOK", ExitCode::None},
      {"click cmdOK\nclick cmdFail", ExitCode::OK},
      {"type txtName \"a\\nb\"\ndump", ExitCode::OK},
      {"key - Enter\nclick cmdNone", ExitCode::OK},
  };
  for (const auto& [script, exit] : ends) {
    EXPECT_EQ(Trace(script), kShow) << script;
    EXPECT_EQ(Exit, exit) << script;
  }
}

}  // namespace
}  // namespace orlin::testing
