#include "app/command_line/command.h"

#include <array>
#include <cstdio>

#include <sys/wait.h>

#include "app/usage/usage_error.h"
#include "cipher/ccrypt.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"

// The command as a whole: what it prints where, and how it ends.

namespace orlin::testing {
namespace {

class CommandTest : public FolderTest {
 protected:
  CommandTest() {
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(display);
    for (const char* language : {"LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(language);
  }
};

Ended Edit(const std::string& line, const std::string& script = {}) {
  return RunHost("edit " + line + " --script -", script);
}

/// Runs a line of bash.
Ended Shell(const std::string& line) {
  Ended ended;
  FILE* const shell = popen(("exec bash -c '" + line + "'").c_str(), "r");
  std::array<char, 4096> part{};
  while (const auto read = std::fread(part.data(), 1, part.size(), shell)) ended.Out.append(part.data(), read);
  ended.Status = WEXITSTATUS(pclose(shell));
  return ended;
}

const std::string kShow = R"({"event":"show","dialog":"frmZoneFuncsWillow","caption":"Zone Function"})"
                          "\n";

TEST_F(CommandTest, IsAProgram) {
  const std::string edit = ORLIN_HOST " edit clsZoneFunctionsWillow ";
  const auto played =
      Shell(edit + R"(--stored ZoneNum=5 ZoneCode=\"5111\" --script )" ORLIN_EXAMPLES "/zone.script 2>&1");
  EXPECT_EQ(played.Status, 0);
  EXPECT_TRUE(played.Out.starts_with(kShow + R"({"event":"message","text":")")) << played.Out;
  EXPECT_TRUE(played.Out.ends_with(
      R"({"event":"return","result":0,"arguments":{"ZoneNum":{"type":"Integer","value":5},"ZoneCode":{"type":"String",)"
      "\"value\":\"2111\"}}}\n"))
      << played.Out;
  // Nobody sits in front of a screen, a disk is full, and a reader has gone.
  const std::pair<std::string, std::string> fails[] = {
      {edit + "--host qt", "name an operator's script with --script FILE"},
      {edit + "--host qt --script -", "name an operator's script with --script FILE"},
      {"exec 3>/dev/full; " + edit + "--script - >&3", "orlin-host: the output cannot be written\n"},
      {"exec 3> >(:); wait $!; " + edit + "--script - >&3", "orlin-host: the output cannot be written\n"}};
  for (const auto& [line, what] : fails) {
    const auto ended = Shell("exec 4>&1; " + line + " </dev/null 2>&4");
    EXPECT_EQ(ended.Status, 2) << line;
    EXPECT_NE(ended.Out.find(what), std::string::npos) << ended.Out;
  }
}

TEST_F(CommandTest, TellsWhatMakesNoSenseInOneLine) {
  std::ofstream("bad.script") << "dump\nselect cmbDigit(0)\n";
  std::ofstream("bad.tsv") << "x\n";
  const std::string willow = "edit clsZoneFunctionsWillow", played = willow + " --script -";
  const std::pair<std::string, std::string> calls[] = {
      {"", "a command is missing: list, describe, edit, account or encrypt"},
      {"open", "there is no command open: the commands are list, describe, edit, account and encrypt"},
      {"dscribe", "there is no command dscribe (did you mean describe?)"},
      {"--hlep", "has no option --hlep (did you mean --help?)"},
      {"edit", "edit: CLASS is required"},
      {"list Willow", "(did you mean clsSkedFunc_WillowAce, clsSkedFunc_WillowDuo or clsZoneFunctionsWillow?)"},
      {"describe", "describe wants either CLASS or --account FILE"},
      {"describe --account x --level A=1,1", "describe wants either CLASS or --account FILE"},
      {"describe clsPanelGMT --account x", "describe wants either CLASS or --account FILE"},
      {"describe clsPanelGMT iHr=5", "has no parameter \"iHr\" (did you mean iHrs?): it takes iHrs, iMins,"},
      {"describe clsPanelGMT --language fr_FR", "there are no texts in fr_FR, but in de and en"},
      {"account x y", "account takes no y"},
      {"account none", "cannot read none: No such file or directory"},
      {"encrypt", "encrypt wants the password as one line on standard input"},
      {"encrypt hunter2", "others could read a password there; it is read from standard input"},
      {"encrypt list", "it is read from standard input"},
      {"encrypt --password=hunter2", "it is read from standard input"},
      {"edit list --script -", "there is no public class list: orlin-host list names them all"},
      {"edit cls\nNone --script -", "there is no public class cls None"},
      {played + " --level A", "--level wants NAME=VIEW,EDIT"},
      {willow + " --script bad.script", "bad.script: line 2: select wants a control and a row"},
      {willow + " --script none", "none cannot be read: No such file or directory"},
      {willow + " --script .", "cannot be read: Is a directory"},
      {played + " --script -", "--script may be given once"},
      {played + " --catalogue none", "none cannot be read"},
      {played + " --catalogue bad.tsv", "bad.tsv:1: "},
      {played + " --now noon", "\"noon\""},
      {played + " --nonsense", "edit has no option --nonsense (orlin-host edit --help)"},
      {willow + " --script", "--script wants FILE"},
      {played + " --host paper", "paper"},
      {played + " --host qt", "windows are wanted"},
      {willow + " --host script", "--host script wants --script FILE"},
      {willow, "windows are wanted"}};
  for (const auto& [line, what] : calls) {
    const auto ended = RunHost(line);
    EXPECT_EQ(ended.Status, 2) << what;
    EXPECT_EQ(ended.Out, "") << what;
    EXPECT_TRUE(ended.Err.starts_with("orlin-host: ")) << ended.Err;
    EXPECT_NE(ended.Err.find(what), std::string::npos) << ended.Err;
    EXPECT_EQ(ended.Err.find('\n'), ended.Err.size() - 1) << ended.Err;
    EXPECT_EQ(ended.Err.find("hunter2"), std::string::npos) << ended.Err;
  }
}

TEST_F(CommandTest, TellsTheOutcomeWhereItIsAsked) {
  const std::string nova = "clsErrorMessageNova vItemNo=[] vValue=[]";
  const std::tuple<std::string, const char*, int> cases[] = {{"clsZoneFunctionsWillow", "click cmdOK", 0},
                                                             {"clsZoneFunctionsWillow", "click cmdCancel", 1},
                                                             {"clsZoneFunctionsWillow", "close", 1},
                                                             {"clsZoneFunctionsBirch vType=16", "", 3},
                                                             {nova, "click OptAccept\nclick btnAcceptChanges", 0},
                                                             {nova, "click btnCancel", 1},
                                                             {"clsPanelGMT iHrs=13", "", 3}};
  for (const auto& [line, script, status] : cases) {
    EXPECT_EQ(Edit(line, script).Status, 0) << line << script;
    EXPECT_EQ(Edit(line + " --exit-status", script).Status, status) << line << script;
  }
  const auto strict = Edit("clsZoneFunctionsWillow --strict", "click cmdNone\nclick cmdOK");
  EXPECT_EQ(strict.Status, 4);
  EXPECT_TRUE(strict.Out.ends_with("\"why\":\"no control named cmdNone\"}\n")) << strict.Out;
}

TEST_F(CommandTest, StoredValuesComeBackStoredAndOnlyWhereConfirmed) {
  const std::string pick = "select cmbDigit(0) 1\nclick ", empty = R"(,"res":{"type":"Empty")";
  const std::string passcodes = R"(clspasscodeLen vresult=["56789",""*249] vpresent=[""*250] vPasscodeLength=4)";
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"clsZoneFunctionsWillow ZoneCode=\"5109\"", "click cmdOK", R"("value":"5100"}})"},
      {"clsZoneFunctionsWillow ZoneCode=5111", pick + "cmdOK", R"({"type":"String","value":"2111"}})"},
      {"clsZoneFunctionsWillow ZoneCode=5111", pick + "cmdCancel", R"({"type":"Integer","value":5111}})"},
      {"clsTime_FirePanels Index=754", "step UpDown1 up\nclick cmdOK", "\"value\":814}" + empty},
      {"clsLstTime_Rowan Index=13", "select List1 7\nclick cmdCancel", "\"value\":13}" + empty},
      {"clsErrorMessageNova vItemNo=[7] vValue=[5]", "click OptAccept\nclick btnAcceptChanges", R"("value":["3"])"},
      {passcodes, "click cmdOK", R"("value":["5678",)"},
      {passcodes, "click cmdCancel", R"("value":["56789",)"},
      {"clsOctalRelaysBirch vType=9 vData=\"1F\"", "", R"("vData":{"type":"String","value":"1F"})"}};
  for (const auto& [line, script, arguments] : cases) {
    const auto ended = Edit(line + " --stored", script);
    EXPECT_NE(ended.Out.find(arguments), std::string::npos) << ended.Out << ended.Err;
  }
  EXPECT_TRUE(RunHost("describe --stored clsZoneFunctionsWillow ZoneCode=5146").Out.find("5146\n") !=
              std::string::npos);
}

TEST_F(CommandTest, TakesRightsAndFiles) {
  std::ofstream("texts.tsv") << "1192\tItem %ITEM%\n";
  const auto rights = Edit(
      "clsZoneFunctionsBirch --level AuthorityLevel=1,1 vName=-a --level Type=2,1 "
      "--catalogue texts.tsv",
      "focus cmbType");
  EXPECT_NE(rights.Out.find(R"("caption":"Item -a")"), std::string::npos) << rights.Out;
  EXPECT_NE(rights.Out.find("cmbType is hidden"), std::string::npos) << rights.Out;

  std::ofstream("setup.reg") << "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Setup]\n\"WarningLevel\"=\"2\"\n";
  std::ofstream("list") << "[PanelNotes]\nDBTYPE=ACCESS\nDBDRV=X\nDBDIR=\\\nDBNAME=n.db\n";
  const std::string stored = "clsPanelNotes PanelGUID=P NoteHeader=N NoteTypeID=3 --data-list list --drives . ";
  Edit(stored + "IsInMemory=true Content=x", "click cmdOK");
  EXPECT_TRUE(std::filesystem::exists("x/n.db"));
  for (const auto& [option, file] : {std::pair("", "Tolmar.err"), {" --fault-file faults", "faults"}}) {
    Edit("clsPanelNotes --drives none --settings setup.reg" + std::string(option));
    EXPECT_NE(ContentOf(file).find("\tlevel=2\tnumber=3049\t"), std::string::npos) << ContentOf(file);
  }
}

TEST_F(CommandTest, ListsThePublicClasses) {
  const std::pair<const char*, const char*> calls[] = {
      {"list", "clsLstTime_Rowan        Index:Integer res*\n"},
      {"list clspasscodeLen", "  bChangedStatus   Integer  required, comes back changed\n"},
      {"list clspasscodeLen", "  SecurityLevels   rights   optional, the records of --level\n"},
      {"list --json", R"("parameters":[{"name":"Index","kind":"Integer","required":true,"changes":false},)"},
      {"list clspasscodeLen --json", R"({"name":"bThroughSIA","kind":"Integer","required":false,)"},
      {"--version", "orlin-host 1."},
      {"edit --help", "Operator:\n  --script FILE"}};
  for (const auto& [line, what] : calls) EXPECT_NE(RunHost(line).Out.find(what), std::string::npos) << line;
}

TEST_F(CommandTest, SpeaksToPeopleInTheirLanguage) {
  setenv("LC_MESSAGES", "de_AT.UTF-8", 1);
  setenv("LANG", "en_US.UTF-8", 1);
  const std::string describe = "describe clsZoneFunctionsWillow";
  EXPECT_TRUE(RunHost(describe).Out.starts_with("Zonenfunktion\n"));
  EXPECT_TRUE(RunHost(describe + " --language en").Out.starts_with("Zone Function\n"));
  setenv("LC_ALL", "C", 1);
  EXPECT_TRUE(RunHost(describe).Out.starts_with("Zone Function\n"));
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  // Programs read the same everywhere.
  EXPECT_NE(RunHost(describe + " --json").Out.find("\"Zone Function\""), std::string::npos);
  EXPECT_TRUE(Edit("clsZoneFunctionsWillow").Out.starts_with(kShow));
  EXPECT_NE(Edit("clsZoneFunctionsWillow --language de").Out.find("\"Zonenfunktion\""), std::string::npos);
}

TEST_F(CommandTest, EncryptsThePassword) {
  for (const char* line : {"se cr\xC3\xA9t", "se cr\xC3\xA9t\n", "se cr\xC3\xA9t\r\nmore\n"}) {
    const auto ended = RunHost("encrypt", line);
    ASSERT_TRUE(ended.Out.ends_with('\n')) << ended.Err;
    EXPECT_EQ(CCrypt().DecryptString(ended.Out.substr(0, ended.Out.size() - 1)), "se cr\xC3\xA9t");
  }
}

TEST_F(CommandTest, CompletesWordsInBash) {
  const std::pair<std::string, const char*> cases[] = {{"\"\"", "list describe edit account encrypt --version --help"},
                                                       {"edit clsZoneFunctionsW", "clsZoneFunctionsWillow"},
                                                       {"edit --level A = 1,2 clsPanelGMT iHrs = 5 iM", "iMins="},
                                                       {"edit clsPanelGMT iHrs =", ""},
                                                       {"describe --acc", "--account"},
                                                       {"edit clsPanelGMT --host = s", "script"},
                                                       {"edit clsPanelGMT --strict --language \"\"", "de en"}};
  for (const auto& [words, offered] : cases) {
    EXPECT_EQ(Shell("source " ORLIN_COMPLETION "; compopt() { :; }; COMP_WORDS=(orlin-host " + words +
                    "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _orlin_host " ORLIN_HOST "; echo -n ${COMPREPLY[@]}")
                  .Out,
              offered);
  }
}

}  // namespace
}  // namespace orlin::testing
