#include <initializer_list>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "OrlinCustomDialogs/host/form.h"

#include "app/account/account.h"
#include "app/calls/arguments.h"
#include "app/calls/installed_platform.h"
#include "catalogue/text_catalogue.h"
#include "standard_platform.h"
#include "support/temporary_folder.h"

// What each file of catalogue/ owes to the dialogs. The texts of a language are looked at in the dialogs themselves, in
// every state that an operator gets to by picking rows and options.

namespace orlin {

/// In the message of a test.
static void PrintTo(const Language& language, std::ostream* out) { *out << language.Name; }

}  // namespace orlin

namespace orlin::testing {
namespace {

using Numbers = std::set<std::int16_t>;

/// The variables of a text, "%ZONE%" and the like.
std::multiset<std::string> Markers(std::string_view text) {
  std::multiset<std::string> markers;
  for (auto at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
    const auto end = text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_", at + 1);
    if (end != std::string_view::npos && end > at + 1 && text[end] == '%') markers.emplace(text.substr(at, end - at));
  }
  return markers;
}

/// A catalogue that notes what it is asked for.
class NotingCatalogue : public TextCatalogue {
 public:
  NotingCatalogue(const Language& language, Numbers& asked) : TextCatalogue(nullptr, language), asked_(asked) {}
  std::string GetLocalTextBASE(std::int16_t id) override {
    asked_.insert(id);
    return TextCatalogue::GetLocalTextBASE(id);
  }

 private:
  Numbers& asked_;
};

/// Goes through all rows and options of a dialog, then confirms; looks at each step for access keys that clash and for
/// variables that the dialog did not fill in.
class Explorer : public DialogHost {
 public:
  explicit Explorer(std::string_view language) : language_(language) {}

  [[nodiscard]] SizeInTwips Screen() const override { return {}; }
  int ShowMessage(const Message& message) override {
    ExpectFilled(message.Text);
    return message.Flags == Message::YesNo ? answers::Yes : answers::Ok;
  }
  void Beep() override {}

  void ShowModal(shown::Dialog& dialog) override {
    dialog.Activate();
    Look(dialog);
    for (auto* control : dialog.Controls()) {
      if (dialog.IsShown()) Explore(*control);
    }
    if (dialog.IsShown() && dialog.DefaultButton() != nullptr) static_cast<void>(dialog.DefaultButton()->Press());
    if (dialog.IsShown()) dialog.Close();
  }

 private:
  void Explore(shown::Control& control) {
    static_cast<void>(control.Focus());
    if (const auto* rows = control.AsRowList()) {
      for (int row = 0; row < rows->ListCount(); ++row) Pick(control, row);
    } else if (control.Kind() == ControlKind::OptionButton || control.Kind() == ControlKind::CheckBox) {
      static_cast<void>(control.Press());
      Look(control.Form());
    }
  }

  void Pick(shown::Control& control, int row) {
    if (control.AsRowList()->PickRow(row)) return;
    Look(control.Form());
  }

  void Look(const shown::Dialog& dialog) {
    ExpectFilled(dialog.Caption());
    const auto form = FormOf(dialog);
    std::map<char32_t, const shown::Control*> owners;
    for (const auto* control : dialog.Controls()) {
      ExpectFilled(control->Caption());
      ExpectFilled(form.HelpFor(*control));
      if (const auto* rows = control->AsRowList()) {
        for (int row = 0; row < rows->ListCount(); ++row) ExpectFilled(rows->List(row));
      }
      const auto key = AccessKey(control->Caption());
      if (key == 0 || !LeadsSomewhere(*control)) continue;
      const auto [owner, isFirst] = owners.emplace(key, control);
      EXPECT_TRUE(isFirst) << language_ << ' ' << dialog.Name() << ": " << owner->second->Caption() << " | "
                           << control->Caption();
    }
  }

  void ExpectFilled(const std::string& text) const { EXPECT_TRUE(Markers(text).empty()) << language_ << ' ' << text; }

  static bool LeadsSomewhere(const shown::Control& control) {
    if (!control.IsShown()) return false;
    if (control.Kind() != ControlKind::Label) return control.WithinReach();
    return control.Names() != nullptr && control.Names()->WithinReach();
  }

