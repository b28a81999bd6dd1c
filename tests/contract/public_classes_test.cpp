#include <algorithm>
#include <fstream>
#include <string>

#include "app/calls/arguments.h"
#include "support/dialog_call.h"

// What every public class promises, asked of each one with the arguments that the example of an account has for it.

namespace orlin::testing {
namespace {

enum class Denied { Usual, BothHide, ViewDisables };

struct Row {
  const char* Classes;
  /// Numbers of failures, and arguments that end a call so: "380: vType=16 | vType=1 vOption=0; 13: vType=x".
  const char* Faults = "";
  /// Records and their controls: "Type: lblType cmbType; Options: lblOption with vType=2". The record "*" is any.
  const char* Rights = "";
  Denied Denial = Denied::Usual;
  const char* Decoded = "";  ///< the argument that is replaced while the dialog opens
  bool EscapeCancels = true;
  int Cancelled = 1;          ///< the result of Cancel
  bool WritesAnyway = false;  ///< and is tested with its dialog
};

// What differs in a call stands in place of the example of examples/account.json.
constexpr Row kRows[] = {
    {"clsZoneFunctionsWillow"},
    {"clsPointCodes_OakGrand clsPointCodes_OakMid clsPointCodes_OakBase"},
    {"clsZoneFunctions_Fir"},
    {"clsZoneFunctionsBirch", "380: vType=16 | vOption=4 | vTroubleOn=3; 13: vType=x; 424: SecurityLevels=1",
     "Type: cmbType lblType; Output Response: cmbOption lblOption; Trouble On: cmbTroubleOn lblTroubleOn"},
    {.Classes = "clsZoneFuncDescBirch",
     .Faults = "380: iFunction=5; 13: iFunction=x | vRetVal=1; 9: vRetVal=[]",
     .Rights = "*: cmbZoneFunc lblZoneFuncDesc",
     .EscapeCancels = false},
    {.Classes = "clsZoneTypeBirch",
     .Faults = "380: iZoneNum=50 iZoneType=5 | iZoneNum=8 iOrlinRF=0 iZoneType=1 | iZoneNum=130 iZoneType=5; "
               "13: iOrlinRF=x; 9: iZoneNum=0 | iZoneNum=-5",
     .Rights = "Type: cmbZoneType",
     .Denial = Denied::ViewDisables,
     .EscapeCancels = false},
    {"clsSkedFunc_WillowDuo clsSkedFunc_WillowAce",
     "13: SkedNo=x | SkedTime=[1] | SkedType=2 SkedData=12/31; 6: SkedType=2 SkedData=40000",
     "Time: fraTime; Date: fraDate with SkedType=1 SkedData=01/01; Time Edit: chkTimeEdit; Sun: chkDOW(0); "
     "Mon: chkDOW(1); Tue: chkDOW(2); Wed: chkDOW(3); Thu: chkDOW(4); Fri: chkDOW(5); Sat: chkDOW(6); "
     "Function Code Ref.# and Description: fraCode"},
    {"clsSkedFunc_Rowan clsSkedFunc_Hazel clsSkedFunc_Aspen clsSkedFunc_Larch clsSkedFunc_Cedar clsSkedFunc_Maple "
     "clsSkedFunc_RowanNova clsSkedFunc_AspenNova clsSkedFunc_LarchNova",
     "13: Byte1=x | Byte1=3 Byte2=x"},
    {"clsSkedFunc_HazelKin clsSkedFunc_LarchKin",
     "380: Byte1=16 | Byte1=-1 | Byte1=28; 13: Byte1=x; 6: Byte1=3000000000"},
    {.Classes = "clsTime_FirePanels", .Cancelled = 2},
    {.Classes = "clsLstTime_Rowan", .Faults = "2: Index=-1 | Index=49", .Decoded = "res"},
    {.Classes = "clsOctalRelaysBirch",
     .Faults = "380: vType=0 vData=1 | vType=5 | vType=1 vData=E | vType=1 vData=1 vOption=4; 13: vType=x",
     .Rights = "Type: lblType cmbType; Options: lblOption cmbOption; Follows Zone: lblFunction txtFollowZone; "
               "Output Follows: lblFunction cmbFunction with vType=2 vData=1; "
               "Function: lblFunction txtFunction udFunction chkDisabled with vType=3 vData=1",
     .Decoded = "vData"},
    {.Classes = "clsOutputFunctionsBirch",
     .Faults = "380: vType=16 | vType=1; 13: vType=x",
     .Rights = "Output Function: lblType cmbType; Options: lblOption cmbOption; "
               "Follows Zone 1: lblFirstZone txtFirstZone; Follows Zone 2: lblSecondZone txtSecondZone",
     .Decoded = "vType"},
    {.Classes = "clsOnboardOutputsBirch",
     .Faults = "380: vType=15; 9: vType=1 vOption=-1 | vType=14 vOption=5",
     .Rights = "Output Follows: lblOutputFollows cmbType; Options: fraOptions",
     .Decoded = "vType"},
    {"clsRelayParam_OakGrand clsRelayParam_OakMid clsRelayParam_OakBase",
     "380: FunctionCode=25; 13: ParameterCode=5; 6: FunctionCode=1 ParameterCode=[256]",
     "Function 2: lblFunction cmbFunction with FunctionNo=2; "
     "----Parameter 2: lblParameter lstMSParam with FunctionNo=2 FunctionCode=1 ParameterCode=[0*24]"},
    {"clsOutputFunctions_Pine", "380: vCode=-2; 13: vPanelType=x"},
    {"clsPulseCount_Pine clsPulseCount_Spruce", "13: vPulseCount=x; 6: vPulseCountTime=40000",
     "Pulse Count: cbPulseCount; Pulse Count Time: cbPulseCountTime lblWithin"},
    {"clsPhoneOptions_Pine", "380: vTrouble=2",
     "Enable Supervision (System Trouble at Cmd Ctr): Check1; "
     "Enable Supervision (System Trouble at Cmd Ctr):  with vPanelType=24; "
     "Enable Supervision (System Trouble at Keypad): Check1 with vPanelType=25; "
     "Burg Alarm and Strobe Functions, All or Part On: Check2; "
     "Burg Alarm and Strobe Functions, All or Part On:  with vPanelType=40; "
     "&Burg Alarm and Strobe Functions, Away Mode or Stay Mode: Check2 with vPanelType=40; "
     "Burg Alarm and Strobe Functions, All On or Perimeter Only: Check2 with vPanelType=24; "
     "Burg Alarm and Strobe Functions, Off: Check3 with vPanelType=24"},
    {"clsAltCommConfiguration", "380: vMode=3 | vAlarm=2 | vOpenClose=2 | vAll=2", "*: "},
    {.Classes = "clsPanelGMT",
     .Faults = "380: iHrs=13 | iMins=61",
     .Rights = "*: udHrsfromGMT udMinfromGMT chkPanelTime chkPanelDayLightSaving",
     .EscapeCancels = false},
    {"clsReportroutinglite", "9: vOption=4 | vOption=-1", "Options: Frame1", Denied::BothHide},
    {"clsWSNDeviceTypeInput", "380: vDeviceType=31 | vDeviceType=-1; 9: vfreeOutputs=[true]; 13: vfreeOutputs=5",
     "*: "},
    {"clsWSNDeviceTypeOutput", "380: vDeviceType=31", "*: "},
    {"clsWSNSensorSensitivity", "380: vOption=1 res=2 | vOption=1 res=3 | vOption=10 res=16 | vOption=10 res=-1"},
    {"clsWirelessPointID", "", "Data Value: Frame1; Ranges: Label2 txtRanges", Denied::BothHide},
    {.Classes = "clsErrorMessageNova",
     .Faults = "0: vItemNo=[29] vValue=[1,2] | vItemNo=29 | vValue=1 | vItemNo=[\"x\"] vValue=[1] | SecurityLevels=5",
     .Rights = "*: grpErrorDetails btnAcceptChanges lblUserWarning OptAccept OptIgnore vsFlexArray1",
     .WritesAnyway = true},
    {.Classes = "clspasscodeLen",
     .Faults = "9: iTotalNoOfUsers=250 | vresult=[1,2]; 6: iTotalNoOfUsers=32766; 13: vresult=5 | vresult=empty; "
               "424: SecurityLevels=5",
     .Rights = "*: cmdOK fa lstExisting lstMatch lstUnusable lblCaption optSave optPlZeroSsave",
     .Denial = Denied::BothHide,
     .WritesAnyway = true},
    {.Classes = "clsPanelNotes", .WritesAnyway = true},
};

struct Call {
  std::string Class;
  Strings Arguments, Levels;

