#include "app/command_line.h"

#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include "app/usage_error.h"

namespace orlin {
namespace {

/// An option that sets a text or the path of a file.
template <class To>
void AddOption(CLI::App& command, const char* name, const char* type, std::optional<To>& to, const char* description) {
  const auto set = [&to](const std::string& text) { to = text; };
  command.add_option_function<std::string>(name, set, description)->type_name(type);
}

void AddPlatform(CLI::App& command, StandardPlatformOptions& options) {
  AddOption(command, "--catalogue", "FILE", options.CatalogueFile, "Texts that replace the built-in English ones");
  AddOption(command, "--settings", "FILE", options.SettingsFile, "The settings store, as a registry export");
  AddOption(command, "--data-list", "FILE", options.DataListFile, "Where the databases are");
  AddOption(command, "--drives", "DIR", options.DrivesFolder, "Where drive letters point to");
  AddOption(command, "--now", "\"YYYY-MM-DD HH:MM:SS\"", options.Now, "The clock stands still there");
  AddOption(command, "--fault-file", "FILE", options.FaultFile, "Where faults are appended; Tolmar.err");
}

void AddEdit(CLI::App& command, EditOptions& options) {
  command.add_option("CLASS", options.Class, "A public class; orlin-host list names them")->required()->type_name("");
  command.add_option("NAME=VALUE", options.Arguments, "Arguments of the call; what is not named is empty, or 0")
      ->type_name("");
  command.add_option("--level", options.Levels, "A record of SecurityLevels, in this order")
      ->type_name("NAME=VIEW,EDIT")
      ->allow_extra_args(false);
  AddOption(command, "--script", "FILE", options.Script, "The operator is this script; - for standard input");
  command
      .add_option_function<std::string>(
          "--host",
          [&options](const std::string& kind) { options.Host = kind == "qt" ? HostKind::Windows : HostKind::Script; },
          "Who shows the dialog: script where there is one, else qt")
      ->type_name("HOST")
      ->check(CLI::IsMember({"script", "qt"}));
  AddPlatform(command, options.Platform);
  command.add_flag("--exit-status", options.ExitStatus,
                   "The status tells the outcome: 0 OK, 1 Cancel or close, 3 a failure");
  command.add_flag("--strict", options.Strict, "A refused action ends the run with status 4");
}

void AddAccount(CLI::App& command, AccountOptions& options) {
  command.add_option("FILE", options.File, "The account, as JSON")->required()->type_name("");
  AddOption(command, "--render", "DIR", options.PictureFolder, "Saves a picture of every editor there, with no window");
  command.add_option("--font-scale", options.FontScale, "How large the texts of the pictures are; 1")
      ->type_name("N")
      ->check(CLI::Range(0.5, 4.0));
  command.add_flag("--dark", options.Dark, "Pictures of a dark desktop");
  AddPlatform(command, options.Platform);
}

}  // namespace

Command ReadCommandLine(int count, const char* const* words, std::ostream& out) {
  EditOptions options;
  AccountOptions accountOptions;
  CLI::App app("Opens the editors of OrlinCustomDialogs as their host application does.", "orlin-host");
  app.require_subcommand(1);
  const auto* list = app.add_subcommand("list", "Every public class with its parameters");
  AddEdit(*app.add_subcommand("edit", "Opens a public class with raw values and prints what comes back"), options);
  auto& account = *app.add_subcommand("account", "The parameters of an account, each opened in its editor");
  AddAccount(account, accountOptions);
  try {
    app.parse(count, words);
  } catch (const CLI::Success& question) {
    app.exit(question, out, out);
    return HelpGiven();
  } catch (const CLI::ParseError& error) {
    throw UsageError(std::string(error.what()) + " (orlin-host --help)");
  }
  if (list->parsed()) return ListCommand();
  if (account.parsed()) return accountOptions;
  return options;
}

}  // namespace orlin
