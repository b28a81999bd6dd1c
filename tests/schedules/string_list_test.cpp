#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

TEST(StringList, GivesThePositionAsText) {
  ExpectEach(
      {"clsLstTime_Rowan Index={0} res=77", "{1};dump;{2}", "txtValue result res Index"},
      {"0||click cmdOK|DISABLED 0 '0' 0", "48||click cmdOK|MIDNIGHT 0 '48' 48",
       "47|select List1 20|click cmdOK|10:00 0 '20' 47", "3|select List1 7;select List1 0|click cmdOK|DISABLED 0 '0' 3",
       "3|type txtValue 'x'|click cmdOK|x01:30 0 '3' 3", "3|select List1 7|click cmdCancel|03:30 1 '3' 3"});
  ExpectEach({"clsLstTime_Rowan Index=49 res=77", "", "result res"}, {"2 77"});
}

TEST(StringList, HasEveryHalfHour) {
  std::string times = "DISABLED";
  for (int i = 1; i < 48; ++i) {
    times += (i < 20 ? " 0" : " ") + std::to_string(i / 2) + (i % 2 == 1 ? ":30" : ":00");
  }
  ExpectEach({"clsLstTime_Rowan Index=5", "dump", "title Label1 List1 List1.listIndex"},
             {"124 1174 [" + times + " MIDNIGHT] 5"});
}

}  // namespace
}  // namespace orlin::testing
