#include "OrlinCustomDialogs/hosts/script/script_host.h"

#include <gtest/gtest-spi.h>

#include "app/usage/usage_error.h"
#include "support/dialog_test.h"
#include "support/frame_fixture.h"
#include "support/sample_dialog.h"

namespace orlin::testing {
namespace {

/// Plays scripts on a dialog of every kind, without a public class around it.
class ScriptHostTest : public ::testing::Test {
 protected:
  ~ScriptHostTest() override { UsePlatform({}); }

  /// The trace of a script.
  std::string Trace(const std::string& script, bool strict = false) {
    std::ostringstream out;
    orlin::Trace trace(out);
    const auto host = std::make_shared<ScriptHost>(ParseScript(script), trace, strict);
    UseHost(host);
    Sample dialog;
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

const std::string kShow = R"({"event":"show","dialog":"frmSample","caption":"Every &kind"})"
                          "\n";

std::string Refused(const std::string& action, const std::string& why, int line = 1) {
  return Json({{"event", "refused"}, {"line", line}, {"action", action}, {"why", why}}).dump() + "\n";
}

TEST_F(ScriptHostTest, DumpsEveryKindOfControl) {
  const std::string text = R"(,"text":"","locked":false,"maxLength":0,"selStart":0,"selLength":0)";
  const std::string list = R"(,"listIndex":-1,"list":["one","two"],"itemData":)";
  const std::tuple<const char*, const char*, std::string> expected[] = {
      {"lblName", "Label", R"(,"caption":"&Name:")"},
      {"txtLines", "TextBox", text},
      {"fraMode", "Frame", R"(,"caption":"Mode")"},
      {"optA", "OptionButton", R"(,"caption":"&A","value":true)"},
      {"chkOn", "CheckBox", R"(,"caption":"&On","value":0)"},
      {"cmbPick", "ComboBox", text + list + "[7,7]"},
      {"lstOne", "ListBox", list + "[0,0]"},
      {"lstMany", "ListBox", list + R"([0,0],"selected":[false,false])"},
      {"udHour", "UpDown", R"(,"value":1,"min":1,"max":23)"},
      {"staLine", "StatusBar", R"(,"text":"")"},
      {"tmrClock", "Timer", R"(,"interval":1)"},
      {"cmdOK", "Button", R"(,"caption":"OK")"},
      {"grdTable", "Grid",
       R"(,"rows":3,"cols":2,"row":1,"col":0,"cells":[["Title",""],["","old"],["",""]],)"
       R"("colours":[[0,0],[0,255],[0,0]],"bold":[[false,false],[false,false],[true,false]],"editing":false)"}};
  const auto trace = Trace("dump");
  EXPECT_TRUE(trace.starts_with(
      kShow + R"({"event":"state","caption":"Every &kind","focus":"txtName","controls":{"lblName":{)"));
  const auto controls = Json::parse(trace.substr(kShow.size())).at("controls");
  for (const auto& [name, kind, state] : expected) {
    EXPECT_EQ(controls.at(name).dump(), R"({"kind":")" + std::string(kind) +
                                            R"(","visible":true,"enabled":true,"left":0,"top":0,"width":0)" + state +
                                            "}");
  }
  EXPECT_EQ(controls.at("cmdHidden").at("visible"), false);
  EXPECT_EQ(controls.at("txtLocked").at("locked"), true);
  EXPECT_TRUE(controls.at("txtName").dump().ends_with(R"("left":10,"top":20,"width":30,"text":"ab","locked":false,)"
                                                      R"("maxLength":5,"selStart":0,"selLength":0})"));
}

TEST_F(ScriptHostTest, PlaysEachAction) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"select cmbPick 1", "cmbPick", "text", "\"two\""},
      {"select lstMany 1 on", "lstMany", "selected", "[false,true]"},
      {"select lstChecks 0 on\nselect lstChecks 1 on\nselect lstChecks 0 off", "lstChecks", "selected", "[false,true]"},
      {"click optB", "optA", "value", "false"},
      {"click chkOn", "chkOn", "value", "1"},
      {"type txtName \"\u20AC\"", "txtName", "text", "\"\u20ACab\""},
      {"type txtName \"x\\t\\tz\"", "cmbEdit", "text", "\"z\""},
      {"type txtLines \"a\\r\\nb\\nc\"", "txtLines", "text", R"("a\r\nb\r\nc")"},
      {"type cmbEdit \"o\\t\\r\\nx\"", "txtLines", "text", R"("\r\nx")"},
      {"key txtName End\nkey txtName Backspace", "txtName", "text", "\"a\""},
      {"key - Delete", "txtName", "text", "\"b\""},
      {"focus cmbPick\nkey - Down\nkey - Down", "cmbPick", "listIndex", "1"},
      {"focus chkOn\nkey - Alt+n\nkey - Delete", "txtName", "text", "\"b\""},
      {"caret txtName 1 1\ntype txtName \"z\"", "txtName", "text", "\"az\""},
      {"step udHour up 2\nstep udHour down", "udHour", "value", "8"},
      {"tick tmrClock", "staLine", "text", "\"ticked\""},
      {"cell grdTable 2 1", "grdTable", "row", "2"},
      {"cell grdTable 1 1\ndoubleclick grdTable", "grdTable", "editing", "true"},
      {"cell grdTable 1 1\nkey grdTable F2\nkey - End\ntype grdTable \"er\"\nkey - Enter", "grdTable", "cells",
       R"([["Title",""],["","older"],["",""]])"},
      {"cell grdTable 1 1\ntype grdTable \"er\\n\"", "grdTable", "cells", R"([["Title",""],["","er"],["",""]])"},
      {"type cmbPick \"tw\"", "cmbPick", "listIndex", "1"},
      {"type cmbPick \"t\"\ntype cmbPick \"o\"", "cmbPick", "listIndex", "0"},
      {"edit grdTable 1 1 \"\"", "grdTable", "cells", R"([["Title",""],["",""],["",""]])"},
      // The first line end ends the edit; nothing that follows it reaches the default button.
      {"edit grdTable 1 1 \"a\\nb\\n\"", "grdTable", "cells", R"([["Title",""],["","a"],["",""]])"}};
  for (const auto& [script, control, field, holds] : cases) {
    EXPECT_EQ(State(script).at("controls").at(control).at(field).dump(), holds) << script;
  }
}

