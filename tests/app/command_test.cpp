#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "cipher/ccrypt.h"
#include "support/temporary_folder.h"

extern char** environ;

// The program as a whole: what it prints where, and how it ends.

namespace orlin::testing {
namespace {

struct Ended {
  int Status = -1;
  std::string Out;
  std::string Err;
};

std::string Read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class CommandTest : public ::testing::Test {
 protected:
  CommandTest() {
    // Nobody sits in front of a screen.
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(display);
    for (const char* language : {"LC_ALL", "LC_MESSAGES", "LANG"}) unsetenv(language);
  }

  /// Runs orlin-host with a text on standard input. Its output goes to a file, or to a descriptor that is named.
  Ended Run(std::vector<std::string> words, const std::string& input = {}, std::optional<int> output = {}) const {
    const auto in = Folder.Write("in", input);
    const auto out = Folder.Write("out", "");
    const auto err = Folder.Write("err", "");
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 0, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, out.c_str(), O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files, 2, err.c_str(), O_WRONLY, 0);
    if (output) posix_spawn_file_actions_adddup2(&files, *output, 1);

    words.insert(words.begin(), ORLIN_HOST);
    std::vector<char*> pointers;
    for (auto& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t process = 0;
    const int spawned = posix_spawn(&process, ORLIN_HOST, &files, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (spawned != 0) return {};
    int status = 0;
    waitpid(process, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Read(out), Read(err)};
  }

  Ended Edit(std::vector<std::string> words, const std::string& script = {}) const {
    words.insert(words.begin(), "edit");
    words.insert(words.end(), {"--script", "-"});
    return Run(std::move(words), script);
  }

  std::string Path(const std::string& name) const { return (Folder.Path() / name).string(); }

  TemporaryFolder Folder;
};

std::string Returned(const std::string& result, const std::string& number, const std::string& code) {
  return R"({"event":"return","result":)" + result + R"(,"arguments":{"ZoneNum":)" + number + R"(,"ZoneCode":)" + code +
         "}}\n";
}

std::string Text(const std::string& escaped) { return R"({"type":"String","value":")" + escaped + "\"}"; }

const std::string kShow = R"({"event":"show","dialog":"frmZoneFuncsWillow","caption":"Zone Function"})"
                          "\n";
const std::string kEmpty = R"({"type":"Empty","value":null})";

TEST_F(CommandTest, PlaysTheExample) {
  const auto ended = Run({"edit", "clsZoneFunctionsWillow", "--stored", "ZoneNum=5", "ZoneCode=\"5111\"", "--script",
                          ORLIN_EXAMPLES "/zone.script"});
  EXPECT_EQ(ended.Status, 0);
  EXPECT_EQ(ended.Err, "");
  EXPECT_EQ(std::count(ended.Out.begin(), ended.Out.end(), '\n'), 3);
  EXPECT_EQ(ended.Out.find(kShow + R"({"event":"message","text":")"), 0U) << ended.Out;
  EXPECT_NE(ended.Out.find(R"(","flags":0,"answer":1})"
                           "\n" +
                           Returned("0", R"({"type":"Integer","value":5})", Text("2111"))),
            std::string::npos)
      << ended.Out;
}

TEST_F(CommandTest, PrintsArgumentsOfEveryKind) {
  const std::pair<const char*, std::string> values[] = {
      {"70000", R"({"type":"Long","value":70000})"},
      {"2.5", R"({"type":"Double","value":2.5})"},
      {"true", R"({"type":"Boolean","value":true})"},
      {"\"a\\\"b\\\\c\\n\x01\"", Text(R"(a\"b\\c\n\u0001)")},
      {"\xE2\x82\xAC\xF0\x9F\x94\x92", Text("\xE2\x82\xAC\xF0\x9F\x94\x92")},
      {"a\xFF\xC3"
       "b",
       Text("a\xEF\xBF\xBD\xEF\xBF\xBD"
            "b")},
      {"[1,\"x\",[empty]]",
       R"({"type":"Array","value":[1,"x",[null]],"types":["Integer","String","Array"],"lower":0})"},
  };
  for (const auto& [value, shown] : values) {
    const auto ended = Edit({"clsZoneFunctionsWillow", std::string("ZoneNum=") + value});
    EXPECT_EQ(ended.Out, kShow + Returned("1", shown, kEmpty)) << value;
    EXPECT_EQ(ended.Status, 0);
    EXPECT_EQ(ended.Err, "");
  }
}

TEST_F(CommandTest, TellsWhatMakesNoSenseInOneLine) {
  Folder.Write("bad.script", "dump\nselect cmbDigit(0)\n");
  Folder.Write("bad.tsv", "x\n");
  const std::string willow = "clsZoneFunctionsWillow";
  const std::pair<std::vector<std::string>, std::string> calls[] = {
      {{}, "a command is missing: list, describe, edit, account or encrypt"},
      {{"open"}, "there is no command open: the commands are list, describe, edit, account and encrypt"},
      {{"dscribe"}, "there is no command dscribe (did you mean describe?)"},
      {{"--hlep"}, "has no option --hlep (did you mean --help?)"},
      {{"edit"}, "edit: CLASS is required"},
      {{"list", "Willow"}, "(did you mean clsSkedFunc_WillowAce, clsSkedFunc_WillowDuo or clsZoneFunctionsWillow?)"},
      {{"describe"}, "describe wants either CLASS or --account FILE"},
      {{"describe", "--level", "A=1,1"}, "describe wants either CLASS or --account FILE"},
      {{"describe", "clsPanelGMT", "--account", "x"}, "describe wants either CLASS or --account FILE"},
      {{"describe", "clsPanelGMT", "iHr=5"}, "has no parameter \"iHr\" (did you mean iHrs?): it takes iHrs, iMins,"},
      {{"describe", "clsPanelGMT", "--language", "fr_FR"}, "there are no texts in fr_FR, but in de and en"},
      {{"account", "x", "y"}, "account takes no y"},
      {{"encrypt"}, "encrypt wants the password as one line on standard input"},
      {{"encrypt", "hunter2"}, "others could read a password there; it is read from standard input"},
      {{"encrypt", "list"}, "it is read from standard input"},
      {{"encrypt", "--password=hunter2"}, "it is read from standard input"},
      {{"edit", "clsNone", "--script", "-"}, "there is no public class clsNone: orlin-host list names them all"},
      {{"edit", "cls\nNone", "--script", "-"}, "there is no public class cls None"},
      {{"edit", willow, "--script", "-", "Zone=5"}, "has no parameter \"Zone\""},
      {{"edit", willow, "--script", "-", "ZoneNum=\"5"}, "ZoneNum: the text has no closing quote"},
      {{"edit", willow, "--script", "-", "--level", "A"}, "--level wants NAME=VIEW,EDIT"},
      {{"edit", willow, "--script", Path("bad.script")}, "bad.script: line 2: select wants a control and a row"},
      {{"edit", willow, "--script", Path("none")}, "none cannot be read: No such file or directory"},
      {{"edit", willow, "--script", Path("")}, "cannot be read: Is a directory"},
      {{"edit", willow, "--script", "-", "--script", "-"}, "--script may be given once"},
      {{"edit", willow, "--script", "-", "--catalogue", Path("none")}, "none cannot be read"},
      {{"edit", willow, "--script", "-", "--catalogue", Path("bad.tsv")}, "bad.tsv:1: "},
      {{"edit", willow, "--script", "-", "--settings", Path("none")}, "none cannot be read"},
      {{"edit", willow, "--script", "-", "--data-list", Path("none")}, "none cannot be read"},
      {{"edit", willow, "--script", "-", "--now", "noon"}, "\"noon\""},
      {{"edit", willow, "--script", "-", "--nonsense"}, "edit has no option --nonsense (orlin-host edit --help)"},
      {{"edit", willow, "--script"}, "--script wants FILE"},
      {{"edit", willow, "--script", "-", "--host", "paper"}, "paper"},
      {{"edit", willow, "--host", "script"}, "--host script wants --script FILE"},
      {{"edit", willow}, "name an operator's script with --script FILE"},
      {{"edit", willow, "--host", "qt", "--script", "-"}, "name an operator's script with --script FILE"},
  };
  for (const auto& [words, what] : calls) {
    const auto ended = Run(words);
    EXPECT_EQ(ended.Status, 2) << what;
    EXPECT_EQ(ended.Out, "") << what;
    EXPECT_EQ(ended.Err.find("orlin-host: "), 0U) << what;
    EXPECT_NE(ended.Err.find(what), std::string::npos) << ended.Err;
    EXPECT_EQ(ended.Err.find('\n'), ended.Err.size() - 1) << ended.Err;
    EXPECT_EQ(ended.Err.find("hunter2"), std::string::npos) << ended.Err;
  }
}

TEST_F(CommandTest, TellsTheOutcomeWhereItIsAsked) {
  const struct {
    std::vector<std::string> Words;
    const char* Script;
    int Status;
  } cases[] = {
      {{"clsZoneFunctionsWillow"}, "click cmdOK", 0},
      {{"clsZoneFunctionsWillow"}, "click cmdCancel", 1},
      {{"clsZoneFunctionsWillow"}, "close", 1},
      {{"clsZoneFunctionsBirch", "vType=16"}, "", 3},
      {{"clsErrorMessageNova", "vItemNo=[]", "vValue=[]"}, "click OptAccept\nclick btnAcceptChanges", 0},
      {{"clsErrorMessageNova", "vItemNo=[]", "vValue=[]"}, "click btnCancel", 1},
      {{"clsPanelGMT", "iHrs=13"}, "", 3},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(Edit(one.Words, one.Script).Status, 0) << one.Script;
    auto words = one.Words;
    words.emplace_back("--exit-status");
    EXPECT_EQ(Edit(words, one.Script).Status, one.Status) << one.Script;
  }
}

TEST_F(CommandTest, StoredValuesComeBackStoredAndOnlyWhereConfirmed) {
  const std::string pick = "select cmbDigit(0) 1\nclick ";
  const struct {
    std::vector<std::string> Words;
    std::string Script;
    const char* Arguments;
  } cases[] = {
      {{"clsZoneFunctionsWillow", "ZoneCode=\"5109\""}, "click cmdOK", R"("value":"5100"}})"},
      {{"clsZoneFunctionsWillow", "ZoneCode=5111"}, pick + "cmdOK", R"({"type":"String","value":"2111"}})"},
      {{"clsZoneFunctionsWillow", "ZoneCode=5111"}, pick + "cmdCancel", R"({"type":"Integer","value":5111}})"},
      {{"clsTime_FirePanels", "Index=754"},
       "step UpDown1 up\nclick cmdOK",
       R"({"Index":{"type":"Integer","value":814},"res":{"type":"Empty","value":null}})"},
      {{"clsLstTime_Rowan", "Index=13"},
       "select List1 7\nclick cmdCancel",
       R"({"Index":{"type":"Integer","value":13},"res":{"type":"Empty","value":null}})"},
      {{"clsErrorMessageNova", "vItemNo=[7]", "vValue=[5]"},
       "click OptAccept\nclick btnAcceptChanges",
       R"("vValue":{"type":"Array","value":["3"])"},
      {{"clspasscodeLen", "vresult=[\"56789\",\"\"*249]", "vpresent=[\"\"*250]", "vPasscodeLength=4"},
       "click cmdOK",
       R"("value":["5678",)"},
      {{"clspasscodeLen", "vresult=[\"56789\",\"\"*249]", "vpresent=[\"\"*250]", "vPasscodeLength=4"},
       "click cmdCancel",
       R"("value":["56789",)"},
      {{"clsOctalRelaysBirch", "vType=9", "vData=\"1F\""}, "", R"("vData":{"type":"String","value":"1F"})"},
  };
  for (auto [words, script, arguments] : cases) {
    words.emplace_back("--stored");
    const auto ended = Edit(words, script);
    EXPECT_NE(ended.Out.find(arguments), std::string::npos) << ended.Out << ended.Err;
  }
  EXPECT_NE(Run({"describe", "--stored", "clsZoneFunctionsWillow", "ZoneCode=5146"}).Out.find("5146\n"),
            std::string::npos);
}

TEST_F(CommandTest, StrictEndsWithTheRefusedLine) {
  const std::string refused =
      R"({"event":"refused","line":1,"action":"click cmdNone","why":"no control named cmdNone"})"
      "\n";
  const auto strict = Edit({"clsZoneFunctionsWillow", "--strict"}, "click cmdNone # not there\nclick cmdOK");
  EXPECT_EQ(strict.Status, 4);
  EXPECT_EQ(strict.Out, kShow + refused);
  EXPECT_EQ(strict.Err, "");
  const auto patient = Edit({"clsZoneFunctionsWillow"}, "click cmdNone\nclick cmdOK");
  EXPECT_EQ(patient.Status, 0);
  EXPECT_EQ(patient.Out, kShow + refused + Returned("0", kEmpty, Text("1111")));
}

TEST_F(CommandTest, TakesRightsAndFiles) {
  Folder.Write("texts.tsv", "1192\tItem %ITEM%\n");
  const auto ended = Edit({"clsZoneFunctionsBirch", "vName=a b", "--level", "AuthorityLevel=1,1", "--level",
                           "Trouble On=2,1", "--catalogue", Path("texts.tsv")},
                          "focus cmbTroubleOn");
  EXPECT_EQ(
      ended.Out.find(R"({"event":"show","dialog":"frmZoneFuncsBirch","caption":"Item a b"})"
                     "\n"
                     R"({"event":"refused","line":1,"action":"focus cmbTroubleOn","why":"cmbTroubleOn is hidden"})"),
      0U)
      << ended.Out;
}

TEST_F(CommandTest, ListsThePublicClasses) {
  const std::pair<std::vector<std::string>, std::string> calls[] = {
      {{"list"}, "clsZoneFunctionsBirch   vName vType* vOption* vTroubleOn* SecurityLevels\n"},
      {{"list"}, "clsLstTime_Rowan        Index:Integer res*\n"},
      {{"list", "clspasscodeLen"}, "  bChangedStatus   Integer  required, comes back changed\n"},
      {{"list", "clspasscodeLen"}, "  SecurityLevels   rights   optional, the records of --level\n"},
      {{"list", "--json"}, R"("parameters":[{"name":"Index","kind":"Integer","required":true,"changes":false},)"},
      {{"list", "clspasscodeLen", "--json"}, R"({"name":"bThroughSIA","kind":"Integer","required":false,)"},
      {{"--version"}, "orlin-host 1."},
      {{"--help"}, "describe                    Prints what raw values mean"},
      {{"edit", "--help"}, "Operator:\n  --script FILE"},
  };
  for (const auto& [words, what] : calls) {
    const auto ended = Run(words);
    EXPECT_EQ(ended.Status, 0) << what;
    EXPECT_NE(ended.Out.find(what), std::string::npos) << ended.Out;
  }
}

TEST_F(CommandTest, SpeaksToPeopleInTheirLanguage) {
  setenv("LC_MESSAGES", "de_AT.UTF-8", 1);
  setenv("LANG", "en_US.UTF-8", 1);
  const std::string willow = "clsZoneFunctionsWillow";
  EXPECT_EQ(Run({"describe", willow}).Out.find("Zonenfunktion\n"), 0U);
  EXPECT_EQ(Run({"describe", willow, "--language", "en"}).Out.find("Zone Function\n"), 0U);
  setenv("LC_ALL", "C", 1);
  EXPECT_EQ(Run({"describe", willow}).Out.find("Zone Function\n"), 0U);
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  // Programs read the same everywhere.
  EXPECT_NE(Run({"describe", willow, "--json"}).Out.find("\"Zone Function\""), std::string::npos);
  EXPECT_EQ(Edit({willow}).Out.find(kShow), 0U);
  EXPECT_NE(Edit({willow, "--language", "de"}).Out.find("\"Zonenfunktion\""), std::string::npos);
}

TEST_F(CommandTest, EncryptsThePassword) {
  for (const char* line : {"se cr\xC3\xA9t", "se cr\xC3\xA9t\n", "se cr\xC3\xA9t\r\nmore\n"}) {
    const auto ended = Run({"encrypt"}, line);
    EXPECT_EQ(ended.Status, 0) << ended.Err;
    ASSERT_TRUE(ended.Out.ends_with('\n'));
    EXPECT_EQ(CCrypt().DecryptString(ended.Out.substr(0, ended.Out.size() - 1)), "se cr\xC3\xA9t");
  }
}

/// What bash offers for the last of these words.
std::string Completed(const std::string& words) {
  const std::string program = ORLIN_HOST;
  const auto command = "bash -c 'source " ORLIN_COMPLETION "; compopt() { :; }; COMP_WORDS=(orlin-host " + words +
                       "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _orlin_host " + program +
                       "; echo -n ${COMPREPLY[@]}'";
  const std::unique_ptr<FILE, int (*)(FILE*)> shell(popen(command.c_str(), "r"), pclose);
  std::array<char, 4096> out{};
  return {out.data(), std::fread(out.data(), 1, out.size(), shell.get())};
}

TEST_F(CommandTest, CompletesWordsInBash) {
  const std::pair<const char*, const char*> cases[] = {
      {"\"\"", "list describe edit account encrypt --version --help"},
      {"edit clsZoneFunctionsW", "clsZoneFunctionsWillow"},
      {"edit --level A = 1,2 clsPanelGMT iHrs = 5 iM", "iMins="},
      {"edit clsPanelGMT iHrs =", ""},
      {"describe --acc", "--account"},
      {"edit clsPanelGMT --sto", "--stored"},
      {"edit clsPanelGMT --host = s", "script"},
      {"edit clsPanelGMT --strict --language \"\"", "de en"},
  };
  for (const auto& [words, offered] : cases) EXPECT_EQ(Completed(words), offered) << words;
}

TEST_F(CommandTest, TellsAnOutputThatCannotBeWritten) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);
  close(pipe[0]);
  const int full = open("/dev/full", O_WRONLY);
  for (const int output : {pipe[1], full}) {
    const auto ended = Run({"edit", "clsZoneFunctionsWillow", "--script", "-"}, "", output);
    EXPECT_EQ(ended.Status, 2);
    EXPECT_EQ(ended.Err, "orlin-host: the output cannot be written\n");
    close(output);
  }
}

}  // namespace
}  // namespace orlin::testing
