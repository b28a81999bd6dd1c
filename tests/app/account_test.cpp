#include "app/account/account.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "OrlinCustomDialogs/host/controls.h"
#include "OrlinCustomDialogs/host/dialog_host.h"

#include "app/calls/edit.h"
#include "app/calls/installed_platform.h"
#include "app/calls/value_text.h"
#include "app/usage/usage_error.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class AccountTest : public ::testing::Test {
 protected:
  /// Opens the editor of a parameter for an operator made of text; tells whether anything else is stored.
  static bool Edit(Account& account, std::size_t parameter, const std::string& script) {
    const auto& editor = *account.Parameters().at(parameter).Class;
    std::ostringstream trace;
    const auto outcome = orlin::Run(
        {editor, account.ValuesOf(parameter), ParseScript(script), false, {}, nullptr, ValueForm::Stored}, trace);
    EXPECT_NE(trace.str().find("\"event\":\"show\""), std::string::npos) << editor.Name() << '\n' << trace.str();
    return account.Store(parameter, outcome.Arguments);
  }

  std::filesystem::path Write(const std::string& parameters) const {
    return Folder.Write("account.json", R"({"panel": "Willow", "note": "stays", "parameters": [)" + parameters + "]}");
  }

  TemporaryFolder Folder;
};

constexpr const char* kZone =
    R"({"name": "Zone 5", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "5", "ZoneCode": "\"5146\""}})";

TEST(ValueFormatTest, KeepsEveryKind) {
  const Value values[] = {{},
                          Integer(-5),
                          5,
                          100000,
                          5.0,
                          -2.5,
                          1e300,
                          true,
                          false,
                          "",
                          "5",
                          "empty",
                          "a \"quoted\"\\ \t\r\n text",
                          Array(),
                          Array({Integer(1), 1, "x", "x", "x", "x", Value(), Array({true})})};
  for (const auto& value : values) EXPECT_EQ(ParseValue(FormatValue(value)), value) << FormatValue(value);
  EXPECT_EQ(FormatValue(Array({"1234", "", "", "", ""})), R"(["1234",""*4])");
  EXPECT_THROW(static_cast<void>(FormatValue(Array({1}, 1))), UsageError);
}

/// An operator who changes nothing: he presses OK, and closes what is then still there.
class OkHost final : public DialogHost {
 public:
  [[nodiscard]] SizeInTwips Screen() const override { return {}; }
  int ShowMessage(const Message&) override { return answers::Ok; }
  void Beep() override {}
  void ShowModal(shown::Dialog& dialog) override {
    ++Shown;
    dialog.Activate();
    for (const char* ok : {"cmdOK", "btnOK", "btnAcceptChanges"}) {
      if (auto* button = dialog.Find(ok); button != nullptr && Confirms) static_cast<void>(button->Press());
    }
    if (dialog.IsShown()) dialog.Close();
  }

  bool Confirms = true;
  int Shown = 0;
};

TEST_F(AccountTest, AHundredTimesOkLeaveEveryParameterOfTheExample) {
  const auto host = std::make_shared<OkHost>();
  StandardPlatformOptions options;
  options.Host = host;
  options.DrivesFolder = Folder.Path();
  options.CatalogueFile =
      Folder.Write("texts.tsv", "10553\tNothing\n");  // no text of a catalogue gets into what is stored
  const InstalledPlatform installed(StandardPlatform(options));
  const Account account(std::filesystem::path(ORLIN_EXAMPLES) / "account.json");
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    const auto& editor = *account.Parameters()[i].Class;
    // Their OK keeps what is there, or wants corrections first.
    const bool onlyLooks = editor.Name() == "clsErrorMessageNova" || editor.Name() == "clspasscodeLen";
    const auto before = account.ValuesOf(i);
    auto stored = before;
    host->Shown = 0;
    for (int round = 0; round <= 100; ++round) {
      host->Confirms = round > 0;
      auto arguments = editor.ArgumentsFrom(stored);
      const auto result = editor.Display(arguments);
      ASSERT_EQ(editor.Confirmed(result, arguments), round > 0 && !onlyLooks) << account.Parameters()[i].Name;
      if (editor.Confirmed(result, arguments)) stored = editor.StoredFrom(stored, arguments);
    }
    EXPECT_EQ(host->Shown, 101);
    EXPECT_EQ(stored, before) << account.Parameters()[i].Name;
  }
}

TEST_F(AccountTest, TheExampleHasEveryEditor) {
  const Account account(std::filesystem::path(ORLIN_EXAMPLES) / "account.json");
  for (const auto& editor : PublicClasses()) {
    EXPECT_TRUE(std::any_of(account.Parameters().begin(), account.Parameters().end(), [&](const auto& parameter) {
      return parameter.Class == &editor;
    })) << editor.Name();
  }
}

