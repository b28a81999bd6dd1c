#include <algorithm>
#include <regex>

#include "support/dialog_test.h"
#include "support/temporary_folder.h"

// docs/parameters.md names each public class in a heading, `### clsName`, several that are alike in one, and each of
// its parameters in the first column of the table below, as `orlin-host list` writes it. A page that has fallen behind
// fails here.

namespace orlin::testing {
namespace {

using Page = std::map<std::string, std::vector<std::string>>;

/// The parameters of each class, in the order of the page. Every other part between backticks is what they quote.
Page ReadPage(std::istream& lines) {
  Page page;
  std::vector<std::string> classes;
  for (std::string line; std::getline(lines, line);) {
    std::vector<std::string> parts;
    std::istringstream split(line);
    for (std::string part; std::getline(split, part, '`');) parts.push_back(part);
    if (line.starts_with("#")) classes.clear();
    for (std::size_t i = 1; line.starts_with("### ") && i < parts.size(); i += 2) {
      classes.push_back(parts[i]);
      EXPECT_TRUE(page.try_emplace(parts[i]).second) << parts[i];
    }
    if (!line.starts_with("| `")) continue;
    for (const auto& name : classes) page[name].push_back(parts.at(1));
  }
  return page;
}

TEST(ParametersPage, NamesEveryClassWithItsParametersInOrder) {
  std::ifstream file(ORLIN_SOURCE "/docs/parameters.md");
  Page listed;
  std::istringstream lines(RunHost("list").Out);
  for (std::string line; std::getline(lines, line) && !line.starts_with("#");) {
    std::istringstream words(line);
    const std::string name(*std::istream_iterator<std::string>(words));
    listed[name].assign(std::istream_iterator<std::string>(words), {});
  }
  EXPECT_EQ(ReadPage(file), listed);
}

/// The program and pages that show how stored values are edited; the program is built and run by the test of the
/// installed package.
TEST(Samples, EditStoredValuesAsTheProgramDoes) {
  const auto trimmed = [](const std::string& path) {
    return std::regex_replace(ContentOf(path), std::regex("(^|\n)[/ ]+"), "$1");
  };
  const auto program = trimmed(ORLIN_SOURCE "/examples/embed/main.cpp");
  const auto start = program.find("std::vector<orlin::Value> stored");
  const auto sample = program.substr(start, program.find("std::cout", start) - start);
  ASSERT_EQ(std::count(sample.begin(), sample.end(), '\n'), 5);
  for (const char* page : {"README.md", "docs/embedding.md", "include/OrlinCustomDialogs/zones.h",
                           "include/OrlinCustomDialogs/public_classes.h"}) {
    EXPECT_NE(trimmed(std::string(ORLIN_SOURCE "/") + page).find(sample), std::string::npos) << page;
  }
}

}  // namespace
}  // namespace orlin::testing