  std::string language_;
};

struct Call {
  const PublicClass* Class;
  std::vector<std::string> Arguments;
  std::vector<std::string> Levels = {};
};

/// The calls of the example account, and more for texts that only other values show.
std::vector<Call> Calls(const Account& account) {
  std::vector<Call> calls;
  for (const auto& parameter : account.Parameters()) calls.push_back({parameter.Class, parameter.Arguments});
  const std::pair<const char*, std::vector<std::string>> others[] = {
      {"clsZoneTypeBirch", {"iZoneNum=130", "iOrlinRF=0", "iZoneType=0"}},
      {"clsZoneTypeBirch", {"iZoneNum=137", "iOrlinRF=0", "iZoneType=0"}},
      {"clsZoneTypeBirch", {"iZoneNum=130", "iOrlinRF=1", "iZoneType=0"}},
      {"clsZoneTypeBirch", {"iZoneNum=12", "iOrlinRF=0", "iZoneType=0"}},
      {"clsPulseCount_Pine", {"vInterval1=4", "vInterval2=16", "vPulseCount=16", "vPulseCountTime=0"}},
      {"clsOutputFunctions_Pine", {"vCode=0", "vPanelType=24"}},
      {"clsOutputFunctions_Pine", {"vCode=0", "vPanelType=32"}},
      {"clsOutputFunctions_Pine", {"vCode=0", "vPanelType=40"}},
      {"clsOutputFunctions_Pine", {"vCode=0", "vPanelType=41"}},
      {"clsPhoneOptions_Pine", {"vTrouble=0", "vOn=0", "vOff=0", "vPanelType=40"}},
      {"clsAltCommConfiguration", {"vMode=0", "vAlarm=0", "vOpenClose=0", "vAll=0", "iItemNo=132"}},
      {"clsWirelessPointID", {"iOption1=4", "vType=\"1\""}},
      {"clsWirelessPointID", {"iOption1=9", "vType=\"1\""}},
      {"clsWirelessPointID", {"vType=\"1\""}},
      {"clsWSNDeviceTypeInput", {"vDeviceType=8", "vMappedOutput=0", "vOption=2", "vfreeOutputs=[true*4]"}},
      {"clsWSNDeviceTypeOutput", {"vDeviceType=8", "vMappedOutput=1", "vOption=2", "vFreeInputs=[true*32]"}}};
  for (const auto& [name, arguments] : others) calls.push_back({FindPublicClass(name), arguments});
  const std::vector<std::string> passcodes = {R"(vresult=["1234","1236",""*248])", R"(vpresent=["1234","1236",""*248])",
                                              "vPasscodeLength=4", "iTotalNoOfUsers=9"};
  for (const char* sia : {"bThroughSIA=0", "bThroughSIA=1"}) {
    for (const char* comm : {"bThroughComm=0", "bThroughComm=1"}) {
      calls.push_back({FindPublicClass("clspasscodeLen"), passcodes});
      calls.back().Arguments.insert(calls.back().Arguments.end(), {sia, comm});
    }
  }
  calls.push_back({FindPublicClass("clsZoneFunctionsBirch"),
                   {"vType=3", "vOption=1", "vTroubleOn=2"},
                   {"AuthorityLevel=5,1", "Type=1,5"}});
  return calls;
}

/// Shows every dialog in a language; returns the numbers that were asked for.
Numbers Explored(const Language& language) {
  Numbers asked;
  const TemporaryFolder folder;
  StandardPlatformOptions options;
  options.Host = std::make_shared<Explorer>(language.Name);
  options.DrivesFolder = folder.Path();
  options.FaultFile = folder.Path() / "Tolmar.err";
  auto platform = StandardPlatform(options);
  platform.Components["LocalText.clsLocalText"] = [&] { return std::make_shared<NotingCatalogue>(language, asked); };
  const InstalledPlatform installed(std::move(platform));
  const Account account(ORLIN_EXAMPLES "/account.json");
  for (const auto& call : Calls(account)) {
    auto arguments = BindArguments(*call.Class, call.Arguments,
                                   call.Levels.empty() ? account.Parameters().front().Levels : call.Levels);
    EXPECT_LE(call.Class->Display(arguments), 2) << call.Class->Name();
  }
  return asked;
}

/// The character that a row of the Fir zones stands for.
std::string_view RowCharacter(std::string_view text) { return text.substr(0, text.find(". ") == 1 ? 1 : 0); }

class EachLanguage : public ::testing::TestWithParam<Language> {};

INSTANTIATE_TEST_SUITE_P(Catalogue, EachLanguage, ::testing::ValuesIn(Languages().begin(), Languages().end()),
                         [](const auto& language) { return std::string(language.param.Name); });

TEST_P(EachLanguage, HasAccessKeysThatDoNotClashAndEveryTextThatIsAskedFor) {
  for (const auto number : Explored(GetParam())) {
    EXPECT_TRUE(number == 0 || GetParam().Find(number) != "") << number;
  }
}

TEST_P(EachLanguage, AgreesWithTheEnglishTexts) {
  const auto& english = LanguageOf("en");
  EXPECT_EQ(GetParam().Texts.size(), english.Texts.size());
  for (const auto okOrCancel : std::initializer_list<std::int16_t>{101, 119})
    EXPECT_EQ(AccessKey(GetParam().Find(okOrCancel)), 0U);
  for (const auto& [number, text] : english.Texts) {
    const auto other = GetParam().Find(number);
    ASSERT_NE(other, "") << number << " is missing: " << text;
    EXPECT_EQ(Markers(other), Markers(text)) << number;
    EXPECT_EQ(AccessKey(other) != 0, AccessKey(text) != 0) << number << ' ' << other;
    EXPECT_EQ(RowCharacter(other), RowCharacter(text)) << number;
    EXPECT_EQ(other.ends_with(' '), text.ends_with(' ')) << number << " stands before something";
  }
}

TEST(EnglishTexts, AreAllInUse) {
  // Told after wrong entries, typed corrections and Cancel, which the tests of the dialogs make.
  const Numbers toldByMessages = {237,   1082,  1084,  1151,  1376,  1377,  1455,  1456,  1457,  1458, 1459, 1604,
                                  1605,  1606,  1607,  1608,  1609,  1610,  1611,  1783,  1784,  1785, 1860, 10698,
                                  10708, 10709, 10710, 10711, 10716, 10724, 10725, 10728, 10730, 10744};
  const auto asked = Explored(LanguageOf("en"));
  for (const auto& [number, text] : LanguageOf("en").Texts) {
    EXPECT_NE(asked.contains(number), toldByMessages.contains(number)) << number << ' ' << text;
  }
}

}  // namespace
}  // namespace orlin::testing