TEST_F(AccountTest, OkStoresTheNewValuesAndNothingElse) {
  const auto file = Write(kZone);
  Account account(file);
  EXPECT_TRUE(Edit(account, 0, "select cmbDigit(3) 1\nclick cmdOK"));
  EXPECT_EQ(account.ValuesOf(0).at(1), "5142");
  const Account again(file);
  EXPECT_EQ(again.ValuesOf(0), account.ValuesOf(0));
  EXPECT_NE(ContentOf(file).find("\"note\": \"stays\""), std::string::npos);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder.Path()), {}), 1) << "no temporary file is left";
  EXPECT_FALSE(Edit(account, 0, "select cmbDigit(3) 2\nclick cmdCancel"));
  EXPECT_EQ(account.ValuesOf(0).at(1), "5142");
}

constexpr const char* kZones =
    R"({"name": "Zone", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "5", "ZoneCode": "\"5146\""}},
       {"name": "Zone", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "6", "ZoneCode": "\"5146\""}})";

std::vector<Value> Zone(int number, const char* code) { return {Integer(number), code}; }

TEST_F(AccountTest, EachWriterChangesHisOwnParameterAlone) {
  const auto file = Write(kZones);
  Account one(file);
  Account other(file);
  EXPECT_TRUE(one.Store(0, Zone(5, "1111")));
  EXPECT_TRUE(other.Store(1, Zone(6, "2111")));
  EXPECT_EQ(other.ValuesOf(0), Zone(5, "1111")) << "read again";
  EXPECT_EQ(Account(file).ValuesOf(0), Zone(5, "1111"));
  // Both choose the same: nothing is lost.
  EXPECT_FALSE(one.Store(1, Zone(6, "2111")));
  EXPECT_TRUE(one.Store(1, Zone(6, "3111")));
  try {
    other.Store(1, Zone(6, "4111"));
    ADD_FAILURE() << "the value of the first writer is lost";
  } catch (const ChangedMeanwhile& error) {
    EXPECT_EQ(error.Found, Zone(6, "3111"));
  }
  EXPECT_EQ(Account(file).ValuesOf(1), Zone(6, "3111"));
  EXPECT_TRUE(other.Store(1, Zone(6, "4111"))) << "now that it is known";
}

TEST_F(AccountTest, FindsItsParameterInWhatTheFileHasBecome) {
  const std::string gmt = R"({"name": "Zone", "class": "clsPanelGMT", "arguments": {}},)";
  Account account(Write(kZones));
  const auto moved = Write(gmt + kZones);
  EXPECT_TRUE(account.Store(1, Zone(6, "2111")));
  EXPECT_EQ(Account(moved).ValuesOf(1), Zone(5, "5146"));
  EXPECT_EQ(Account(moved).ValuesOf(2), Zone(6, "2111"));

  const auto lost = "no longer has this parameter";
  for (const auto& [parameters, what] : {std::pair(std::string(kZone), lost), {gmt, "parse error"}, {"", lost}}) {
    const auto content = ContentOf(Write(parameters));
    try {
      account.Store(2, Zone(6, "3111"));
      ADD_FAILURE() << parameters;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(what), std::string::npos) << error.what();
    }
    EXPECT_EQ(ContentOf(moved), content);
    EXPECT_EQ(account.ValuesOf(2), Zone(6, "2111"));
  }
  std::filesystem::remove_all(Folder.Path());
  EXPECT_THROW(account.Store(2, Zone(6, "3111")), UsageError);
}

TEST_F(AccountTest, ProcessesTakeTurns) {
  const auto file = Write(kZones);
  std::vector<pid_t> writers;
  for (const std::size_t zone : {0U, 1U}) {
    writers.push_back(fork());
    if (writers.back() != 0) continue;
    // A lost value comes to light with the next one: it is not what this writer knows.
    try {
      Account account(file);
      for (int i = 1000; i < 1050; ++i) account.Store(zone, {account.ValuesOf(zone).front(), std::to_string(i)});
      _exit(0);
    } catch (const UsageError&) {
      _exit(1);
    }
  }
  for (const auto writer : writers) {
    int status = 1;
    EXPECT_EQ(waitpid(writer, &status, 0), writer);
    EXPECT_EQ(status, 0);
  }
  for (const std::size_t zone : {0U, 1U}) EXPECT_EQ(Account(file).ValuesOf(zone).at(1), "1049");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder.Path()), {}), 1) << "nothing stands beside it";
}

TEST_F(AccountTest, TellsWhatMakesNoSense) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"name": "A", "class": "clsNone", "arguments": {}})", "A: there is no public class clsNone"},
      {R"({"name": "A", "class": "clsPanelGMT", "arguments": {"x": "1"}})", "A: clsPanelGMT has no parameter"},
      {R"({"name": "A", "class": "clsPanelGMT", "arguments": {"iHrs": 1}})", "type must be string"},
      {R"({"name": "A"})", "'class' not found"},
      {"{", "parse error"},
  };
  for (const auto& [parameters, what] : cases) {
    try {
      const Account account(Write(parameters));
      ADD_FAILURE() << parameters;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(what), std::string::npos) << error.what();
    }
  }
  EXPECT_THROW(Account(Folder.Path() / "none"), UsageError);
}

}  // namespace
}  // namespace orlin::testing
