#include <algorithm>
#include <charconv>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "app/account.h"
#include "catalogue/text_catalogue.h"
#include "support/dialog_test.h"

// Walks through every dialog with a catalogue whose texts tell their own numbers, so that each text on the screen says
// where it came from and which variables the dialog has filled in; then asks for the same of the English texts.

namespace orlin::testing {
namespace {

// The numbers of the catalogue lie in these two runs; the gap between them is left out, as it takes most of the time.
constexpr std::pair<std::int16_t, std::int16_t> kRuns[] = {{101, 2000}, {10000, 10928}};
constexpr const char* kVariables[] = {"TITLE", "ZONE",     "SKED", "RELAY", "COMBO", "LEVEL",  "DOOR",     "ITEM",
                                      "KEY",   "FUNCTION", "USER", "POINT", "COUNT", "NUMBER", "INTERVAL", "DB_PATH"};

/// "<1192>{ITEM:%ITEM%}" with every variable.
std::string TellingCatalogue() {
  std::ostringstream texts;
  for (const auto& [first, last] : kRuns) {
    for (auto number = first; number <= last; ++number) {
      texts << number << "\t<" << number << '>';
      for (const char* variable : kVariables) texts << '{' << variable << ":%" << variable << "%}";
      texts << '\n';
    }
  }
  return texts.str();
}

/// The numbers that were asked for, each with the variables that were filled in.
using Asked = std::map<std::int16_t, std::set<std::string>>;

/// Reads all texts of the catalogue that stand in a line of the trace.
void Note(std::string_view line, Asked& asked) {
  while (true) {
    line.remove_prefix(std::min(line.find('<'), line.size()));
    if (line.empty()) return;
    line.remove_prefix(1);
    int number = 0;
    const auto end = std::from_chars(line.data(), line.data() + line.size(), number).ptr;
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    if (!line.starts_with('>')) continue;
    line.remove_prefix(1);
    auto& filled = asked[static_cast<std::int16_t>(number)];
    while (line.starts_with('{')) {
      const auto variable = line.substr(1, line.find(':') - 1);
      const auto value = line.substr(variable.size() + 2, line.find('}') - variable.size() - 2);
      if (!value.starts_with('%')) filled.emplace(variable);
      line.remove_prefix(line.find('}') + 1);
    }
  }
}

/// Picks every row of every list that is open, and every option, and looks at what shows then.
std::string WalkThrough(const DialogRun& opened) {
  std::string script;
  const Json state = opened.Events("state").at(0);
  for (const auto& [name, control] : state.at("controls").items()) {
    const auto rows = control.contains("list") ? control.at("list").size() : 0;
    // A dialog with a list that long has shown all of its texts already.
    if (rows > 60) return "";
    for (std::size_t row = 0; row < rows && !control.contains("selected"); ++row) {
      script += "select " + name + " " + std::to_string(row) + "\ndump\n";
    }
    if (control.at("kind") == "OptionButton") script += "click " + name + "\ndump\n";
  }
  return script;
}

TEST(EnglishTexts, AreThereWithTheirVariablesForAllThatTheDialogsShow) {
  PlayOptions options;
  options.Catalogue = TellingCatalogue();
  options.MayRefuse = true;
  Asked asked;
  const Account account(ORLIN_EXAMPLES "/account.json");
  for (const auto& parameter : account.Parameters()) {
    options.Levels = parameter.Levels;
    const auto opened = Play(parameter.Class->Name(), parameter.Arguments, "dump\nanswer 1\nclose", options);
    if (opened.Events("state").empty()) continue;  // its list parts the texts in a way that these texts do not suit
    const auto walked = Play(parameter.Class->Name(), parameter.Arguments, WalkThrough(opened), options);
    for (const auto* run : {&opened, &walked}) {
      for (const auto& line : run->Lines) Note(line.dump(), asked);
    }
  }
  EXPECT_GT(asked.size(), 700U);

  TextCatalogue english;
  for (const auto& [number, filled] : asked) {
    const auto text = english.GetLocalTextBASE(number);
    EXPECT_FALSE(text.empty()) << number;
    for (const char* variable : kVariables) {
      const bool has = text.find("%" + std::string(variable) + "%") != std::string::npos;
      EXPECT_EQ(has, filled.contains(variable)) << number << ' ' << text << ' ' << variable;
    }
  }
}

}  // namespace
}  // namespace orlin::testing
