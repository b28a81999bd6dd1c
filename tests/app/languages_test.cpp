#include <initializer_list>
#include <set>

#include "OrlinCustomDialogs/host/form.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "app/account/account.h"
#include "app/calls/arguments.h"
#include "app/calls/installed_platform.h"
#include "catalogue/text_catalogue.h"
#include "support/dialog_test.h"
#include "support/frame_fixture.h"
#include "support/temporary_folder.h"

// What each file of catalogue/ owes to the dialogs. The texts of a language are looked at in the dialogs themselves, in
// every state that an operator gets to by picking rows and options.

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

/// Goes through all rows and options of a dialog, then confirms; looks at each step for access keys that clash and for
/// variables that the dialog did not fill in.
class Explorer : public OperatorHost {
 public:
  explicit Explorer(std::string_view language) : language_(language) {
    AnswersAll = true;
    Operate = [this](shown::Dialog& dialog) {
      Look(dialog);
      for (auto* control : dialog.Controls()) {
        if (dialog.IsShown()) Explore(*control);
      }
      if (dialog.IsShown() && dialog.DefaultButton() != nullptr) static_cast<void>(dialog.DefaultButton()->Press());
      for (const auto& message : std::exchange(Messages, {})) ExpectFilled(message.Text);
    };
  }

 private:
  void Explore(shown::Control& control) {
    static_cast<void>(control.Focus());
    const bool isMark = control.Kind() == ControlKind::OptionButton || control.Kind() == ControlKind::CheckBox;
    if (isMark && !control.Press()) Look(control.Form());
    const auto* rows = control.AsRowList();
    for (int row = 0; rows != nullptr && row < rows->ListCount(); ++row) {
      if (!control.AsRowList()->PickRow(row)) Look(control.Form());
    }
  }

  void Look(const shown::Dialog& dialog) {
    ExpectTranslated(dialog.Caption(), dialog.TranslatedCaption());
    const auto form = FormOf(dialog);
    std::map<char32_t, const shown::Control*> owners;
    for (const auto* control : dialog.Controls()) {
      ExpectTranslated(control->Caption(), control->TranslatedCaption());
      ExpectFilled(form.HelpFor(*control));
      const auto* rows = control->AsRowList();
      for (int row = 0; rows != nullptr && row < rows->ListCount(); ++row) ExpectRead(*control, rows->List(row));
      const auto* table = control->AsTable();
      for (int cell = 0; table != nullptr && cell < table->Rows() * table->Cols(); ++cell) {
        ExpectRead(*control, table->CellAt(cell / table->Cols(), cell % table->Cols()).Text);
      }
      const auto key = AccessKey(control->TranslatedCaption());
      if (key == 0 || !LeadsSomewhere(*control)) continue;
      const auto [owner, isFirst] = owners.emplace(key, control);
      EXPECT_TRUE(isFirst) << language_ << ' ' << dialog.Name() << ": " << owner->second->Caption() << " | "
                           << control->Caption();
    }
  }

  void ExpectRead(const shown::Control& control, const std::string& text) const {
    ExpectTranslated(text, control.Translated(text));
  }
  /// What a dialog keeps in English reads the same there.
  void ExpectTranslated(const std::string& text, const std::string& read) const {
    ExpectFilled(read);
    EXPECT_TRUE(language_ != "en" || read == text) << read;
  }
  void ExpectFilled(const std::string& text) const { EXPECT_TRUE(Markers(text).empty()) << language_ << ' ' << text; }

  static bool LeadsSomewhere(const shown::Control& control) {
    if (!control.IsShown()) return false;
    if (control.Kind() != ControlKind::Label) return control.WithinReach();
    return control.Names() != nullptr && control.Names()->WithinReach();
  }

  std::string language_;
};

/// Calls for texts that the example account does not show.
const char* const kOtherCalls[] = {
    "clsZoneTypeBirch iZoneNum=130 iOrlinRF=0 iZoneType=0",
    "clsZoneTypeBirch iZoneNum=137 iOrlinRF=0 iZoneType=0",
    "clsZoneTypeBirch iZoneNum=130 iOrlinRF=1 iZoneType=0",
    "clsZoneTypeBirch iZoneNum=12 iOrlinRF=0 iZoneType=0",
    "clsPulseCount_Pine vInterval1=4 vInterval2=16 vPulseCount=16 vPulseCountTime=0",
    "clsOutputFunctions_Pine vCode=0 vPanelType=24",
    "clsOutputFunctions_Pine vCode=0 vPanelType=32",
    "clsOutputFunctions_Pine vCode=0 vPanelType=40",
    "clsOutputFunctions_Pine vCode=0 vPanelType=41",
    "clsPhoneOptions_Pine vTrouble=0 vOn=0 vOff=0 vPanelType=40",
    "clsAltCommConfiguration vMode=0 vAlarm=0 vOpenClose=0 vAll=0 iItemNo=132",
    "clsWirelessPointID iOption1=4 vType=\"1\"",
    "clsWirelessPointID iOption1=9 vType=\"1\"",
    "clsWirelessPointID vType=\"1\"",
    "clsWSNDeviceTypeInput vDeviceType=8 vMappedOutput=0 vOption=2 vfreeOutputs=[true*4]",
    "clsWSNDeviceTypeOutput vDeviceType=8 vMappedOutput=1 vOption=2 vFreeInputs=[true*32]"};
