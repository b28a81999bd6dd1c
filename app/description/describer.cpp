#include "app/description/describer.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/host/dialog_host.h"

#include "app/calls/installed_platform.h"

namespace orlin {

/// Shows dialogs to nobody: keeps what they tell as they come up, and closes them.
class Describer::Host final : public DialogHost {
 public:
  explicit Host(Wording wording) : wording_(wording) {}

  [[nodiscard]] SizeInTwips Screen() const override { return {}; }  // places are not told

  void ShowModal(shown::Dialog& dialog) override {
    dialog.Activate();
    if (!IsDescribed()) {
      description_.Dialog = dialog.Name();
      description_.Title = wording_ == Wording::Translated ? dialog.TranslatedCaption() : dialog.Caption();
      description_.Controls = Tell(dialog, wording_);
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

  Wording wording_;
  Description description_;
};

Platform Describer::PlatformFor(const std::shared_ptr<Host>& host, StandardPlatformOptions options) {
  options.Host = host;
  options.OnFaultLogged = [&host = *host](const LoggedFault& fault) { host.FaultLogged(fault); };
  if (!options.FaultFile) options.FaultFile = "/dev/null";
  return StandardPlatform(options);
}

Describer::Describer(StandardPlatformOptions platform, Wording wording)
    : host_(std::make_shared<Host>(wording)), platform_(PlatformFor(host_, std::move(platform))) {}

Description Describer::Describe(const PublicClass& publicClass, std::vector<Value> values, ValueForm form) {
  const InstalledPlatform installed(platform_);
  const auto failure = Call(publicClass, std::move(values), form).Failure();
  auto description = host_->Take(failure);
  description.Class = publicClass.Name();
  description.Failed = failure.has_value();
  return description;
}

}  // namespace orlin
