#include "app/command_line/command_line.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orlin::testing {
namespace {

Command ReadWords(std::vector<const char*> words) {
  words.insert(words.begin(), "orlin-host");
  std::ostringstream out;
  return ReadCommandLine(static_cast<int>(words.size()), words.data(), out);
}

TEST(CommandLine, ReadsEveryOption) {
  const auto edit = std::get<EditOptions>(
      ReadWords({"edit",     "--level",  "A=1,2",          "clsAny",        "a=-1",        "--level", "B=3,4",
                 "--script", "-",        "--host",         "script",        "--catalogue", "c d",     "--drives",
                 "e",        "--now",    "2025-01-01",     "b=2",           "--settings",  "f",       "--data-list",
                 "g",        "--strict", "--fault-file=h", "--exit-status", "--language",  "de_AT"}));
  EXPECT_EQ(edit.Class, "clsAny");
  EXPECT_EQ(edit.Arguments, (std::vector<std::string>{"a=-1", "b=2"}));
  EXPECT_EQ(edit.Levels, (std::vector<std::string>{"A=1,2", "B=3,4"}));
  EXPECT_EQ(edit.Script, "-");
  EXPECT_EQ(edit.Host, HostKind::Script);
  EXPECT_EQ(edit.Platform.CatalogueFile, "c d");
  EXPECT_EQ(edit.Platform.Language, "de_AT");
  EXPECT_EQ(edit.Platform.DrivesFolder, "e");
  EXPECT_EQ(edit.Platform.Now, "2025-01-01");
  EXPECT_EQ(edit.Platform.SettingsFile, "f");
  EXPECT_EQ(edit.Platform.DataListFile, "g");
  EXPECT_EQ(edit.Platform.FaultFile, "h");
  EXPECT_TRUE(edit.Strict);
  EXPECT_TRUE(edit.ExitStatus);
}

TEST(CommandLine, LeavesOutWhatIsNotNamed) {
  const auto edit = std::get<EditOptions>(ReadWords({"edit", "clsAny", "--host", "qt"}));
  EXPECT_TRUE(edit.Arguments.empty());
  EXPECT_EQ(edit.Script, std::nullopt);
  EXPECT_EQ(edit.Host, HostKind::Windows);
  EXPECT_EQ(edit.Platform.CatalogueFile, std::nullopt);
  EXPECT_FALSE(edit.Strict);
  EXPECT_FALSE(edit.ExitStatus);
  EXPECT_EQ(std::get<EditOptions>(ReadWords({"edit", "list"})).Class, "list");
  EXPECT_EQ(std::get<ListOptions>(ReadWords({"list"})).Class, std::nullopt);
  EXPECT_TRUE(std::holds_alternative<HelpGiven>(ReadWords({"edit", "--help"})));
  EXPECT_EQ(std::get<DescribeOptions>(ReadWords({"describe", "--account", "a"})).Account, "a");
}

}  // namespace
}  // namespace orlin::testing
