#include "catalogue/languages.h"
#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

// Function 1 is one whose alarms can be verified, function 2 is not.
const std::string kDescription = "clsZoneFuncDescBirch vName=Zone5 iFunction={0} iZoneAlarmVerify={1} vRetVal=";
const std::string kType = "clsZoneTypeBirch iZoneNum={0} iOrlinRF={1} iZoneType={2} iMultiZoneType='7'";
const Strings kMayType = {"AuthorityLevel=2,2", "Type=2,2"};

TEST(BirchZone, ListsStayAsTheyAreWhenTheTypeChanges) {
  // Filling a list again would show it.
  ExpectEach({"clsZoneFunctionsBirch vName=Zone5 vOption=3 vTroubleOn=2",
              "select cmbType 9;select cmbType 0;dump",
              "title lblType cmbType lblOption cmbOption cmbOption.listIndex lblTroubleOn cmbTroubleOn "
              "cmbTroubleOn.listIndex cmbTroubleOn.on",
              {"AuthorityLevel=2,2", "Trouble On=3,2"}},
             {"1192 Zone5 234 [1723..1735 1234 1736 1737] 1722 [1743..1746] 3 1721 [395 10560 1747] 2 false/true"});
}

TEST(BirchZone, EveryCombinationPassesAndComesBackAsIntegers) {
  Strings rows;
  for (int i = 0; i < 16 * 4 * 3; ++i) {
    const auto type = std::to_string(i / 12), option = std::to_string(i / 3 % 4), trouble = std::to_string(i % 3);
    rows.push_back(type + "|" + option + "|" + trouble + "|" + type + " " + option + " " + trouble);
  }
  ExpectEach({.Call = "clsZoneFunctionsBirch vType='{0}' vOption={1} vTroubleOn={2}L",
              .Script = "click cmdOK",
              .Words = "vType vOption vTroubleOn",
              .Texts = true},
             rows);
}

TEST(BirchDescription, ShowsTheDescriptionsOfTheHostAndReplacesTheFirst) {
  ExpectEach({kDescription + "['old','b']", "dump;click cmdCancel",
              "title lblZoneFuncDesc cmbZoneFunc ChkAlarmVerified vRetVal"},
             {"1|0|Edit Zone5 10551 [10553 b] 10552 ['10553','b']"});
}

TEST(BirchDescription, NameOfATypeAnywhereInTheDescriptionAllowsVerification) {
  Strings rows = {"1|0|" + Text(1731) + "|false"};
  for (std::int16_t type = 1723; type <= 1730; ++type) {
    rows.push_back("1|0|x" + Text(type) + "y|true");
    rows.push_back("1|0|" + std::string(LanguageOf("de").Find(type)) + "|true");
    rows.push_back("1|0|x" + Text(type).substr(1) + "|false");  // another first letter
  }
  ExpectEach({.Call = kDescription + "[0,'{2}']", .Script = "dump", .Words = "ChkAlarmVerified.enabled", .Texts = true},
             rows);
}

TEST(BirchDescription, VerificationComesBackAsOneOrZero) {
  const std::string one = "select cmbZoneFunc 1;", two = "select cmbZoneFunc 2;", tick = "click ChkAlarmVerified;";
  ExpectEach({kDescription + "['','1:1726(hall)','two']", "{2};key - Enter", "iFunction iZoneAlarmVerify"},
             {"'1'|0||1 0", "1|-3||1 1", "1|1|" + tick + "|1 0", "2|1||2 0", "2L|0|" + one + tick + "|1 1",
              "1|1|" + two + "|2 0", "1|1|" + two + one + "|1 1", "1|10||1 0", "1|10|" + two + one + "|1 0",
              "1|10|" + two + one + tick + "|1 1"});
  ExpectEach({kDescription + "['','1726']", "dump", "ChkAlarmVerified.enabled"}, {"1|10|false", "1|0|true"});
}

TEST(BirchType, ListDependsOnTheZoneAndItsRadio) {
  const std::string none = "|10318 [10540]", five = "|10318 [10540 10542..10545]", radio = "|10318 [10311]";
  const std::string alone = "|10318 [10546 10542..10545]", far = "|10318 [10554 10542..10545 10548]",
                    farRadio = "|10318 [10547 10548]";
  ExpectEach({kType, "dump", "Label1 cmbZoneType", kMayType},
             {"1|0|0" + none,    "8|0|0" + none,       "'5'|0|0" + none,      "1|2|0" + none,    "8|2|0" + none,
              "9|0|0" + five,    "128|0|0" + five,     "9|2|0" + five,        "128|2|0" + five,  "129|0|0" + five,
              "135|0|0" + five,  "136|0|0" + five,     "129|2|0" + radio,     "135|2|0" + radio, "136|2|0" + radio,
              "130|0|0" + alone, "134|0|0" + alone,    "130|2|0" + radio,     "134|2|0" + radio, "137|0|0" + far,
              "40000|0|0" + far, "137|2|0" + farRadio, "40000|2|0" + farRadio});
}

TEST(BirchType, StoredTypeSelectsAPositionAndThePositionIsStored) {
  ExpectEach(
      {kType, "dump;select cmbZoneType {3};click cmdOK", "title cmbZoneType.listIndex iZoneType iMultiZoneType",
       kMayType},
      {"5|1|0|0|10318 0 0 '7'", "5|1|3|0|10318 0 0 '7'", "9|1|'4'|4|10318 4 4 '7'", "128|1|4L|2|10318 4 2 '7'",
       "132|0|1|1|10318 1 1 '7'", "132|1|4|0|10318 0 0 '7'", "140|0|5|5|10318 5 5 '7'", "140|0|2|5|10318 2 5 '7'",
       "140|1|3|0|10318 0 0 '7'", "140|-1|5|1|10318 1 5 '7'", "140|1|'5'|0|10318 1 0 '7'", "140|1|0|1|10318 0 5 '7'"});
  for (const std::string record : {"Type=0,0", "AuthorityLevel=0,0"}) {
    ExpectEach({kType, "", "result", {record}}, {"50|0|0|5"});  // it needs both
  }
}

}  // namespace
}  // namespace orlin::testing
