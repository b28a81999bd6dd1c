#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kFunction = "clsOutputFunctionsBirch vName=Output2 ";

TEST(OutputFunctionsBirch, EachFunctionHasItsOptionsAndZones) {
  const std::string arming = " 1350 [513 1196..1198] ", conditions = " 1370 [513 1200..1211] ";
  const std::string none = "true true '00' '00' cmdOK", first = "false true '07' '00' txtFirstZone",
                    both = "false false '07' '09' txtFirstZone";
  ExpectEach(
      {kFunction + "vType='{0}' vOption=0 vFirstZone=7 vSecondZone=9", "key cmbOption Tab;dump;click cmdOK",
       "vType cmbType.listIndex lblOption cmbOption txtFirstZone.locked txtSecondZone.locked vFirstZone "
       "vSecondZone focus"},
      {"0|0 0 1358 [513 1359..1361] " + none, "1|1 1 1350 [513] " + none, "3|3 2" + arming + none,
       "4|4 3" + arming + none, "6|6 4" + arming + none, "7|7 5" + arming + none, "8|8 6 1362 [513 1363..1366] " + none,
       "9|9 7" + arming + none, "10|10 8 1367 [513 1225..1228 1368 1230 1369 1232..1236] " + none,
       "11|11 9" + conditions + none, "12|12 10" + conditions + none, "13|13 11" + conditions + first,
       "14|14 12" + arming + both, "15|15 13" + arming + both});
  // The numbers between them are no functions; the position replaces the number on entry.
  ExpectEach({kFunction + "vType={0} vOption=0", "dump;{1}", "vType title cmbType"},
             {"2|click cmdOK|3 1192 Output2 [1212 1213 1352 1915 1218..1221 1353 1222 1354..1357]",
              "5|click cmdOK|4 1192 Output2 [1212 1213 1352 1915 1218..1221 1353 1222 1354..1357]",
              "8||6 1192 Output2 [1212 1213 1352 1915 1218..1221 1353 1222 1354..1357]"});
  ExpectEach({kFunction + "vType=14 vOption=0",
              "dump",
              "fraZones.on",
              {"AuthorityLevel=1,1", "Follows Zone 1=2,2", "Follows Zone 2=2,2"}},
             {"false/false"});
}

TEST(OutputFunctionsBirch, BoxesShowAndRememberTheirZones) {
  ExpectEach({kFunction + "vType={0} vOption=0 vFirstZone='{1}' vSecondZone='{2}'", "{3};dump",
              "txtFirstZone txtSecondZone beeps"},
             {"15|F8|A||248 10 0", "14|7|9|select cmbType 3;select cmbType 12|7 9 0", "14|7|9|select cmbType 11|7  0",
              "14|FF|F9||255 249 0", "14|FF|F9|select cmbType 13|248 248 0",
              "14|7|9|type txtFirstZone '1x';type txtSecondZone '99'|17 248 1",
              "14|1|2|type txtFirstZone 'x';type txtSecondZone 'x'|1 2 2",
              // A closed box takes no keys.
              "0|7|9|type txtFirstZone '5';select cmbType 12;type txtFirstZone '6x'|6  1"});
  // What was written before a failure stays, in the form that it had then.
  ExpectEach({kFunction + "vType=15 vOption='3' vFirstZone='{0}' vSecondZone='{1}'", "click cmdOK",
              "result vType vOption vFirstZone vSecondZone"},
             {"F8|A|0 15 3 'F8' '0A'", "5|FFFFFFFFFF|6 13 3 '5' 'FFFFFFFFFF'"});
}

TEST(OutputFunctionsBirch, OptionStaysWithinTheListOfANewFunction) {
  ExpectEach({kFunction + "vType=11 vOption=9", "select cmbType {0};dump", "cmbOption.listIndex"},
             {"10|9", "6|4", "1|0"});
}

}  // namespace
}  // namespace orlin::testing