TEST_F(ScriptHostTest, MovesTheFocusFirst) {
  const std::pair<const char*, const char*> cases[] = {
      {"select lstOne 0", "lstOne"},     {"select lstMany 0 on", "lstMany"}, {"click cmdAsk", "cmdAsk"},
      {"type cmbEdit \"\"", "cmbEdit"},  {"key lstOne Down", "lstOne"},      {"caret cmbEdit 0 0", "cmbEdit"},
      {"cell grdTable 1 0", "grdTable"}, {"step udHour up", "txtName"}};
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
      {"tick txtName", "txtName (TextBox) is not a timer"}};
  for (const auto& [action, why] : refusals) {
    EXPECT_EQ(Trace("# refused\n" + std::string(action)), kShow + Refused(action, why, 2));
  }
  // The keys that follow a refused one are pressed.
  const std::string keys = R"(type txtLines "!xy\n")";
  EXPECT_EQ(Trace(keys), kShow + Refused(keys, "no control within reach has the focus"));
  EXPECT_EQ(Exit, ExitCode::OK);
}

TEST_F(ScriptHostTest, TellsWhatHappensInItsOrder) {
  EXPECT_EQ(Trace("answer 7\nclick cmdAsk\nclick cmdFail"),
            kShow +
                "{\"event\":\"message\",\"text\":\"Sure?\",\"title\":\"Title\",\"flags\":4,\"answer\":7}\n"
                "{\"event\":\"beep\"}\n"
                "{\"event\":\"failure\",\"number\":380,\"handler\":\"cmdFail_Click\"}\n");
}

