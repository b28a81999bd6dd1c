#include "app/description/describe.h"

#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "app/usage/status.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

struct Told {
  int Status = -1;
  std::string Out;
};

Told Describing(DescribeOptions options) {
  std::ostringstream out;
  const int status = Describe(std::move(options), out);
  return {status, out.str()};
}

DescribeOptions Options(const char* publicClass, std::vector<std::string> arguments) {
  DescribeOptions options;
  options.Class = publicClass;
  options.Arguments = std::move(arguments);
  return options;
}

Json Controls(const char* publicClass, std::vector<std::string> arguments) {
  auto options = Options(publicClass, std::move(arguments));
  options.Json = true;
  return Json::parse(Describing(std::move(options)).Out).at("controls");
}

constexpr const char* kPasscodes[] = {R"(vresult=["1234","12",""*248])", R"(vpresent=["1234","12",""*248])",
                                      "vPasscodeLength=4", "iTotalNoOfUsers=2"};

TEST(DescribeText, TellsWhatTheOperatorWouldSee) {
  const struct {
    const char* Class;
    std::vector<std::string> Arguments;
    const char* Told;
  } cases[] = {
      // a label that is a heading of another one, and labels of an array
      {"clsZoneFunctionsWillow",
       {"ZoneNum=5", "ZoneCode=\"4000\""},
       R"(Zone Function
  Function code of zone 5:  5111
  First digit:              5. Medical zone
  Second digit:             1. Instant
  Third digit:              1. Silent, no report
  Fourth digit:             1. No bypass, no restoral report
)"},
      // boxes with units, which stand on one line
      {"clsPanelGMT",
       {"iHrs=5", "iMins=30", "iPanelDayLightSaving=1"},
       R"j(Panel Time
  Hours From GMT(UTC)
    Panel Time differs from GMT by:  5 Hrs 30 Min
    [ ] Panel Time behind GMT(UTC)
    [x] Daylight Savings
)j"},
      // boxes with a separator, frames, options, check marks, and a hidden frame
      {"clsSkedFunc_WillowDuo",
       {"SkedType=1", "SkedTime=\"**:30\"", "SkedData=\"01/02\"", "SkedFunc=\"012\""},
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
      // lists that take turns behind a label, one row or many
      {"clsSkedFunc_Rowan",
       {"Byte1=1", "Byte2=3"},
       "Sked Function\n"
       "  Function:            1  Arm areas\n"
       "  Parameter 1: Areas:  Area 7\n"
       "                       Area 8\n"},
      {"clsSkedFunc_HazelKin",
       {"Byte1=11", "Byte2=3", "Byte3=0"},
       R"(Sked Function
  Function:                   11  Give an access level a time window
  Parameter 1: Access level:  Access level 3
  Parameter 2: Time window:   (nothing selected)
)"},
      // options with labels for their captions, and a text of several lines
      {"clsWSNDeviceTypeInput",
       {"vDeviceType=8", "vMappedOutput=1", "vOption=2", "vfreeOutputs=[true,true,false,true]"},
       R"(Wireless Device Type
  Device type:    Wireless relay module
  Relay type:     (*) Input and output
  Mapped output:  Output 2
)"},
      {"clsWirelessPointID",
       {"iOption1=8", "iOption2=18", "vType=\"a\\tb\x1B\""},
       R"(Wireless Keyfob ID
  Data value:   a       b
    Increment:  1
  Ranges:       Lowest          Highest
                0               281474976710655
)"},
      // a table whose colours are explained by labels, lists to be read, and an option of the dialog itself
      {"clspasscodeLen",
       {std::begin(kPasscodes), std::end(kPasscodes)},
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
  for (const auto& one : cases) {
    const auto told = Describing(Options(one.Class, one.Arguments));
    EXPECT_EQ(told.Out, one.Told);
    EXPECT_EQ(told.Status, status::Done);
  }
}

TEST(DescribeText, TellsWhyAValueCannotBeShown) {
  const auto told = Describing(Options("clsZoneFunctionsBirch", {"vType=16"}));
  EXPECT_EQ(told.Out, "clsZoneFunctionsBirch\n  ! cannot be shown: failure 380, Invalid property value\n");
  EXPECT_EQ(told.Status, status::Failed);
}

TEST(DescribeText, TellsMessagesAndWhereAFailureArose) {
  const TemporaryFolder drives;
  auto options = Options("clsPanelNotes", {"PanelGUID=x", "NoteHeader=y", "NoteTypeID=3"});
  options.Platform.DrivesFolder = drives.Path();
  options.Platform.Language = "C";
  const auto told = Describing(options);
  EXPECT_EQ(told.Status, status::Failed);
  EXPECT_EQ(told.Out.find("clsPanelNotes\n  ! cannot be shown: failure 3049 in modStoreObj.OpenSecureDB(), Cannot open "
                          "database: "),
            0U)
      << told.Out;
  EXPECT_NE(told.Out.find("\n  ! message: Cannot open database "), std::string::npos) << told.Out;
  EXPECT_TRUE(std::filesystem::is_empty(drives.Path()));
  options.Json = true;
  const auto notes = Json::parse(Describing(options).Out).at("notes");
  EXPECT_EQ(notes.at(0).at("failure"), 3049);
  EXPECT_EQ(notes.at(0).at("where"), "modStoreObj.OpenSecureDB()");
  EXPECT_EQ(notes.at(1).at("title"), "Tolmar");
}

TEST(DescribeText, SpeaksTheLanguageOfItsPlatform) {
  auto options = Options("clsZoneFunctionsWillow", {"ZoneNum=5"});
  options.Platform.Language = "de_DE.UTF-8";
  EXPECT_EQ(Describing(options).Out.find("Zonenfunktion\n"), 0U);
}

TEST(DescribeJson, TellsEveryControl) {
  auto options = Options("clsPanelGMT", {"iHrs=5"});
  options.Json = true;
  const Json expected = {{"class", "clsPanelGMT"},
                         {"dialog", "frmPanelGMT"},
                         {"title", "Panel Time"},
                         {"controls", Json::array()},
                         {"notes", Json::array()}};
  auto told = Json::parse(Describing(options).Out);
  const auto controls = std::exchange(told.at("controls"), Json::array());
  EXPECT_EQ(told.dump(), expected.dump());
  ASSERT_EQ(controls.size(), 6U);
  const auto in = R"j("frame":"Hours From GMT(UTC)","enabled":true,)j";
  EXPECT_EQ(controls.at(0).dump(),
            std::string(R"({"control":"txthrsfromGMT","kind":"TextBox","caption":"Panel Time differs from GMT by",)") +
                in + R"("text":"5"})");
  EXPECT_EQ(controls.at(5).dump(),
            std::string(R"({"control":"chkPanelDayLightSaving","kind":"CheckBox","caption":"Daylight Savings",)") + in +
                R"("on":false})");
  options.Arguments = {"iHrs=13"};
  EXPECT_EQ(Describing(options).Out, R"({"class":"clsPanelGMT","dialog":null,"title":null,"controls":[],)"
                                     R"("notes":[{"failure":380,"description":"Invalid property value","where":""}]})"
                                     "\n");
}

TEST(DescribeJson, TellsWhatIsChosen) {
  const auto lists = Controls("clsSkedFunc_HazelKin", {"Byte1=11", "Byte2=3", "Byte3=0"});
  EXPECT_EQ(lists.at(1).at("selected"), "Access level 3");
  EXPECT_EQ(lists.at(2).at("selected"), nullptr);
  EXPECT_FALSE(lists.at(2).contains("rows"));
  EXPECT_EQ(Controls("clsSkedFunc_Rowan", {"Byte1=1", "Byte2=3"}).at(1).at("selected"), Json({"Area 7", "Area 8"}));
  const auto passcodes = Controls("clspasscodeLen", {std::begin(kPasscodes), std::end(kPasscodes)});
  EXPECT_EQ(passcodes.at(0).at("cells").at(2), Json({"1", "12"}));
  EXPECT_EQ(passcodes.at(0).at("remarks"), Json::parse(R"([{"row":1,"col":1,"text":"Duplicate/Duress Passcodes"},
                                                             {"row":2,"col":1,"text":"Unusable Passcodes"}])"));
  EXPECT_EQ(passcodes.at(2).at("rows").back(), "1   : 12");
  EXPECT_EQ(passcodes.at(5).at("on"), false);
}

TEST(DescribeAccount, GoesOnBehindAValueThatCannotBeShown) {
  const TemporaryFolder folder;
  DescribeOptions options;
  options.Account = folder.Write("account.json", R"({"panel": "x", "parameters": [
    {"name": "A", "class": "clsPanelGMT", "arguments": {"iHrs": "13"}},
    {"name": "B", "class": "clsZoneFunctionsWillow", "arguments": {"ZoneNum": "5", "ZoneCode": "\"5111\""}}]})");
  const auto told = Describing(options);
  EXPECT_EQ(told.Out.find("A: clsPanelGMT\n  ! cannot be shown: failure 380, Invalid property value\n\n"
                          "B: Zone Function\n  Function code of zone 5:  5111\n"),
            0U)
      << told.Out;
  EXPECT_EQ(told.Status, status::Failed);
  options.Json = true;
  EXPECT_EQ(Describing(options).Out.find(R"({"name":"A","class":"clsPanelGMT","dialog":null)"), 0U);
}

}  // namespace
}  // namespace orlin::testing
