#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kPhone = "clsPhoneOptions_Pine vPanelType={0} vTrouble={1} vOn={2} vOff={3}";

TEST(PhoneOptionsPine, OkAsksForSupervisionByPanelTypeEachTimeAnew) {
  const std::string refused = "answer 1;click cmdOK;click Check1;click cmdOK";
  Strings rows;
  for (const std::string line : {"8 000 ", "24 000 ", "8 101 ", "24 111 ", "8 010 1385/null/0", "8 001 1385/null/0",
                                 "8 011 ", "26 011 ", "27 010 1385/null/0", "24 011 1875/262/0", "25 011 1875/262/0",
                                 "40 010 1875/262/0", "25 001 1875/262/0", "40 110 "}) {
    const auto cells = Split(line, " ");
    const std::string on{cells[1][1]}, off{cells[1][2]}, trouble{cells[2].empty() ? cells[1][0] : '1'};
    rows.push_back(cells[0] + "|" + cells[1][0] + "|" + on + "|" + off + "|" +
                   (cells[2].empty() ? "click cmdOK" : refused) + "|0 " + trouble + " " + on + " " + off + " " +
                   cells[2]);
  }
  ExpectEach({kPhone, "{4}", "result vTrouble vOn vOff messages"}, rows);
  // A hidden box counts.
  ExpectEach({kPhone,
              "answer 1;click cmdOK",
              "result",
              {"AuthorityLevel=1,1", "Burg Alarm and Strobe Functions, All or Part On=2,1"}},
             {"8|0|1|0|1"});
}

TEST(PhoneOptionsPine, CaptionsAndLayoutFollowThePanelType) {
  ExpectEach(
      {kPhone, "dump", "Check1 Check2 Check2.width cmdOK.left cmdCancel.left"},
      {"8|0|0|0|1382 1381 0 0 0", "26|0|0|0|1382 1381 0 0 0", "27|0|0|0|1382 1381 0 0 0", "25|0|0|0|1383 1381 0 0 0",
       "40|0|0|0|1382 1908 0 0 0", "24|0|0|0|1383 1384 600 600 600", "0|0|0|0|1383 1384 600 600 600"});
}

const std::string kComm = "clsAltCommConfiguration iItemNo={0} vMode={1} vAlarm={2} vOpenClose={3} vAll={4}";

TEST(AltCommConfiguration, ModeDecidesTheThreeChoices) {
  ExpectEach({kComm, "dump;{5};click cmdOK",
              "vMode vAlarm vOpenClose vAll 0:cmbAlarm.enabled 0:cmbOpensCloses.enabled 0:cmbAll.enabled "
              "0:cmbAlarm.listIndex"},
             {"1|1|1|0|1||1 1 0 1 true true true 1", "1|0|1|1|1||0 1 1 1 false false false 1",
              "1|0|1|1|1|select cmbMode 1;select cmbMode 2|2 0 0 0 false false false 1",
              "1|0|1|1|1|select cmbMode 1|1 1 1 1 false false false 1",
              "1|1|1|0|1|select cmbAlarm 0;select cmbMode 2;select cmbMode 1|1 1 0 1 true true true 1",
              "1|1|1|0|1|select cmbAlarm 0|1 0 0 1 true true true 1"});
  ExpectEach({kComm, "dump", "title cmbMode cmbAll"},
             {"131|0|0|0|0|AltCommConfiguration [513 10181 10539] [10549 10550]",
              "132|0|0|0|0|AltCommConfiguration [513 10181 10538] [10549 10550]",
              "133|0|0|0|0|AltCommConfiguration [513 10181 10539] [10549 10550]"});
}

const std::string kGmt = "clsPanelGMT iHrs={0} iMins={1} iIsPanelBehind=5";

TEST(PanelGMT, UpDownsHoldTheNumbersThatCount) {
  ExpectEach(
      {kGmt, "{2};dump;key - Enter", "iHrs iMins iIsPanelBehind iPanelDayLightSaving beeps udMinfromGMT.enabled"},
      {"5|30||5 30 1 0 0 true", "12|30||12 0 1 0 0 false",
       "5|0|caret txthrsfromGMT 0 1;type txthrsfromGMT '13'|5 0 1 0 0 true",
       "5|0|caret txthrsfromGMT 1 0;type txthrsfromGMT 'x'|5 0 1 0 1 true",
       "5|15|caret txtminfromGMT 0 2;type txtminfromGMT '60'|5 15 1 0 0 true",
       "5|15|caret txtminfromGMT 0 2;type txtminfromGMT '59'|5 59 1 0 0 true",
       "5|59|step udMinfromGMT up 2|5 60 1 0 0 true", "11|30|step udHrsfromGMT up|12 0 1 0 0 false",
       "11|30|step udHrsfromGMT up;step udHrsfromGMT down|11 0 1 0 0 true",
       "5|0|caret txthrsfromGMT 1 0;key txthrsfromGMT Backspace|5 0 1 0 0 true"});
  ExpectEach({kGmt, "dump", "txtminfromGMT"}, {"12|30|30"});
}

TEST(ReportRouting, OptionIsTheNumber) {
  ExpectEach({"clsReportroutinglite vOption={0}", "dump;click optOption({1});click cmdOK",
              "vOption optOption(0).value optOption(1).value optOption(2).value optOption(3).value"},
             {"0|3|3 true false false false", "1|2|2 false true false false", "2|1|1 false false true false",
              "3|0|0 false false false true"});
}

}  // namespace
}  // namespace orlin::testing
