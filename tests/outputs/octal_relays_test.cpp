#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kOctal = "clsOctalRelaysBirch vName=Relay3 vOption=0 ";

TEST(OctalRelays, OkStoresTwoDigitsOfTheData) {
  ExpectEach({kOctal + "vType='{0}' vData='{1}'", "click cmdOK", "result vType vOption vData"},
             {"0||0 0 0 '00'", "1|09|0 1 0 '09'", "1|0A|0 1 0 '09'", "1|0B|0 1 0 '0B'", "1|0d|0 1 0 '0D'",
              "2|0D|0 2 0 '0D'", "2|0A|0 2 0 '0A'", "3|18|0 3 0 '18'", "3|00|0 3 0 '00'", "3|FF|0 3 0 'FF'",
              "4|F8|0 4 0 'F8'", "4|5|0 4 0 '05'", "4|00|0 4 0 '00'", "4|12C|0 4 0 '12C'"});
  ExpectEach({kOctal + "vType=1 vData='0B'", "", "vData"}, {"10D"});  // decoded on entry, and so without OK
}

TEST(OctalRelays, ListsCaptionsAndInputFollowTheType) {
  const std::string arming = "1190 [513 1196..1198] ", onlyList = "true false false false false";
  ExpectEach(
      {kOctal + "vType={0} vData=0", "dump",
       "lblOption cmbOption lblFunction cmbFunction cmbFunction.visible txtFunction.visible udFunction.visible "
       "chkDisabled.visible txtFollowZone.visible"},
      {"0|1190 [513] 1238 [513] " + onlyList, "1|" + arming + "1238 [1212..1224] " + onlyList,
       "2|" + arming + "1238 [513 1225..1237] " + onlyList, "3|" + arming + "1239 [513] false true true true false",
       "4|1199 [513 1200..1211] 1240 [513] false false false false true"});
  ExpectEach({kOctal + "vType=0 vData=0", "dump", "title cmbType"}, {"1192 Relay3 [513 1193 1046 1194 1195]"});
}

TEST(OctalRelays, RowsStayWithinTheListsOfANewType) {
  ExpectEach({"clsOctalRelaysBirch vType=4 vData=5 vOption=9",
              "select cmbType 1;dump;select cmbType 4;select cmbType 0;dump", "0:cmbOption.listIndex lblOption"},
             {"3 1199"});
  ExpectEach({kOctal + "vType=2 vData='0D'", "select cmbType 1;click cmdOK", "vData"}, {"'0D'"});
}

TEST(OctalRelays, BoxesTakeStepsAndDigits) {
  const std::string over = "caret txtFollowZone 0 3;type txtFollowZone ", toggle = "click chkDisabled;";
  // What is typed, the boxes, whether the number is disabled, beeps.
  ExpectEach({kOctal + "vType={0} vData='{1}'", "{2};dump", "txtFunction txtFollowZone chkDisabled.value beeps"},
             {"3|18|type txtFunction '7';step udFunction down 30|1  0 0",
              "3|05|key txtFunction Up;key txtFunction Right;key txtFunction Home|7  0 0",
              "3|05|" + toggle + "step udFunction up;step udFunction up|6  0 0",
              "1|05|select cmbType 3;key txtFunction Up|1  0 0",
              "3|05|select cmbType 2;select cmbFunction 6;select cmbType 3|5  0 0",
              "3|05|" + toggle + "select cmbType 2;select cmbType 3;" + toggle + "|1  0 0",
              // A number too large to remember leaves what cmbFunction left.
              "3|10000|" + toggle + toggle + "|1  0 0", "4|12C|| 300 1 0", "4|00|" + over + "'9x'| 9 1 1",
              // A bad character brings back what was typed last, and that is cut again.
              "4|00|" + over + "'300';" + over + "'x'| 248 1 1",
              // The stored text has not been through the filter, so it is not what comes back.
              "4|05|type txtFollowZone 'x'|  1 1", "3|05|select cmbType 4;type txtFollowZone '9x'|5 9x 0 0",
              "3|05|" + toggle + "select cmbType 4;type txtFollowZone '9x'| 9 1 1"});
  ExpectEach({kOctal + "vType=4 vData=05", "key txtFollowZone Delete;click cmdOK", "vData"}, {"'00'"});
  ExpectEach({kOctal + "vType=3 vData=00", "dump;click chkDisabled;dump",
              "0:txtFunction.on 0:txtFunction txtFunction.on txtFunction"},
             {"true/false  true/true 1"});
}

TEST(OctalRelays, NothingHappensAtALimitWhileTheNumberIsEmpty) {
  const std::string again = "click chkDisabled;select cmbType 0;select cmbType 3;";
  ExpectEach(
      {kOctal + "vType={0} vData='{1}'", "{2};dump;click cmdOK", "udFunction.value txtFunction vData"},
      {"1|05|select cmbType 3;key txtFunction Left;key txtFunction Down|1  '00'", "3|00|step udFunction down|1  '00'",
       "3|18|" + again + "key txtFunction Up;key txtFunction Right;step udFunction up 2|24  '00'",
       "3|FF|" + again + "step udFunction up|24  '00'", "3|05|" + again + "|5  '00'"});
}

TEST(OctalRelays, OkReadsADecimalZoneAndKeepsWhatItWroteBeforeAFailure) {
  ExpectEach(
      {kOctal + "vType=3 vData=05", "select cmbType 4;type txtFollowZone '{0}';click cmdOK", "result vType vData"},
      {"&HF|0 4 '00'", "9x|0 4 '09'", "9E9|6 4 9000000000D"});
}

TEST(OctalRelays, RightsFollowTheInputOfANewType) {
  ExpectEach({kOctal + "vType=3 vData=1",
              "select cmbType 1;dump;select cmbType 3;dump",
              "0:cmbFunction.on lblFunction.on txtFunction.on udFunction.on chkDisabled.on",
              {"AuthorityLevel=1,1", "Function=2,2", "Output Follows=1,1"}},
             {"true/true false/false false/false false/false false/false"});
}

}  // namespace
}  // namespace orlin::testing