TEST_F(ScriptHostTest, AnswersMessages) {
  const std::tuple<const char*, int, std::string> cases[] = {
      {"click cmdAsk", 6, ""},
      {"answer 7\nclick cmdAsk", 7, ""},
      {"answer 6\nanswer 7\nclick cmdAsk\nclick cmdAsk", 7, ""},
      {"answer 1\nclick cmdAsk", 6, Refused("answer 1", "the message has no such button")},
      {"answer 1", 0, Refused("answer 1", "no message came")}};
  for (const auto& [script, answer, refused] : cases) {
    const auto trace = Trace(script);
    EXPECT_EQ(Answered, answer) << script;
    const auto at = trace.find("{\"event\":\"refused\"");
    EXPECT_EQ(at == std::string::npos ? "" : trace.substr(at), refused) << script;
  }
}

TEST_F(ScriptHostTest, AnswersMessagesBeforeTheDialogByWhatTheyOffer) {
  constexpr int kOkOnly = Message::OkOnly, kWarning = Message::Warning, kOkCancel = Message::OkCancel,
                kYesNo = Message::YesNo;
  const std::pair<int, std::vector<std::pair<const char*, int>>> cases[] = {
      {kOkOnly, {{"", 1}, {"answer 2", 1}}},
      {kWarning, {{"answer 1", 1}}},
      {kOkCancel, {{"", 1}, {"answer 2", 2}, {"answer 7", 1}}},
      {kOkCancel + kWarning, {{"answer 2", 2}}},
      {kYesNo, {{"", 6}, {"answer 7", 7}, {"dump\nanswer 7", 6}}},
      {kYesNo + kWarning, {{"answer 7", 7}}}};
  for (const auto& [flags, scripts] : cases) {
    for (const auto& [script, answer] : scripts) {
      std::ostringstream out;
      orlin::Trace trace(out);
      ScriptHost host(ParseScript(script), trace, false);
      EXPECT_EQ(host.ShowMessage({"?", flags, std::nullopt}), answer) << flags << ' ' << script;
      EXPECT_NE(out.str().find(R"("title":null,)"), std::string::npos);
    }
  }
}

TEST_F(ScriptHostTest, StrictEndsWithTheFirstRefusal) {
  EXPECT_EQ(Trace("click cmdNone\nclick cmdFail", true),
            kShow + Refused("click cmdNone", "no control named cmdNone") + "strict\n");
  EXPECT_EQ(Trace("answer 1\nanswer 2", true), kShow + Refused("answer 1", "no message came") + "strict\n");
  EXPECT_TRUE(Trace("answer 1\nclick cmdAsk\nclick cmdFail", true)
                  .ends_with(Refused("answer 1", "the message has no such button") + "strict\n"));
}

TEST_F(ScriptHostTest, PlaysUntilTheDialogIsHidden) {
  const std::pair<const char*, ExitCode> ends[] = {{"", ExitCode::None},
                                                   {"close\nclick cmdOK", ExitCode::None},
                                                   {"click cmdOK\nclick cmdFail", ExitCode::OK},
                                                   {"type txtName \"a\\nb\"\ndump", ExitCode::OK},
                                                   {"key - Enter\nclick cmdNone", ExitCode::OK}};
  for (const auto& [script, exit] : ends) {
    EXPECT_EQ(Trace(script), kShow) << script;
    EXPECT_EQ(Exit, exit) << script;
  }
}

DialogRun PlayWillow(const std::string& script, const PlayOptions& options = {}) {
  return Play("clsZoneFunctionsWillow", {"ZoneNum=5"}, script, options);
}

TEST(Play, FailsOnWhatTheTestDoesNotExpect) {
  EXPECT_NONFATAL_FAILURE(PlayWillow("select cmbDigit(0) 1\nselect cmbDigit(1) 2\nclick cmdOK"), "nobody expected");
  EXPECT_NONFATAL_FAILURE(PlayWillow("answer 1"), "no message came");
  EXPECT_NONFATAL_FAILURE(PlayWillow("click cmdNone"), "no control named cmdNone");
  PlayOptions options;
  options.MayRefuse = true;
  EXPECT_EQ(PlayWillow("click cmdNone", options).Fields("refused", "line"), std::vector<Json>{1});
  EXPECT_THROW(Play("clsNone", {}, ""), std::invalid_argument);
  EXPECT_THROW(Play("clsZoneFunctionsWillow", {"Zone=5"}, ""), UsageError);
}

}  // namespace
}  // namespace orlin::testing
