#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

TEST(PulseCount, FirstTwoCountsAreStoredTheOtherWayRoundAndTimesFollow) {
  const std::string first = " [1472 4] ", second = " [1472 16] ", none = " [1489] ",
                    all = " [1473 4..1480 4, 1481 16..1488 16] ";
  for (const std::string model : {"Pine", "Spruce"}) {
    const std::string call = "clsPulseCount_" + model + " vName=Zone3 vInterval1='4' vInterval2=16 vPulseCount={0} ";
    ExpectEach({call + "vPulseCountTime={1}", "{2};dump;click cmdOK",
                "cbPulseCount.listIndex cbPulseCountTime cbPulseCountTime.listIndex vPulseCount vPulseCountTime"},
               {"0|7||1" + second + "0 0 0", "1|-1||0" + first + "0 1 0", "2|9||2" + all + "9 2 9",
                "15|15||15" + all + "15 15 15", "'2'|'0'||2" + all + "0 2 0", "2|16||2" + all + "-1 2 -1",
                "16|0||-1" + none + "0 -1 0", "16|3||-1" + none + "-1 -1 -1", "-1|0||-1" + none + "0 -1 0",
                "5|12|select cbPulseCount 9|9" + all + "12 9 12", "5|12|select cbPulseCount 1|1" + second + "0 0 0",
                "5|12|select cbPulseCount 0;select cbPulseCount 5|5" + all + "0 5 0",
                "16|3|select cbPulseCount 2|2" + all + "-1 2 -1"});
    ExpectEach({call + "vPulseCountTime=0", "dump;click cmdOK", "title cbPulseCount vInterval1 vInterval2"},
               {"0|1192 Zone3 [1468 4, 1468 16, 1470 2..15] '4' 16"});
  }
}

}  // namespace
}  // namespace orlin::testing