constexpr const char* kPasscodes =
    R"(clspasscodeLen vresult=["1234","1236",""*248] vpresent=["1234","1236",""*248] vPasscodeLength=4 iTotalNoOfUsers=9)";

/// Shows every dialog in a language; returns the numbers that were asked for.
Numbers Explored(const Language& language) {
  Numbers asked;
  const TemporaryFolder folder;
  StandardPlatformOptions options;
  options.Host = std::make_shared<Explorer>(language.Name);
  options.DrivesFolder = folder.Path();
  options.FaultFile = folder.Path() / "Tolmar.err";
  auto platform = StandardPlatform(options);
  // A catalogue that notes what it is asked for.
  struct Noting : TextCatalogue {
    Noting(const Language& texts, Numbers& numbers) : TextCatalogue(nullptr, texts), Asked(numbers) {}
    std::string GetLocalTextBASE(std::int16_t id) override {
      Asked.insert(id);
      return TextCatalogue::GetLocalTextBASE(id);
    }
    Numbers& Asked;
  };
  platform.Components["LocalText.clsLocalText"] = [&] { return std::make_shared<Noting>(language, asked); };
  const InstalledPlatform installed(std::move(platform));
  const Account account(ORLIN_EXAMPLES "/account.json");
  const auto show = [&](const PublicClass& shown, const std::vector<std::string>& words) {
    auto arguments = BindArguments(shown, words, account.Parameters().front().Levels);
    EXPECT_LE(shown.Display(arguments), 2) << shown.Name();
  };
  std::vector<std::string> calls(std::begin(kOtherCalls), std::end(kOtherCalls));
  for (const char* sia : {" bThroughSIA=0", " bThroughSIA=1"}) {
    for (const char* comm : {" bThroughComm=0", " bThroughComm=1"})
      calls.push_back(std::string(kPasscodes) + sia + comm);
  }
  for (const auto& parameter : account.Parameters()) show(*parameter.Class, parameter.Arguments);
  for (const auto& call : calls) {
    const auto words = SplitAtBlanks(call);
    show(ClassNamed(words.front()), {words.begin() + 1, words.end()});
  }
  return asked;
}

/// The character that a row of the Fir zones stands for.
std::string_view RowCharacter(std::string_view text) { return text.substr(0, text.find(". ") == 1 ? 1 : 0); }

TEST(Languages, HaveAccessKeysThatDoNotClashAndFilledTexts) {
  for (const auto& language : Languages()) static_cast<void>(Explored(language));
}

TEST(Languages, AgreeWithTheEnglishTexts) {
  const auto& english = LanguageOf("en");
  for (const auto& language : Languages()) {
    SCOPED_TRACE(language.Name);
    EXPECT_EQ(language.Texts.size(), english.Texts.size());
    EXPECT_EQ(AccessKey(language.Find(101)) + AccessKey(language.Find(119)), 0U) << "OK and Cancel have none";
    for (const auto& [number, text] : english.Texts) {
      const auto other = language.Find(number);
      ASSERT_NE(other, "") << number << " is missing: " << text;
      EXPECT_EQ(Markers(other), Markers(text)) << number;
      EXPECT_EQ(AccessKey(other) != 0, AccessKey(text) != 0) << number << ' ' << other;
      EXPECT_EQ(RowCharacter(other), RowCharacter(text)) << number;
      EXPECT_EQ(other.ends_with(' '), text.ends_with(' ')) << number << " stands before something";
    }
  }
}

TEST(EnglishTexts, AreThereWhereAskedForAndAllInUse) {
  // Told after wrong entries, typed corrections and Cancel, which the tests of the dialogs make.
  const Numbers toldByMessages = {237,   1082,  1084,  1151,  1376,  1377,  1455,  1456,  1457,  1458, 1459, 1604,
                                  1605,  1606,  1607,  1608,  1609,  1610,  1611,  1783,  1784,  1785, 1860, 10698,
                                  10708, 10709, 10710, 10711, 10716, 10724, 10725, 10728, 10730, 10744};
  const auto& english = LanguageOf("en");
  const auto asked = Explored(english);
  for (const auto number : asked) EXPECT_TRUE(number == 0 || english.Find(number) != "") << number;
  for (const auto& [number, text] : english.Texts) {
    const bool ofHosts = number >= 20020;  // windows and commands say them
    EXPECT_TRUE(ofHosts || asked.contains(number) != toldByMessages.contains(number)) << number << ' ' << text;
  }
}

}  // namespace
}  // namespace orlin::testing
