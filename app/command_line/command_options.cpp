#include "app/command_line/command_options.h"

#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "app/command_line/language.h"
#include "app/usage/suggestion.h"

namespace orlin {
namespace {

// The groups of options, as --help tells them.
constexpr const char* kOperator = "Operator";
constexpr const char* kRights = "Rights";
constexpr const char* kOutput = "Output";
constexpr const char* kSurroundings = "Surroundings";

/// An option that sets a text or the path of a file.
template <class To>
void AddOption(CLI::App& command, const char* group, const char* name, const char* type, std::optional<To>& to,
               const std::string& description) {
  const auto set = [&to](const std::string& text) { to = text; };
  command.add_option_function<std::string>(name, set, description)->type_name(type)->group(group);
}

void AddPlatform(CLI::App& command, StandardPlatformOptions& options) {
  const auto add = [&](const char* name, const char* type, auto& to, const std::string& description) {
    AddOption(command, kSurroundings, name, type, to, description);
  };
  const auto languages = "The language of the texts: " + Enumerated(KnownLanguages(), "or");
  add("--language", "LANG", options.Language, languages);
  add("--catalogue", "FILE", options.CatalogueFile, "Texts that replace those of the language");
  add("--settings", "FILE", options.SettingsFile, "The settings store, as a registry export");
  add("--data-list", "FILE", options.DataListFile, "Where the databases are");
  add("--drives", "DIR", options.DrivesFolder, "Where drive letters point to");
  add("--now", "MOMENT", options.Now, "The clock stands still at \"YYYY-MM-DD HH:MM:SS\"");
  add("--fault-file", "FILE", options.FaultFile, "Where faults are appended");
}

void AddCall(CLI::App& command, std::string& className, std::vector<std::string>& arguments, ValueForm& form,
             std::vector<std::string>& levels) {
  command.add_option("CLASS", className, "A public class; orlin-host list names them")->type_name("");
  command.add_option("NAME=VALUE", arguments, "Arguments of the call; what is not named is empty, or 0")->type_name("");
  command.add_flag_callback(
      "--stored", [&form] { form = ValueForm::Stored; }, "Values are as a host stores them");
  command.add_option("--level", levels, "A record of SecurityLevels; repeatable, in this order")
      ->type_name("NAME=VIEW,EDIT")
      ->allow_extra_args(false)
      ->group(kRights);
}

void AddJson(CLI::App& command, bool& json, const std::string& each) {
  command.add_flag("--json", json, "One JSON object on a line for each " + each)->group(kOutput);
}

}  // namespace

void AddList(CLI::App& command, ListOptions& options) {
  AddOption(command, "Positionals", "CLASS", "", options.Class, "This class alone, with all about its parameters");
  AddJson(command, options.Json, "class");
  command.footer(
      "Examples:\n"
      "  orlin-host list\n"
      "  orlin-host list clsPanelGMT\n"
      "  orlin-host list --json | jq -r .class");
}

void AddDescribe(CLI::App& command, DescribeOptions& options) {
  AddCall(command, options.Class, options.Arguments, options.Form, options.Levels);
  AddOption(command, "Options", "--account", "FILE", options.Account,
            "Every parameter of this account in place of one class");
  AddJson(command, options.Json, "parameter");
  AddPlatform(command, options.Platform);
  command.footer(
      "Opens and changes nothing. The status is 3 where a value cannot be shown.\n\n"
      "Examples:\n"
      "  orlin-host describe clsZoneFunctionsWillow ZoneNum=5 'ZoneCode=\"4000\"'\n"
      "  orlin-host describe clsTime_FirePanels Index=754 --language de\n"
      "  orlin-host describe --account examples/account.json");
}

void AddEdit(CLI::App& command, EditOptions& options) {
  AddCall(command, options.Class, options.Arguments, options.Form, options.Levels);
  command.get_option("CLASS")->required();
  AddOption(command, kOperator, "--script", "FILE", options.Script,
            "The operator is this script; - for standard input");
  command
      .add_option_function<std::string>(
          "--host",
          [&options](const std::string& kind) { options.Host = kind == "qt" ? HostKind::Windows : HostKind::Script; },
          "Who shows the dialog: script where there is one, else qt")
      ->type_name("HOST")
      ->check(CLI::IsMember({"script", "qt"}))
      ->group(kOperator);
  command.add_flag("--strict", options.Strict, "A refused action ends the run with status 4")->group(kOperator);
  command
      .add_flag("--exit-status", options.ExitStatus,
                "The status tells the outcome: 0 OK, 1 Cancel or close, 3 a failure")
      ->group(kOutput);
  AddPlatform(command, options.Platform);
  command.footer(
      "Examples:\n"
      "  orlin-host edit clsZoneFunctionsWillow ZoneNum=5 'ZoneCode=\"4000\"'\n"
      "  orlin-host edit clsPanelGMT iHrs=5 iMins=30 --script operator.txt\n"
      "  echo dump | orlin-host edit clsTime_FirePanels Index=754 --script -\n"
      "The manual page orlin-host(1) tells the forms of a VALUE and the actions of a script.");
}

void AddAccount(CLI::App& command, AccountOptions& options) {
  constexpr const char* pictures = "Pictures";
  command.add_option("FILE", options.File, "The account, as JSON")->required()->type_name("");
  AddOption(command, pictures, "--render", "DIR", options.PictureFolder,
            "Saves a picture of every editor there, with no window");
  command.add_option("--font-scale", options.FontScale, "How large the texts of the pictures are, 0.5 to 4; 1")
      ->type_name("N")
      ->check(CLI::Range(0.5, 4.0))
      ->group(pictures);
  command.add_flag("--dark", options.Dark, "Pictures of a dark desktop")->group(pictures);
  AddPlatform(command, options.Platform);
  command.footer(
      "Examples:\n"
      "  orlin-host account account.json\n"
      "  orlin-host account account.json --render pictures --font-scale 1.5");
}

void AddEncrypt(CLI::App& command) {
  // Such a word may be the password: it is refused later, without being repeated.
  command.allow_extras();
  command.footer(
      "The password is one line of standard input; a terminal does not show it.\n\n"
      "Example:\n"
      "  orlin-host encrypt < password.txt");
}

}  // namespace orlin
