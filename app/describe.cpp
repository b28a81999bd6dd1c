#include "app/describe.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/failure.h"

#include "app/account.h"
#include "app/account_rules.h"
#include "app/arguments.h"
#include "app/call.h"
#include "app/description.h"
#include "app/description_output.h"
#include "app/installed_platform.h"
#include "app/status.h"
#include "app/usage_error.h"

namespace orlin {
namespace {

/// Shows dialogs to nobody: keeps what they tell as they come up, and closes them.
class DescribingHost final : public DialogHost {
 public:
  [[nodiscard]] SizeInTwips Screen() const override { return {}; }  // places are not told

  void ShowModal(shown::Dialog& dialog) override {
    dialog.Activate();
    if (!IsDescribed()) {
      description_.Dialog = dialog.Name();
      description_.Title = dialog.Caption();
      description_.Controls = Tell(dialog);
    }
    dialog.Close();
  }

  /// Nobody confirms anything once the dialog is told.
  int ShowMessage(const Message& message) override {
    Add({std::nullopt, message.Text, message.Title.value_or("")});
    if ((message.Flags & Message::YesNo) != 0) return IsDescribed() ? answers::No : answers::Yes;
    return (message.Flags & Message::OkCancel) != 0 && IsDescribed() ? answers::Cancel : answers::Ok;
  }

  void Beep() override {}

  void HandlerFailed(const shown::Dialog&, std::string_view handler, const Failure& failure) override {
    Add({failure.Number(), failure.Description(), std::string(handler)});
  }

  /// The same failure is mostly logged again on its way out.
  void FaultLogged(const LoggedFault& fault) {
    if (HasNoted(fault.Number)) return;
    auto text = Failure(fault.Number).Description();
    if (!fault.AdditionalText.empty() && fault.AdditionalText != text) text.append(": ").append(fault.AdditionalText);
    Add({fault.Number, std::move(text), fault.Module + '.' + fault.Procedure});
  }

  /// The call has ended, perhaps with a failure. What it told; the next call begins anew.
  [[nodiscard]] Description Take(std::optional<std::int32_t> failure) {
    if (failure && !HasNoted(*failure)) description_.Notes.push_back({failure, Failure(*failure).Description(), {}});
    return std::exchange(description_, {});
  }

 private:
  [[nodiscard]] bool IsDescribed() const { return description_.Dialog.has_value(); }

  [[nodiscard]] bool HasNoted(std::int32_t failure) const {
    return std::any_of(description_.Notes.begin(), description_.Notes.end(),
                       [failure](const Note& note) { return note.Failure == failure; });
  }

  void Add(Note note) {
    if (!IsDescribed()) description_.Notes.push_back(std::move(note));
  }

  Description description_;
};

}  // namespace

int Describe(DescribeOptions options, std::ostream& out) {
  const auto host = std::make_shared<DescribingHost>();
  options.Platform.Host = host;
  options.Platform.OnFaultLogged = [&host = *host](const LoggedFault& fault) { host.FaultLogged(fault); };
  if (!options.Platform.FaultFile) options.Platform.FaultFile = "/dev/null";
  const InstalledPlatform installed(StandardPlatform(options.Platform));

  int result = status::Done;
  const auto describe = [&](const PublicClass& publicClass, std::vector<Value> arguments,
                            const std::optional<std::string>& name) {
    const auto failure = Call(publicClass, std::move(arguments)).Failure();
    auto description = host->Take(failure);
    description.Class = publicClass.Name();
    options.Json ? PrintJson(description, name, out) : PrintText(description, name, out);
    if (failure) result = status::Failed;
  };
  if (!options.Account) {
    const auto& publicClass = ClassNamed(options.Class);
    describe(publicClass, BindArguments(publicClass, options.Arguments, options.Levels), std::nullopt);
    return result;
  }
  const Account account(*options.Account);
  for (std::size_t i = 0; i < account.Parameters().size(); ++i) {
    if (i > 0 && !options.Json) out << '\n';
    const auto& parameter = account.Parameters()[i];
    describe(*parameter.Class, ArgumentsForCall(*parameter.Class, account.ArgumentsOf(i)), parameter.Name);
  }
  return result;
}

}  // namespace orlin
