#include "app/account.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "app/account_rules.h"
#include "app/edit.h"
#include "app/usage_error.h"
#include "app/value_format.h"
#include "app/value_text.h"
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
    const auto kept = account.ArgumentsOf(parameter);
    std::ostringstream trace;
    auto outcome = orlin::Run({editor, ArgumentsForCall(editor, kept), ParseScript(script), false, {}, nullptr}, trace);
    EXPECT_NE(trace.str().find("\"event\":\"show\""), std::string::npos) << editor.Name() << '\n' << trace.str();
    if (!outcome.Result || !Confirmed(editor, *outcome.Result, outcome.Arguments)) return false;
    return account.Store(parameter, RawValuesAfter(editor, kept, std::move(outcome.Arguments)));
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

TEST_F(AccountTest, OkWithoutAChangeLeavesEveryParameterOfTheExample) {
  const auto example = ContentOf(std::filesystem::path(ORLIN_EXAMPLES) / "account.json");
  const auto file = Folder.Write("account.json", example);
  Account account(file);
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    for (const char* script : {"click cmdOK", "click btnOK", "click OptAccept\nclick btnCancel", "close"}) {
      EXPECT_FALSE(Edit(account, i, script)) << account.Parameters()[i].Name << ": " << script;
    }
  }
  EXPECT_EQ(ContentOf(file), example);
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
  EXPECT_EQ(account.ArgumentsOf(0).at(1), "5142");
  const Account again(file);
  EXPECT_EQ(again.ArgumentsOf(0), account.ArgumentsOf(0));
  EXPECT_NE(ContentOf(file).find("\"note\": \"stays\""), std::string::npos);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folder.Path()), {}), 1) << "no temporary file is left";
  EXPECT_FALSE(Edit(account, 0, "select cmbDigit(3) 2\nclick cmdCancel"));
  EXPECT_EQ(account.ArgumentsOf(0).at(1), "5142");
}

TEST_F(AccountTest, ATimeComesBackAsTheNewIndex) {
  Account account(Write(R"({"name": "T", "class": "clsTime_FirePanels", "arguments": {"Index": "754"}})"));
  EXPECT_TRUE(Edit(account, 0, "step UpDown1 up\nclick cmdOK"));
  EXPECT_EQ(account.ArgumentsOf(0), (std::vector<Value>{Integer(814), Value()}));
}

TEST_F(AccountTest, WhatCannotBeStoredChangesNothing) {
  const auto folder = Folder.Path() / "gone";
  std::filesystem::create_directory(folder);
  std::filesystem::rename(Write(kZone), folder / "account.json");
  Account account(folder / "account.json");
  std::filesystem::remove_all(folder);
  EXPECT_THROW(Edit(account, 0, "select cmbDigit(3) 1\nclick cmdOK"), UsageError);
  EXPECT_EQ(account.ArgumentsOf(0).at(1), "5146");
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
