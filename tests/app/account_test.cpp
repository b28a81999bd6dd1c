#include "app/account/account.h"

#include <algorithm>
#include <set>

#include <sys/wait.h>
#include <unistd.h>

#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "app/account/account_table.h"
#include "app/calls/installed_platform.h"
#include "app/usage/usage_error.h"
#include "support/dialog_test.h"
#include "support/frame_fixture.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

class AccountTest : public FolderTest {
 protected:
  static const char* Write(const std::string& parameters) {
    std::ofstream("account.json") << R"({"panel": "Willow", "note": "stays", "parameters": [)" + parameters + "]}";
    return "account.json";
  }
};

std::vector<Value> Zone(int number, const char* code) { return {Integer(number), code}; }

/// Two parameters of one name.
constexpr const char* kZones =
    R"({"name": "Zone", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "5", "ZoneCode": "\"5146\""}},
       {"name": "Zone", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "6", "ZoneCode": "\"5146\""}})";

TEST_F(AccountTest, AHundredTimesOkLeaveEveryParameterOfTheExampleWhichHasEveryEditor) {
  const auto host = std::make_shared<OperatorHost>();
  host->AnswersAll = true;
  bool confirms = false;
  host->Operate = [&](shown::Dialog& dialog) {
    for (const char* ok : {"cmdOK", "btnOK", "btnAcceptChanges"}) {
      if (auto* button = dialog.Find(ok); button != nullptr && confirms) static_cast<void>(button->Press());
    }
  };
  // No text of a catalogue gets into what is stored.
  StandardPlatformOptions options;
  options.Host = host;
  options.DrivesFolder = Folder.Path();
  options.CatalogueFile = Folder.Write("texts.tsv", "10553\tNothing\n");
  const InstalledPlatform installed(StandardPlatform(options));
  const Account account(ORLIN_EXAMPLES "/account.json");
  std::set<const PublicClass*> editors;
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    SCOPED_TRACE(account.Parameters()[i].Name);
    const auto& editor = *account.Parameters()[i].Class;
    editors.insert(&editor);
    // Their OK keeps what is there, or wants corrections first.
    const bool onlyLooks = editor.Name() == "clsErrorMessageNova" || editor.Name() == "clspasscodeLen";
    const auto before = account.ValuesOf(i);
    auto stored = before;
    host->Happened.clear();
    for (int round = 0; round <= 100; ++round) {
      confirms = round > 0;
      auto arguments = editor.ArgumentsFrom(stored);
      const auto result = editor.Display(arguments);
      ASSERT_EQ(editor.Confirmed(result, arguments), confirms && !onlyLooks);
      if (editor.Confirmed(result, arguments)) stored = editor.StoredFrom(stored, arguments);
    }
    const auto isShow = [](const std::string& what) { return what.starts_with("show "); };
    EXPECT_EQ(std::count_if(host->Happened.begin(), host->Happened.end(), isShow), 101);
    EXPECT_EQ(stored, before);
  }
  EXPECT_EQ(editors.size(), PublicClasses().size());
}

TEST_F(AccountTest, EachWriterChangesHisOwnParameterAlone) {
  const auto* const file = Write(kZones);
  constexpr std::filesystem::perms mode{0640};
  std::filesystem::permissions(file, mode);
  Account one(file), other(file);
  EXPECT_TRUE(one.Store(0, Zone(5, "1111")));
  EXPECT_EQ(std::filesystem::status(file).permissions(), mode);
  EXPECT_NE(ContentOf(file).find("\"note\": \"stays\""), std::string::npos);
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
  const auto* const moved = Write(gmt + kZones);
  EXPECT_TRUE(account.Store(1, Zone(6, "2111")));
  EXPECT_EQ(Account(moved).ValuesOf(1), Zone(5, "5146"));
  EXPECT_EQ(Account(moved).ValuesOf(2), Zone(6, "2111"));

  const std::string first(kZones, std::string_view(kZones).find("},\n") + 1);
  const auto lost = "no longer has this parameter";
  for (const auto& [parameters, what] : {std::pair(first, lost), {gmt, "parse error"}, {"", lost}}) {
    const auto content = ContentOf(Write(parameters));
    const auto error = ErrorOf<UsageError>([&] { account.Store(2, Zone(6, "3111")); });
    EXPECT_NE(error.find(what), std::string::npos) << error;
    EXPECT_EQ(ContentOf(moved), content);
    EXPECT_EQ(account.ValuesOf(2), Zone(6, "2111"));
  }
  std::filesystem::remove(moved);
  EXPECT_THROW(account.Store(2, Zone(6, "3111")), UsageError);
}

TEST_F(AccountTest, ProcessesTakeTurns) {
  const auto* const file = Write(kZones);
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
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator("."), {}), 1) << "nothing stands beside it";
}

TEST_F(AccountTest, TellsWhatMakesNoSense) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"name": "A", "class": "clsNone", "arguments": {}})", "A: there is no public class clsNone"},
      {R"({"name": "A", "class": "clsPanelGMT", "arguments": {"x": "1"}})", "A: clsPanelGMT has no parameter"},
      {R"({"name": "A", "class": "clsPanelGMT", "arguments": {"iHrs": 1}})", "type must be string"},
      {R"({"name": "A"})", "'class' not found"},
      {"{", "parse error"}};
  for (const auto& [parameters, what] : cases) {
    const auto error = ErrorOf<UsageError>([&, &text = parameters] { return Account(Write(text)); });
    EXPECT_NE(error.find(what), std::string::npos) << error;
  }
}

TEST_F(AccountTest, ChangesAreTakenBackWhereTheFileCanBeWrittenAndNobodyElseWasThere) {
  StandardPlatformOptions options;
  const auto host = std::make_shared<OperatorHost>();
  host->Operate = [](shown::Dialog& dialog) {
    static_cast<void>(dialog.Find("cmbDigit(0)")->AsRowList()->PickRow(2));
    static_cast<void>(dialog.Find("cmdOK")->Press());
  };
  options.Host = host;
  Account account(Write(kZones));
  AccountTable table(account, options);
  const auto stored = [](std::size_t row) { return Account("account.json").ValuesOf(row).at(1); };
  EXPECT_EQ(table.Open(1), "Zone: stored");
  EXPECT_EQ(table.Rows()[1].Before->Raw, "ZoneNum=6  ZoneCode=\"5146\"");

  std::filesystem::rename("account.json", "elsewhere");
  EXPECT_TRUE(table.Undo().starts_with("Zone: not stored, cannot "));
  std::filesystem::rename("elsewhere", "account.json");
  EXPECT_EQ(table.Undo(), "Zone: undone");
  EXPECT_EQ(table.Undo(), "There is nothing to undo.");
  EXPECT_EQ(stored(1), "5146");
  EXPECT_FALSE(table.Rows()[1].Before);
  EXPECT_EQ(table.Redo(), "Zone: redone");
  EXPECT_EQ(table.Redo(), "There is nothing to redo.");
  EXPECT_EQ(stored(0), "5146") << "of the same name";

  Account("account.json").Store(1, Zone(6, "7146"));
  EXPECT_TRUE(table.Undo().starts_with("Zone: not stored, it was changed by somebody else"));
  EXPECT_EQ(stored(1), "7146");
}

}  // namespace
}  // namespace orlin::testing
