#include "app/command_line/command.h"

#include <algorithm>
#include <exception>
#include <string>
#include <utility>

#include "app/command_line/command_line.h"
#include "app/command_line/language.h"
#include "app/usage/status.h"

namespace orlin {
namespace {

/// Texts for people are in their language; what programs read is the same everywhere.
StandardPlatformOptions ForPeople(StandardPlatformOptions platform) {
  if (!platform.Language) platform.Language = LanguageOfEnvironment();
  return platform;
}

struct Runner {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Err;
  const WindowOpener& Windows;

  int operator()(const ListOptions& options) const { return List(options, Out); }
  int operator()(DescribeOptions options) const {
    if (!options.Json) options.Platform = ForPeople(std::move(options.Platform));
    return Describe(std::move(options), Out);
  }
  int operator()(EditOptions options) const {
    if (!options.Script) options.Platform = ForPeople(std::move(options.Platform));
    return Edit(options, In, Out, Windows);
  }
  int operator()(AccountOptions options) const {
    options.Platform = ForPeople(std::move(options.Platform));
    return ShowAccount(std::move(options), Windows);
  }
  int operator()(const EncryptCommand&) const { return Encrypt(In, Out, Err); }
  int operator()(const HelpGiven&) const { return status::Done; }
};

/// What people read is one line, whatever the words were that it repeats.
int Complain(std::ostream& err, std::string what) {
  std::replace_if(
      what.begin(), what.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
  err << "orlin-host: " << what << '\n';
  return status::NoSense;
}

}  // namespace

int RunCommand(int count, const char* const* words, std::istream& in, std::ostream& out, std::ostream& err,
               const WindowOpener& windows) {
  try {
    const int result = std::visit(Runner{in, out, err, windows}, ReadCommandLine(count, words, out));
    if (out.flush()) return result;
    return Complain(err, "the output cannot be written");
  } catch (const std::exception& error) {
    out.flush();
    return Complain(err, error.what());
  }
}

}  // namespace orlin
