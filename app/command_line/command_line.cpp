#include "app/command_line/command_line.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "OrlinCustomDialogs/version.h"

#include "app/command_line/command_options.h"
#include "app/command_line/language.h"
#include "app/usage/suggestion.h"
#include "app/usage/usage_error.h"

namespace orlin {
namespace {

/// The name of an option without its value: "--level" of "--level=A=1,2".
std::string NameOf(const std::string& word) { return word.substr(0, word.find('=')); }

std::vector<std::string> OptionsOf(const CLI::App& command) {
  std::vector<std::string> names;
  for (const auto* option : command.get_options()) {
    if (!option->get_positional()) names.push_back(option->get_name());
  }
  return names;
}

/// The help texts of the command.
class HelpFormatter final : public CLI::Formatter {
 public:
  HelpFormatter() { label("SUBCOMMAND", "COMMAND"); }

  std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override {
    auto help = CLI::Formatter::make_help(app, std::move(name), mode);
    // One empty line between two groups is enough.
    for (auto at = help.find("\n\n\n"); at != std::string::npos; at = help.find("\n\n\n")) help.erase(at, 1);
    return help;
  }
};

/// The whole of a command line.
class CommandLine {
 public:
  CommandLine() {
    app_.require_subcommand(0, 1);
    app_.set_version_flag("--version", "orlin-host " + std::string(LibraryVersion()), "Print the version and exit");
    const auto formatter = std::make_shared<HelpFormatter>();
    for (auto* command : app_.get_subcommands(nullptr)) command->group("Commands");
    for (auto* any : {&app_, &list_, &describe_, &edit_, &account_, &encrypt_}) {
      any->set_help_flag("-h,--help", "Print this help and exit");
      any->formatter(formatter);
    }
    AddList(list_, listOptions_);
    AddDescribe(describe_, describeOptions_);
    AddEdit(edit_, editOptions_);
    AddAccount(account_, accountOptions_);
    AddEncrypt(encrypt_);
    app_.footer(
        "Examples:\n"
        "  orlin-host list\n"
        "  orlin-host describe clsZoneFunctionsWillow ZoneNum=5 'ZoneCode=\"4000\"'\n"
        "  orlin-host edit clsZoneFunctionsWillow ZoneNum=5 'ZoneCode=\"4000\"'\n"
        "orlin-host COMMAND --help tells the options of a command, orlin-host(1) tells all.");
  }

  Command Read(int count, const char* const* words, std::ostream& out) {
    try {
      app_.parse(count, words);
    } catch (const CLI::Success& question) {
      app_.exit(question, out, out);
      return HelpGiven();
    } catch (const CLI::ExtrasError&) {
      Fail(Unexpected());
    } catch (const CLI::ArgumentMismatch& error) {
      Fail(Mismatched(error.what()));
    } catch (const CLI::RequiredError& error) {
      Fail(Named().get_name() + ": " + error.what());
    } catch (const CLI::ParseError& error) {
      Fail(error.what());
    }
    return Parsed();
  }

 private:
  Command Parsed() {
    if (list_.parsed()) return listOptions_;
    if (encrypt_.parsed()) {
      if (encrypt_.remaining_size() == 0) return EncryptCommand();
      throw UsageError(
          "encrypt takes no arguments: others could read a password there; it is read from standard input");
    }
    if (describe_.parsed()) {
      const bool withClass = !describeOptions_.Class.empty();
      const bool withRights = !describeOptions_.Levels.empty();
      if (describeOptions_.Account ? withClass || withRights : !withClass) {
        Fail("describe wants either CLASS or --account FILE");
      }
      Check(describeOptions_.Platform);
      return describeOptions_;
    }
    if (edit_.parsed()) {
      Check(editOptions_.Platform);
      return editOptions_;
    }
    if (account_.parsed()) {
      Check(accountOptions_.Platform);
      return accountOptions_;
    }
    Fail("a command is missing: " + Enumerated(Commands(), "or"));
  }

  [[noreturn]] void Fail(const std::string& what) const {
    const auto& command = Named();
    throw UsageError(what + " (orlin-host " + (&command == &app_ ? "" : command.get_name() + ' ') + "--help)");
  }

  static void Check(const StandardPlatformOptions& options) {
    if (options.Language) CheckLanguage(*options.Language);
  }

  [[nodiscard]] std::vector<std::string> Commands() const {
    std::vector<std::string> names;
    for (const auto* command : app_.get_subcommands(nullptr)) names.push_back(command->get_name());
    return names;
  }

  /// The command that was named, or the program.
  [[nodiscard]] const CLI::App& Named() const {
    const auto commands = app_.get_subcommands();
    return commands.empty() ? app_ : *commands.front();
  }

  /// What is wrong with the first word that nothing takes.
  [[nodiscard]] std::string Unexpected() const {
    const auto word = app_.remaining(true).front();
    const bool isOption = word.starts_with('-');
    const bool isCommand = &Named() == &app_ && !isOption;
    const auto known = isCommand ? Commands() : isOption ? OptionsOf(Named()) : std::vector<std::string>();
    const auto wrong = isOption ? NameOf(word) : word;
    const auto what = isCommand  ? "there is no command "
                      : isOption ? Named().get_name() + " has no option "
                                 : Named().get_name() + " takes no ";
    const auto others = isCommand ? ": the commands are " + Enumerated(known, "and") : std::string();
    return what + wrong + DidYouMean(wrong, known) + others;
  }

  /// An option without its value, or with two of them; `what` begins with its name.
  [[nodiscard]] std::string Mismatched(const std::string& what) const {
    const auto name = what.substr(0, what.find(':'));
    const auto* option = Named().get_option_no_throw(name);
    if (option == nullptr || option->count() > 1) return name + " may be given once";
    return name + " wants " + option->get_type_name();
  }

  CLI::App app_{"Opens the editors of OrlinCustomDialogs as their host application does.", "orlin-host"};
  CLI::App& list_ = *app_.add_subcommand("list", "Prints the public classes with their parameters");
  CLI::App& describe_ = *app_.add_subcommand("describe", "Prints what raw values mean, in words");
  CLI::App& edit_ = *app_.add_subcommand("edit", "Opens a public class with raw values and prints what comes back");
  CLI::App& account_ = *app_.add_subcommand("account", "Opens the parameters of an account, each in its editor");
  CLI::App& encrypt_ = *app_.add_subcommand("encrypt", "Prints the text that the settings keep for a password");
  ListOptions listOptions_;
  DescribeOptions describeOptions_;
  EditOptions editOptions_;
  AccountOptions accountOptions_;
};

}  // namespace

Command ReadCommandLine(int count, const char* const* words, std::ostream& out) {
  return CommandLine().Read(count, words, out);
}

}  // namespace orlin
