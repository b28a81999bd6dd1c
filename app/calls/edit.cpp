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
#include "app/command_line/status.h"
#include "app/command_line/usage_error.h"

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

ScriptedHost HostFor(ScriptedCall& call, Trace& trace) {
  if (call.Windows != nullptr) return call.Windows->ScriptedWindows(std::move(call.Script), trace, call.Strict);
  auto host = std::make_shared<ScriptHost>(std::move(call.Script), trace, call.Strict);
  return {host, [host] { host->Finish(); }};
}

/// The operator sits in front of the screen; what comes back is told at the end.
Outcome RunInWindows(const PublicClass& publicClass, std::vector<Value> values, ValueForm form,
                     StandardPlatformOptions platform, WindowSystem& windows, std::ostream& out) {
  platform.Host = windows.Windows();
  const InstalledPlatform installed(StandardPlatform(platform));
  auto outcome = Call(publicClass, std::move(values), form);
  Trace trace(out);
  Tell(trace, publicClass, outcome);
  return outcome;
}

int StatusOf(const Outcome& outcome) {
  if (outcome.Failure()) return status::Failed;
  return outcome.Confirmed ? status::Done : status::NotConfirmed;
}

}  // namespace

Outcome Run(ScriptedCall call, std::ostream& out) {
  Trace trace(out);
  const auto host = HostFor(call, trace);
  call.Platform.Host = host.Host;
  call.Platform.OnFaultLogged = [&trace](const LoggedFault& fault) {
    trace.FaultLogged(fault.Number, fault.Module, fault.Procedure, fault.AdditionalText, fault.Shown);
  };
  const InstalledPlatform installed(StandardPlatform(call.Platform));
  auto outcome = Call(call.Class, std::move(call.Arguments), call.Form);
  host.Finish();
  Tell(trace, call.Class, outcome);
  return outcome;
}

int Edit(const EditOptions& options, std::istream& in, std::ostream& out, const WindowOpener& windows) {
  const auto& publicClass = ClassNamed(options.Class);
  auto values = BindArguments(publicClass, options.Arguments, options.Levels);
  const bool inWindows =
      options.Host.value_or(options.Script ? HostKind::Script : HostKind::Windows) == HostKind::Windows;
  if (!inWindows && !options.Script) throw UsageError("--host script wants --script FILE");
  WindowSystem* const system = inWindows ? &windows(Screen::Visible) : nullptr;
  const auto statusOf = [&](const Outcome& outcome) { return options.ExitStatus ? StatusOf(outcome) : status::Done; };
  if (!options.Script) {
    return statusOf(RunInWindows(publicClass, std::move(values), options.Form, options.Platform, *system, out));
  }
  ScriptedCall call{publicClass, std::move(values), ReadScript(*options.Script, in), options.Strict, options.Platform,
                    system,      options.Form};
  try {
    return statusOf(Run(std::move(call), out));
  } catch (const StrictRefusal&) {
    return status::Refused;
  }
}

}  // namespace orlin
