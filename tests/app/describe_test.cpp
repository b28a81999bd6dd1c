#include "app/usage/status.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

Ended Described(const std::string& call) { return RunHost("describe --language en " + call); }

Json InJson(const std::string& call) { return Json::parse(Described("--json " + call).Out); }

constexpr const char* kPasscodes =
    R"(clspasscodeLen vresult=["1234","12",""*248] vpresent=["1234","12",""*248] vPasscodeLength=4 iTotalNoOfUsers=2)";
constexpr const char* kLists = "clsSkedFunc_HazelKin Byte1=11 Byte2=3 Byte3=0";

TEST(DescribeText, TellsWhatTheOperatorWouldSee) {
  const std::pair<const char*, const char*> cases[] = {
      // a label that is a heading of another one, and labels of an array
      {"clsZoneFunctionsWillow ZoneNum=5 ZoneCode=\"4000\"",
       R"(Zone Function
  Function code of zone 5:  5111
  First digit:              5. Medical zone
  Second digit:             1. Instant
  Third digit:              1. Silent, no report
  Fourth digit:             1. No bypass, no restoral report
)"},
      // boxes with a separator, frames, options, check marks, and a hidden frame
      {"clsSkedFunc_WillowDuo SkedType=1 SkedTime=\"**:30\" SkedData=\"01/02\" SkedFunc=\"012\"",
       R"(Sked 101
  Sked type:  (*) Date
  Time:       **:30 24
              ** for every hour or every minute
              [ ] Time edit
  Date
    Month:    January
    Day:      2
    ** for every month or every day
  Code:       012  Turn relay 2 on
)"},
      // lists that take turns behind a label
      {kLists,
       R"(Sked Function
  Function:                   11  Give an access level a time window
  Parameter 1: Access level:  Access level 3
  Parameter 2: Time window:   (nothing selected)
)"},
      // options with labels for their captions, and a text of several lines
      {"clsWSNDeviceTypeInput vDeviceType=8 vMappedOutput=1 vOption=2 vfreeOutputs=[true,true,false,true]",
       R"(Wireless Device Type
  Device type:    Wireless relay module
  Relay type:     (*) Input and output
  Mapped output:  Output 2
)"},
      {"clsWirelessPointID iOption1=8 iOption2=18 vType=\"a\\tb\x1B\"",
       R"(Wireless Keyfob ID
  Data value:   a       b
    Increment:  1
  Ranges:       Lowest          Highest
                0               281474976710655
)"},
      // a table whose colours are explained by labels, lists to be read, and an option of the dialog itself
      {kPasscodes,
       R"(Warning: Duplicate or Unusable Passcodes Present
  Passcodes in color do not fit the new passcode length, or are too close to the passcode of another user. Double-click one to correct it.
  The passcode length is now 4.
    User  Passcode
    0     1234 (Duplicate/Duress Passcodes)
    1     12 (Unusable Passcodes)
    2
  Duplicate/Duress Passcodes

  0   : 1234
  Unusable Passcodes

  1   : 12
  Passcodes Already in Use

  (*) Save the corrected passcodes.
)"},
  };
  for (const auto& [call, text] : cases) {
    const auto told = Described(call);
    EXPECT_EQ(told.Out, text);
    EXPECT_EQ(told.Status, status::Done);
  }
}

TEST(DescribeText, TellsMessagesAndWhereAFailureArose) {
  const TemporaryFolder drives;
  const auto call = "clsPanelNotes PanelGUID=x NoteHeader=y NoteTypeID=3 --drives " + drives.Path().string();
  const auto told = Described(call);
  EXPECT_EQ(told.Status, status::Failed);
  EXPECT_TRUE(
      told.Out.starts_with("clsPanelNotes\n  ! cannot be shown: failure 3049 in modStoreObj.OpenSecureDB(), "
                           "Cannot open database: "))
      << told.Out;
  EXPECT_NE(told.Out.find("\n  ! message: Cannot open database "), std::string::npos) << told.Out;
  EXPECT_TRUE(std::filesystem::is_empty(drives.Path()));
  const auto notes = InJson(call).at("notes");
  EXPECT_EQ(notes.at(0).at("failure"), 3049);
  EXPECT_EQ(notes.at(0).at("where"), "modStoreObj.OpenSecureDB()");
  EXPECT_EQ(notes.at(1).at("title"), "Tolmar");
}

