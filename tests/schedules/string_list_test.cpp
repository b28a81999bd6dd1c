#include <string>

#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

DialogRun Open(int index, const std::string& script) {
  return Play("clsLstTime_Rowan", {"Index=" + std::to_string(index), "res=77"}, script);
}

TEST(StringList, GivesThePositionAsText) {
  const struct {
    int Index;
    const char* Script;
    const char* Line;  // that is shown at the end
    const char* Position;
  } cases[] = {{0, "click cmdOK", "DISABLED", "0"},
               {48, "click cmdOK", "MIDNIGHT", "48"},
               {47, "select List1 20\ndump\nclick cmdOK", "10:00", "20"},
               {3, "select List1 7\nselect List1 0\ndump\nclick cmdOK", "DISABLED", "0"},
               {3, "type txtValue \"x\"\ndump\nclick cmdOK", "x01:30", "3"},
               {3, "select List1 7\ndump\nclick cmdCancel", "03:30", "3"},
               {3, "select List1 7\ndump\nclose", "03:30", "3"}};
  for (const auto& one : cases) {
    const std::string script = one.Script;
    const auto run = Open(one.Index, "dump\n" + script);
    EXPECT_EQ(run.Control("txtValue").at("text"), one.Line) << script;
    EXPECT_EQ(run.Result, script.ends_with("cmdOK") ? 0 : 1) << script;
    EXPECT_EQ(run.Argument("res"), one.Position) << script;
    EXPECT_EQ(run.Argument("Index"), Integer(one.Index));
  }
}

TEST(StringList, ShowsNothingForAPositionThatItLacks) {
  for (const int index : {-1, 49}) {
    const auto run = Open(index, "click cmdOK");
    EXPECT_EQ(run.Result, 2);
    EXPECT_EQ(run.Argument("res"), Integer(77));
    EXPECT_TRUE(run.Events("show").empty());
  }
}

TEST(StringList, HasEveryHalfHour) {
  const auto run = Open(5, "dump");
  Json expected = {"DISABLED"};
  for (int i = 1; i < 48; ++i) {
    expected.push_back((i < 20 ? "0" : "") + std::to_string(i / 2) + (i % 2 == 1 ? ":30" : ":00"));
  }
  expected.push_back("MIDNIGHT");
  EXPECT_EQ(run.Control("List1").at("list"), expected);
  EXPECT_EQ(run.Control("List1").at("listIndex"), 5);
  EXPECT_EQ(run.Events("state")[0].at("caption"), Text(124));
  EXPECT_EQ(run.Control("Label1").at("caption"), Text(1174));
}

}  // namespace
}  // namespace orlin::testing
