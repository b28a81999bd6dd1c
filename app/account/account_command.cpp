#include "app/account/account_command.h"

#include <exception>
#include <string>
#include <utility>

#include "OrlinCustomDialogs/failure.h"

#include "app/account/account.h"
#include "app/calls/arguments.h"
#include "app/calls/installed_platform.h"
#include "app/calls/value_text.h"
#include "app/description/describer.h"
#include "app/description/description_output.h"
#include "app/usage/status.h"

namespace orlin {
namespace {

/// The parameters of an account, each opened in its editor.
class AccountTable final : public ParameterTable {
 public:
  /// The platform has a host that shows windows. `PlatformError` where it makes no sense.
  AccountTable(Account& account, StandardPlatformOptions platform)
      : account_(account), options_(std::move(platform)), windows_(StandardPlatform(options_)) {}

  [[nodiscard]] std::string Title() const override { return "Account of panel " + account_.Panel(); }
  [[nodiscard]] std::vector<std::string> Columns() const override { return {"Parameter", "Editor", "Raw values"}; }
  [[nodiscard]] std::size_t Rows() const override { return account_.Parameters().size(); }

  [[nodiscard]] std::vector<std::string> Row(std::size_t row) const override {
    const auto& parameter = account_.Parameters().at(row);
    std::string values;
    for (const auto& argument : parameter.Arguments) values.append(values.empty() ? "" : "  ").append(argument);
    return {parameter.Name, parameter.Class->Name(), values};
  }

  std::string Open(std::size_t row) override {
    // Of its own: what is stored is a new list of parameters.
    const auto parameter = account_.Parameters().at(row);
    try {
      return parameter.Name + ": " + Edit(row, *parameter.Class);
    } catch (const Failure& failure) {
      return parameter.Name + ": failure " + std::to_string(failure.Number()) + ", " + failure.Description();
    } catch (const std::exception& error) {
      // Nothing is thrown through the window.
      return parameter.Name + ": not stored, " + error.what();
    }
  }

 private:
  std::string Edit(std::size_t row, const PublicClass& editor) {
    const auto stored = account_.ValuesOf(row);
    auto arguments = editor.ArgumentsFrom(stored);
    const auto result = Display(editor, arguments);
    const auto told = "result " + std::to_string(result);
    if (!editor.Confirmed(result, arguments)) return told + ", not changed";
    const auto values = editor.StoredFrom(stored, arguments);
    try {
      return told + (account_.Store(row, values) ? ", stored" : ", the same as before");
    } catch (const ChangedMeanwhile& error) {
      const auto [there, here] = Words(editor, error.Found, values);
      return std::string("not stored, ") + error.what() + ". Now in the file: " + there + ". Entered here: " + here +
             '.';
    }
  }

  std::int32_t Display(const PublicClass& editor, std::vector<Value>& arguments) const {
    const InstalledPlatform installed(windows_);
    return editor.Display(arguments);
  }

  /// What two sets of values mean, as far as it differs; the values themselves where it does not.
  [[nodiscard]] std::pair<std::string, std::string> Words(const PublicClass& editor, const std::vector<Value>& a,
                                                          const std::vector<Value>& b) const {
    Describer describer(options_);
    auto words = DifferentWords(describer.Describe(editor, a, ValueForm::Stored),
                                describer.Describe(editor, b, ValueForm::Stored));
    if (words.first != words.second) return words;
    words = {};
    for (const auto i : DifferentPlaces(editor, a, b)) {
      const auto name = (words.first.empty() ? "" : "; ") + editor.Parameters()[i].Name + '=';
      words.first.append(name).append(FormatValue(a[i]));
      words.second.append(name).append(FormatValue(b[i]));
    }
    return words;
  }

  Account& account_;
  StandardPlatformOptions options_;
  Platform windows_;
};

/// The file of a parameter's picture: "Zone 5, code" becomes "zone-5-code".
std::string FileNameOf(const std::string& parameter) {
  std::string name;
  for (const char c : parameter) {
    const bool keeps = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    const bool capital = c >= 'A' && c <= 'Z';
    if (keeps || capital) {
      name.push_back(static_cast<char>(capital ? c - 'A' + 'a' : c));
    } else if (!name.empty() && name.back() != '-') {
      name.push_back('-');
    }
  }
  while (name.ends_with('-')) name.pop_back();
  return name;
}

void SavePictures(const Account& account, AccountOptions& options, const WindowOpener& windows) {
  std::size_t row = 0;
  options.Platform.Host =
      windows(Screen::Unseen).Pictures({*options.PictureFolder, options.FontScale, options.Dark}, [&] {
        return FileNameOf(account.Parameters().at(row).Name);
      });
  const InstalledPlatform installed(StandardPlatform(options.Platform));
  for (; row < account.Parameters().size(); ++row) {
    const auto& editor = *account.Parameters()[row].Class;
    auto arguments = editor.ArgumentsFrom(account.ValuesOf(row));
    static_cast<void>(editor.Display(arguments));
  }
}

}  // namespace

int ShowAccount(AccountOptions options, const WindowOpener& windows) {
  Account account(options.File);
  if (options.PictureFolder) {
    SavePictures(account, options, windows);
    return status::Done;
  }
  auto& system = windows(Screen::Visible);
  options.Platform.Host = system.Windows();
  AccountTable table(account, std::move(options.Platform));
  system.ShowTable(table);
  return status::Done;
}

}  // namespace orlin