TEST(DescribeText, SpeaksTheLanguageOfItsPlatform) {
  // Also where the dialog itself keeps a text in English: titles, labels, units, marks, rows, texts of boxes, cells.
  const std::pair<const char*, std::vector<const char*>> cases[] = {
      {"clsZoneFunctionsWillow ZoneNum=5", {"Zonenfunktion\n"}},
      {"clsPanelGMT iHrs=5",
       {"Zeit der Zentrale\n  Stunden gegenüber GMT (UTC)\n", "Abweichung der Zentrale von GMT:  5 Std. 0 Min.\n",
        "[ ] Sommerzeit\n"}},
      {"clsLstTime_Rowan Index=48", {"Zeit:  MITTERNACHT\n  Wert:  MITTERNACHT\n"}},
      {"clsZoneFuncDescBirch vName=Zone vRetVal=[0] iFunction=0", {"Zone bearbeiten\n"}},
      {"clsErrorMessageNova vItemNo=[22] vValue=[3]", {"entfällt       3", "240 (nur in Fünferschritten)"}}};
  for (const auto& [call, words] : cases) {
    const auto told = RunHost(std::string("describe --language de_DE.UTF-8 ") + call).Out;
    for (const auto* word : words) EXPECT_NE(told.find(word), std::string::npos) << word << " in\n" << told;
  }
}

TEST(DescribeJson, TellsEveryControl) {
  // Fixed texts are the same for programs in every language.
  const auto out = RunHost("describe --language de --json clsPanelGMT iHrs=5").Out;
  EXPECT_TRUE(out.starts_with(
      R"j({"class":"clsPanelGMT","dialog":"frmPanelGMT","title":"Panel Time","controls":[{"control":"txthrsfromGMT",)j"
      R"j("kind":"TextBox","caption":"Panel Time differs from GMT by","frame":"Hours From GMT(UTC)","enabled":true,)j"
      R"j("text":"5"},)j"))
      << out;
  EXPECT_TRUE(
      out.ends_with(R"j("caption":"Daylight Savings","frame":"Hours From GMT(UTC)","enabled":true,"on":false}],)j"
                    "\"notes\":[]}\n"))
      << out;
  EXPECT_EQ(Described("--json clsPanelGMT iHrs=13").Out,
            R"({"class":"clsPanelGMT","dialog":null,"title":null,"controls":[],)"
            R"("notes":[{"failure":380,"description":"Invalid property value","where":""}]})"
            "\n");
}

TEST(DescribeJson, TellsWhatIsChosen) {
  const auto lists = InJson(kLists).at("controls");
  EXPECT_EQ(lists.at(1).at("selected"), "Access level 3");
  EXPECT_EQ(lists.at(2).at("selected"), nullptr);
  EXPECT_FALSE(lists.at(2).contains("rows"));
  EXPECT_EQ(InJson("clsSkedFunc_Rowan Byte1=1 Byte2=3").at("controls").at(1).at("selected"),
            Json({"Area 7", "Area 8"}));
  const auto passcodes = InJson(kPasscodes).at("controls");
  EXPECT_EQ(passcodes.at(0).at("cells").at(2), Json({"1", "12"}));
  EXPECT_EQ(passcodes.at(0).at("remarks"), Json::parse(R"([{"row":1,"col":1,"text":"Duplicate/Duress Passcodes"},
                                                             {"row":2,"col":1,"text":"Unusable Passcodes"}])"));
  EXPECT_EQ(passcodes.at(2).at("rows").back(), "1   : 12");
  EXPECT_EQ(passcodes.at(5).at("on"), false);
}

TEST(DescribeAccount, GoesOnBehindAValueThatCannotBeShown) {
  const TemporaryFolder folder;
  const auto account = folder.Write("account.json", R"({"panel": "x", "parameters": [
    {"name": "A", "class": "clsPanelGMT", "arguments": {"iHrs": "13"}},
    {"name": "B", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "5", "ZoneCode": "\"5111\""}}]})");
  const auto told = Described("--account " + account.string());
  EXPECT_TRUE(
      told.Out.starts_with("A: clsPanelGMT\n  ! cannot be shown: failure 380, Invalid property value\n\n"
                           "B: Zone Function\n  Function code of zone 5:  5111\n"))
      << told.Out;
  EXPECT_EQ(told.Status, status::Failed);
  EXPECT_TRUE(Described("--json --account " + account.string())
                  .Out.starts_with(R"({"name":"A","class":"clsPanelGMT","dialog":null)"));
}

}  // namespace
}  // namespace orlin::testing
