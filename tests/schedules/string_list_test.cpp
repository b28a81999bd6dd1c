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
  } cases[] = {{0, "", "DISABLED", "0"},
               {48, "", "MIDNIGHT", "48"},
               {1, "", "00:30", "1"},
               {47, "select List1 20", "10:00", "20"},
               {3, "select List1 7\nselect List1 0", "DISABLED", "0"},
               {3, "type txtValue \"x\"", "x01:30", "3"}};
  for (const auto& one : cases) {
    const auto run = Open(one.Index, std::string(one.Script) + "\ndump\nclick cmdOK");
    EXPECT_EQ(run.Control("txtValue").at("text"), one.Line);
    EXPECT_EQ(run.Result, 0);
    EXPECT_EQ(run.Argument("res"), one.Position);
    EXPECT_EQ(run.Argument("Index"), Integer(one.Index));
  }
}

TEST(StringList, GivesTheGivenPositionWithoutOK) {
  for (const char* end : {"click cmdCancel", "close"}) {
    const auto run = Open(3, std::string("select List1 7\n") + end);
    EXPECT_EQ(run.Result, 1);
    EXPECT_EQ(run.Argument("res"), "3");
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
  const auto lines = run.Control("List1").at("list");
  ASSERT_EQ(lines.size(), 49U);
  EXPECT_EQ(run.Control("List1").at("listIndex"), 5);
  for (std::size_t i = 1; i < 48; ++i) {
    const auto hour = std::to_string(i / 2);
    EXPECT_EQ(lines[i], (i < 20 ? "0" : "") + hour + (i % 2 == 1 ? ":30" : ":00"));
  }
  EXPECT_EQ(run.Events("state")[0].at("caption"), Text(124));
  EXPECT_EQ(run.Control("Label1").at("caption"), Text(1174));
  EXPECT_EQ(run.Control("Frame1").at("caption"), Text(1169));
}

}  // namespace
}  // namespace orlin::testing