  /// Actions that are refused do not count: not every control is within reach.
  [[nodiscard]] DialogRun Play(const std::string& script) const {
    return testing::Play(Class, Arguments, script, {.Levels = Levels, .MayRefuse = true});
  }
};

const Json& Account() {
  static const auto account = Json::parse(std::ifstream(ORLIN_EXAMPLES "/account.json"));
  return account;
}

/// The texts NAME=VALUE with some in place of those of the same name, or behind them.
Strings Replaced(Strings texts, const Strings& others) {
  for (const auto& other : others) {
    const auto name = other.substr(0, other.find('=') + 1);
    std::erase_if(texts, [&](const auto& text) { return text.starts_with(name); });
    texts.push_back(other);
  }
  return texts;
}

/// The example of a class, for an operator who may do anything.
Call Example(const std::string& publicClass, const std::string& differing = {}, const Strings& levels = {}) {
  Strings arguments;
  for (const auto& parameter : Account().at("parameters")) {
    if (parameter.at("class") != publicClass || !arguments.empty()) continue;
    for (const auto& [name, value] : parameter.at("arguments").items()) {
      arguments.push_back(name + "=" + value.get<std::string>());
    }
  }
  return {publicClass, Replaced(arguments, Split(differing, " ")), Replaced(Account().at("levels"), levels)};
}

Json Controls(const DialogRun& run) { return run.Events("state").at(0).at("controls"); }

void ExpectUntouched(const Row& row, const Call& call, const DialogRun& run) {
  const auto& publicClass = *FindPublicClass(call.Class);
  const auto given = BindArguments(publicClass, call.Arguments, {});
  for (std::size_t i = 0; i < given.size(); ++i) {
    const auto& parameter = publicClass.Parameters()[i];
    if (parameter.Name == kSecurityLevels || row.Decoded == parameter.Name) continue;
    EXPECT_EQ(run.Argument(parameter.Name), Converted(given[i], parameter.Kind)) << parameter.Name;
  }
}

/// A script that changes whatever the operator can reach.
std::string ChangesOf(const Json& controls) {
  std::string script;
  for (const auto& [name, control] : controls.items()) {
    const auto kind = control.at("kind").get<std::string>();
    if (kind == "CheckBox" || kind == "OptionButton") script += "click " + name + "\n";
    if (kind == "TextBox") script += "type " + name + " \"1\"\n";
    if (!control.contains("list") || control.at("list").size() < 2) continue;
    script += "select " + name + (control.at("listIndex") == 0 ? " 1" : " 0") +
              (control.contains("selected") ? " on\n" : "\n");
  }
  return script;
}

template <class Ask>
void OfEachClass(Ask ask) {
  for (const auto& row : kRows) {
    for (const auto& publicClass : Split(row.Classes, " ")) {
      SCOPED_TRACE(publicClass);
      ask(row, publicClass);
    }
  }
}

TEST(PublicClassContract, HasARowForEveryClass) {
  Strings rows, classes;
  OfEachClass([&](const Row&, const std::string& publicClass) { rows.push_back(publicClass); });
  for (const auto& publicClass : PublicClasses()) classes.push_back(publicClass.Name());
  EXPECT_TRUE(std::is_permutation(rows.begin(), rows.end(), classes.begin(), classes.end()));
}

TEST(PublicClassContract, FailureBeforeTheShowIsTheResultAndTouchesNothing) {
  OfEachClass([](const Row& row, const std::string& publicClass) {
    for (const auto& fault : Split(row.Faults, "; ")) {
      for (const auto& differing : Split(fault.substr(fault.find(' ') + 1), " | ")) {
        SCOPED_TRACE(differing);
        const auto call = Example(publicClass, differing);
        const auto run = call.Play("");
        EXPECT_EQ(run.Result, std::stoi(fault));
        EXPECT_TRUE(run.Events("show").empty());
        ExpectUntouched(row, call, run);
      }
    }
  });
}

TEST(PublicClassContract, OnlyOkWrites) {
  OfEachClass([](const Row& row, const std::string& publicClass) {
    if (row.WritesAnyway) return;
    const auto call = Example(publicClass);
    const auto controls = Controls(call.Play("dump"));
    Strings ends = {"close", "key - Escape"};
    for (const auto* cancel : {"cmdCancel", "btnCancel"}) {
      if (controls.contains(cancel)) ends.push_back(std::string("click ") + cancel);
    }
    for (const auto& end : ends) {
      SCOPED_TRACE(end);
      const auto run = call.Play(ChangesOf(controls) + end + "\ndump");
      EXPECT_EQ(run.Result, row.Cancelled);
      EXPECT_EQ(run.Events("state").empty(), row.EscapeCancels || end != "key - Escape");
      ExpectUntouched(row, call, run);
    }
  });
}

TEST(PublicClassContract, RightsDecideOnTheirControlsAndNoOthersAndNotOnTheResult) {
  OfEachClass([](const Row& row, const std::string& publicClass) {
    for (const auto& right : Split(row.Rights, "; ")) {
      SCOPED_TRACE(right);
      const auto colon = right.find(": "), with = right.find(" with ");
      const auto name = right[0] == '*' ? "Anything" : right.substr(0, colon);
      const auto controls = right.substr(colon + 2, with - std::min(with, colon + 2));
      const auto differing = with == std::string::npos ? "" : right.substr(with + 6);
      const auto play = [&](const std::string& level) {
        return Example(publicClass, differing, {level}).Play("dump\nclick cmdOK");
      };
      const auto free = play(right[0] == '*' ? "Anything=2,2" : "Anything=9,9");
      for (const bool view : {true, false}) {
        auto expected = Controls(free);
        for (const auto& control : Split(controls, " ")) {
          const bool hides = row.Denial == Denied::BothHide || (view && row.Denial == Denied::Usual);
          if (view || row.Denial != Denied::ViewDisables) expected.at(control)[hides ? "visible" : "enabled"] = false;
        }
        const auto run = play(name + (view ? "=3,2" : "=2,3"));
        EXPECT_EQ(Controls(run), expected) << view;
        EXPECT_EQ(run.Events("return"), free.Events("return"));
      }
      auto call = Example(publicClass, differing);
      call.Levels = {name + "=1,1"};
      EXPECT_EQ(call.Play("").Events("show").empty(), right != "*: ") << "without AuthorityLevel";
    }
  });
}

}  // namespace
}  // namespace orlin::testing
