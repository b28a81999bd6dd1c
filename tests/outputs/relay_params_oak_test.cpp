#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kRelay = "clsRelayParam_Oak{0} RelayNo=4 FunctionNo=2 FunctionCode={1} ParameterCode={2}";

TEST(RelayParamsOak, FunctionsAndCheckItemsFollowTheModel) {
  for (const std::string line : {"Grand|24|1494..1511 1216 1512..1516 1317", "Mid|8|1494..1511 1216",
                                 "Base|6|1494..1511 1216 1512..1515 1317"}) {
    const auto cells = Split(line, "|");
    Strings rows;
    for (const auto& [codes, items] : {std::pair{"1 5", "[400 1.." + cells[1] + "] true"},
                                       {"6 8", "[1517 A..C] true"},
                                       {"9", "[1518 1..8] true"},
                                       {"0 10 18", "[] false"}}) {
      for (const auto& code : Split(codes, " ")) {
        rows.push_back(cells[0] + "|'" + code + "'|[0*24]|1493 4 2 [" + cells[2] + "] " + code + " " + items + " " +
                       code);
      }
    }
    ExpectEach({kRelay, "dump;click cmdOK",
                "title cmbFunction cmbFunction.listIndex lstMSParam lstMSParam.enabled FunctionCode"},
               rows);
  }
}

TEST(RelayParamsOak, OakBaseLacksTheCode23) {
  ExpectEach({kRelay, "dump;click cmdOK", "cmbFunction.text FunctionCode"},
             {"Base|22|[0*24]|1515 22", "Base|23|[0*24]|1317 24", "Base|24|[0*24]|1317 24", "Grand|23|[0*24]|1516 23"});
}

TEST(RelayParamsOak, OkStoresTheBitsOfTheItemsAndClearsTheRest) {
  // A change of code keeps the bits by position, also those that are out of sight for a while.
  ExpectEach(
      {kRelay, "{3};click cmdOK", "result ParameterCode"},
      {"Grand|6|[1,0,1,0,1,1*19]||0 [1,0,1,0*21]", "Grand|1|[1,0,'1',0,1*20]||0 [1,0,1,0,1*20]",
       "Grand|0|[1*24]||0 [0*24]", "Grand|1|[1,0*22,2]|select lstMSParam 0 off;select lstMSParam 22 on|0 [0*22,1,0]",
       "Grand|1|[1*24]|select cmbFunction 6;select lstMSParam 1 off;select cmbFunction 1|0 [1,0,1*22]",
       "Base|1|[1*8]||0 [1*6,0,0]", "Base|9|[1*10]||0 [1*8,0,0]"});
  ExpectEach({kRelay, "click cmdOK", "result"}, {"Grand|1|[1*23]|9"});  // too short
}

TEST(RelayParamsOak, RightsHoldOnEveryCode) {
  for (const std::string level : {"=1,2", "=1,1"}) {
    ExpectEach({kRelay,
                "select cmbFunction 0;select cmbFunction 6;dump",
                "lstMSParam lstMSParam.enabled",
                {"AuthorityLevel=1,1", "----Parameter 2" + level}},
               {"Mid|1|[1*8]|[1517 A..C] " + std::string(level == "=1,1" ? "true" : "false")});
  }
}

}  // namespace
}  // namespace orlin::testing
