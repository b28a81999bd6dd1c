#include "app/account/account_command.h"

#include <string>
#include <utility>

#include "app/account/account.h"
#include "app/account/account_table.h"
#include "app/calls/installed_platform.h"
#include "app/usage/status.h"

namespace orlin {
namespace {

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
