#include "OrlinCustomDialogs/failure.h"

#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kInput = "clsWSNDeviceTypeInput vDeviceType={0} vMappedOutput={1} vOption={2} vfreeOutputs={3}";
const std::string kRanges = " 0 1172\t\t1173\r\n0\t\t281474976710655\r\n";
const std::string kAfter = "vDeviceType vMappedOutput vOption";

TEST(WSNDeviceTypeInput, NumbersOfDeviceTypesHaveGaps) {
  ExpectEach({kInput, "dump;click btnOK", "cmbDeviceType.listIndex " + kAfter},
             {"0|0|0|[true*4]|0 0 0 0", "4|0|0|[true*4]|4 4 0 0", "5|0|0|[true*4]|3 3 0 0", "6|0|0|[true*4]|4 4 0 0",
              "7|0|0|[true*4]|5 7 0 0", "9|0|0|[true*4]|7 9 0 0", "11|0|0|[true*4]|9 11 0 0", "12|0|0|[true*4]|0 0 0 0",
              "13|0|0|[true*4]|10 13 0 0", "20|0|0|[true*4]|17 20 0 0", "30|0|0|[true*4]|27 30 0 0"});
}

TEST(WSNDeviceTypeInput, RelayControlsFollowTheDeviceAndTheOptions) {
  const std::string toRelay = "select cmbDeviceType 6;", toFirst = "select cmbDeviceType 1;";
  ExpectEach({kInput, "{4};dump;click btnOK",
              kAfter + " cmbMappedOutput.listIndex grpMappedOutput.visible grpRelayType.enabled optInput.enabled "
                       "optInputOutput.enabled cmbMappedOutput.enabled"},
             {"8|2|2|[true*4]||8 2 2 2 true true true true true",
              "8|3|2|[false,true,false,true]||8 3 2 1 true true true true true",
              "8|2|2|[true,true,false,true]||8 0 2 0 true true true true true",
              "8|0|1|[true*4]||8 0 1 0 false true true true true", "8|1|0|[true*4]||8 1 0 1 false true true true true",
              "8|1|0|[true*4]|click optInputOutput|8 1 2 1 true true true true true",
              "8|1|2|[true*4]|select cmbMappedOutput 3|8 3 2 3 true true true true true",
              "8|1|2|[true*4]|click optInput|8 1 1 1 false true true true true",
              "8|1|2|[true*4]|" + toFirst + "|1 0 0 1 true false false false false",
              "8|1|2|[true*4]|" + toFirst + toRelay + "|8 1 2 1 true true true true true",
              // A device keeps an option that came along, until it changes.
              "1|0|1|[true*4]||1 0 1 0 false false false false false",
              "1|0|1|[true*4]|select cmbDeviceType 2|2 0 0 0 false false false false false",
              "0|0|0|[true*4]|" + toRelay + "|8 0 1 0 false true true true true"});
  // With nothing free a relay is input only.
  ExpectEach({kInput, "dump;click optInput;click btnOK", kAfter + " optInputOutput.enabled lblInputOutput.enabled"},
             {"8|0|0|[false*4]|8 0 1 false false"});
}

TEST(WSNDeviceTypeOutput, DiffersInItsTypesAndItsMapping) {
  const std::string call = "clsWSNDeviceTypeOutput vDeviceType={0} vMappedOutput={1} vOption={2} vFreeInputs=";
  const std::string words = "cmbDeviceType.listIndex " + kAfter + " lblInput lblMappedPoint";
  ExpectEach({call + "[false*32]", "dump;click btnOK", words},
             {"0|0|0|0 0 0 0 10674 10635", "3|0|0|0 0 0 0 10674 10635", "15|0|0|3 15 0 0 10674 10635",
              "18|0|0|4 18 0 0 10674 10635", "19|0|0|0 0 0 0 10674 10635", "20|0|0|5 20 0 0 10674 10635",
              "30|0|0|15 30 0 0 10674 10635", "5|0|0|1 5 35 1 10674 10635"});
  ExpectEach({call + "[true*32]", "dump;click btnOK", words + " grpMappedPoint.visible cmbMappedPoint"},
             {"5|9|2|1 5 35 1 10674 10635 true [10598..10629]", "8|7|2|2 8 7 2 10674 10635 true [10598..10629]",
              "8|7|3|2 8 7 0 10674 10635 false [10598..10629]", "8|7|0|2 8 7 0 10674 10635 false [10598..10629]"});
  ExpectEach({call + "[false*4,true,false*27]", "dump;click btnOK", words},
             {"8|0|2|2 8 4 2 10674 10635", "8|33|2|2 8 4 2 10674 10635"});
}

TEST(WSNSensorSensitivity, KindsHaveTheirListsAndRawValues) {
  const std::string motion = " true/true false/false", inertia = " false/false true/true";
  ExpectEach({"clsWSNSensorSensitivity vOption={0} res={1}", "dump;{2};click cmdOK",
              "res fraMotionSensor.on fraInertiaSensor.on"},
             {"1|0||0" + motion, "1|4||4" + motion, "2|0|select cmbMotionSensor 1|4" + motion, "1|8||8" + motion,
              "10|3||3" + inertia, "10|8||8" + inertia, "10|15||15" + inertia, "10|4||8" + inertia,
              "10|0|select cmbInertiaSensor 4|8" + inertia, "5|3||3 false/false false/false"});
  const PlayOptions options{.Settings = "[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Setup]\n"};
  EXPECT_EQ(Play("clsWSNSensorSensitivity", {"vOption=1"}, "", options).Result, failures::TypeMismatch)
      << "it fails where the services fail";
}

TEST(WirelessPointID, AcceptsWholeNumbersOf48Bits) {
  const std::string call = "clsWirelessPointID vType='{0}'";
  ExpectEach({call, "click cmdOK", "result vType"},
             {"0|0 '0'", "281474976710655|0 '281474976710655'", "2E14|0 '2E14'"});
  Strings rows;
  for (const std::string text :
       {"281474976710656", "", "-1", "1.5", "1,5", "1 5", " 15", "2e14", "3E14", "&H10", "x"}) {
    rows.push_back(text + "|1 '" + text + "' 1151/262/0 txtValue");
  }
  ExpectEach({call, "answer 1;click cmdOK;dump", "result vType messages focus"}, rows);
  ExpectEach({call, "type txtValue '1234567890123456';click cmdOK", "vType"}, {"|'123456789012345'"});
}

TEST(WirelessPointID, TitleAndRangesAreShown) {
  ExpectEach({"clsWirelessPointID iOption1={0} iOption2={1}", "key txtRanges PageDown;dump",
              "title txtRanges.selStart txtRanges"},
             {"8|18|10675" + kRanges, "8|17|10676" + kRanges, "4|18|10673" + kRanges, "9|0|10677" + kRanges,
              "0|0|10676" + kRanges});
}

}  // namespace
}  // namespace orlin::testing
