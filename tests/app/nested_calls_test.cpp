#include <sstream>

#include "OrlinCustomDialogs/hosts/script/script_host.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"

#include "app/account/account.h"
#include "app/calls/call.h"
#include "app/calls/installed_platform.h"
#include "support/frame_fixture.h"
#include "support/temporary_folder.h"
#include "support/windows_of_tests.h"

// A host calls a public class while another one shows its dialog: the outer call ends as if nothing had been.

namespace orlin::testing {
namespace {

using Calls = std::vector<std::size_t>;  // parameters of the account

/// Stands before another host, and makes calls where a dialog is about to be worked and before each message.
class NestingHost final : public OperatorHost {
 public:
  explicit NestingHost(std::shared_ptr<DialogHost> host) : host_(std::move(host)) {}

  void ShowModal(shown::Dialog& dialog) override {
    Nest(OnShow);
    host_->ShowModal(dialog);
  }
  int ShowMessage(const Message& message) override {
    Nest(OnMessage);
    return host_->ShowMessage(message);
  }
  void HandlerFailed(const shown::Dialog& dialog, std::string_view handler, const Failure& failure) override {
    host_->HandlerFailed(dialog, handler, failure);
  }

  std::function<void()> OnShow, OnMessage;

 private:
  void Nest(const std::function<void()>& calls) {
    if (std::exchange(nested_, true)) return;
    if (calls) calls();
    nested_ = false;
  }

  std::shared_ptr<DialogHost> host_;
  bool nested_ = false;
};

class NestedCalls : public ::testing::Test {
 protected:
  /// What a call tells, without what is told of the calls in it: `inner` while its dialog is shown, the first of these
  /// before each message. Each dialog takes a line of the script, as the operator has it before him.
  std::string Told(std::size_t outer, const Calls& inner, bool nests, const std::filesystem::path& drives) {
    std::string closes;
    for (std::size_t i = 0; i < 2 * inner.size(); ++i) closes += nests ? "close\n" : "#\n";
    const auto& name = Panel.Parameters()[outer].Class->Name();
    const std::string asks = name == "clspasscodeLen"        ? "cmdCancel"
                             : name == "clsErrorMessageNova" ? "btnCancel"
                                                             : "cmdOK";
    const auto script = ParseScript(closes + "click cmdDateTime\nclick cmdAddNote\ndump\nclick " + asks +
                                    (nests ? "\nclose" : "\n# no other call"));
    std::ostringstream out;
    Trace trace(out);
    auto* const windows = WindowsOfTests();
    const auto scripted = windows != nullptr ? windows->ScriptedWindows(script, trace, false).Host
                                             : std::make_shared<ScriptHost>(script, trace, false);
    const auto host = std::make_shared<NestingHost>(scripted);
    StandardPlatformOptions options;
    options.Host = host;
    options.DrivesFolder = drives;
    options.FaultFile = Folder.Path() / "Tolmar.err";
    options.Now = "2025-03-31 14:07:09";
    options.OnFaultLogged = [&trace](const LoggedFault& fault) {
      trace.FaultLogged(fault.Number, fault.Module, fault.Procedure, fault.AdditionalText, fault.Shown);
    };
    auto other = options;
    other.Language = "de";
    other.Now = "2026-01-01 00:00:00";
    const auto call = [&](std::size_t parameter) {
      const auto before = out.str();
      EXPECT_NE(Call(*Panel.Parameters()[parameter].Class, Panel.ValuesOf(parameter)).Result, std::nullopt);
      EXPECT_NE(out.str(), before) << "it showed nothing";
      out.str(before);
      out.seekp(0, std::ios::end);
    };
    if (nests) {
      host->OnShow = [&] {
        for (const auto parameter : inner) call(parameter);
        const InstalledPlatform elsewhere(StandardPlatform(other));
        for (const auto parameter : inner) call(parameter);
      };
      host->OnMessage = [&] {
        const InstalledPlatform elsewhere(StandardPlatform(other));
        call(inner.front());
      };
    }
    const InstalledPlatform installed(StandardPlatform(options));
    const auto outcome = Call(*Panel.Parameters()[outer].Class, Panel.ValuesOf(outer));
    std::vector<Trace::Argument> arguments;
    for (const auto& argument : outcome.Arguments) arguments.push_back({"", argument});
    trace.Returned(outcome.Result.value_or(-outcome.Raised), arguments);
    return out.str();
  }

  void ExpectUnharmed(std::size_t outer, const Calls& inner, const std::filesystem::path& drives) {
    EXPECT_EQ(Told(outer, inner, true, drives), Told(outer, inner, false, drives)) << Panel.Parameters()[outer].Name;
  }

  [[nodiscard]] std::size_t Of(std::string_view publicClass) const {
    std::size_t place = 0;
    while (Panel.Parameters().at(place).Class->Name() != publicClass) ++place;
    return place;
  }

  const TemporaryFolder Folder;
  const Account Panel{ORLIN_EXAMPLES "/account.json"};
};

TEST_F(NestedCalls, LeaveTheOuterOneAsItWas) {
  const Calls releasingAndNot{Of("clsZoneFunctionsWillow"), Of("clsTime_FirePanels")};
  const auto notes = Of("clsPanelNotes");
  Calls all;
  for (std::size_t outer = 0; outer < Panel.Parameters().size(); ++outer) {
    all.push_back(outer);
    ExpectUnharmed(outer, releasingAndNot, Folder.Path());
  }
  ExpectUnharmed(notes, all, Folder.Path());
  // A folder in the place of the database: the notes report what fails, in the middle of which is a message.
  std::filesystem::create_directories(Folder.Path() / "broken/c/accounts/notes.db");
  ExpectUnharmed(notes, releasingAndNot, Folder.Path() / "broken");
}

}  // namespace
}  // namespace orlin::testing
