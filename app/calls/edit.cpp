#include "app/calls/edit.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>
#include <utility>

#include "OrlinCustomDialogs/hosts/script/script_host.h"
#include "OrlinCustomDialogs/hosts/script/trace.h"

#include "app/calls/arguments.h"
#include "app/calls/installed_platform.h"
#include "app/usage/status.h"
#include "app/usage/usage_error.h"

namespace orlin {
namespace {

std::string ReadAll(std::istream& stream) {
  std::string text;
  std::array<char, 4096> part{};
  while (stream.read(part.data(), part.size()) || stream.gcount() > 0) {
    text.append(part.data(), static_cast<std::size_t>(stream.gcount()));
  }
  return text;
}

std::vector<Action> ReadScript(const std::string& file, std::istream& in) {
  const bool standardInput = file == "-";
  const std::string name = standardInput ? "standard input" : file;
  std::ifstream opened;
  errno = 0;
  if (!standardInput) opened.open(file, std::ios::binary);
  auto& stream = standardInput ? in : opened;
  const auto text = ReadAll(stream);
  if (stream.bad() || !(standardInput || opened.is_open())) {
    throw UsageError(name + " cannot be read: " + std::generic_category().message(errno));
  }
  try {
    return ParseScript(text);
  } catch (const ScriptError& error) {
    throw UsageError(name + ": " + error.what());
  }
}

void Tell(Trace& trace, const PublicClass& publicClass, const Outcome& outcome) {
  std::vector<Trace::Argument> arguments;
  for (std::size_t i = 0; i < outcome.Arguments.size(); ++i) {
    const auto& name = publicClass.Parameters()[i].Name;
    if (name != kSecurityLevels) arguments.push_back({name, outcome.Arguments[i]});
  }
  if (outcome.Result) {
    trace.Returned(*outcome.Result, arguments);
  } else {
    trace.Raised(outcome.Raised, arguments);
  }
}

ScriptedHost HostFor(EditorCall& call, Trace& trace) {
  if (!call.Script) return {call.Windows->Windows(), [] {}};
  if (call.Windows != nullptr) return call.Windows->ScriptedWindows(*std::move(call.Script), trace, call.Strict);
  auto host = std::make_shared<ScriptHost>(*std::move(call.Script), trace, call.Strict);
  return {host, [host] { host->Finish(); }};
}

int StatusOf(const Outcome& outcome) {
  if (outcome.Failure()) return status::Failed;
  return outcome.Confirmed ? status::Done : status::NotConfirmed;
}

}  // namespace

Outcome Run(EditorCall call, std::ostream& out) {
  Trace trace(out);
  if (call.Script) {
    call.Platform.OnFaultLogged = [&trace](const LoggedFault& fault) {
      trace.FaultLogged(fault.Number, fault.Module, fault.Procedure, fault.AdditionalText, fault.Shown);
    };
  }
  const auto host = HostFor(call, trace);
  call.Platform.Host = host.Host;
  const InstalledPlatform installed(StandardPlatform(call.Platform));
  auto outcome = Call(call.Class, std::move(call.Arguments), call.Form);
  host.Finish();
  Tell(trace, call.Class, outcome);
  return outcome;
}

int Edit(const EditOptions& options, std::istream& in, std::ostream& out, const WindowOpener& windows) {
  const auto& publicClass = ClassNamed(options.Class);
  EditorCall call{publicClass,      BindArguments(publicClass, options.Arguments, options.Levels),
                  std::nullopt,     options.Strict,
                  options.Platform, nullptr,
                  options.Form};
  const auto host = options.Host.value_or(options.Script ? HostKind::Script : HostKind::Windows);
  if (host == HostKind::Script && !options.Script) throw UsageError("--host script wants --script FILE");
  // Before the script is read: the program with windows reads it anew.
  if (host == HostKind::Windows) call.Windows = &windows(Screen::Visible);
  if (options.Script) call.Script = ReadScript(*options.Script, in);
  try {
    const auto outcome = Run(std::move(call), out);
    return options.ExitStatus ? StatusOf(outcome) : status::Done;
  } catch (const StrictRefusal&) {
    return status::Refused;
  }
}

}  // namespace orlin
