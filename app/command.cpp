#include "app/command.h"

#include <algorithm>
#include <exception>
#include <string>

#include "OrlinCustomDialogs/public_classes.h"

#include "app/command_line.h"
#include "app/edit.h"

namespace orlin {
namespace {

void List(std::ostream& out) {
  for (const auto& publicClass : PublicClasses()) {
    out << publicClass.Name();
    for (const auto& parameter : publicClass.Parameters()) {
      out << ' ' << parameter.Name;
      if (parameter.Kind != ParameterKind::Any) out << ':' << KindName(parameter.Kind);
      if (parameter.Changes) out << '*';
      if (parameter.Optional) out << '?';
    }
    out << '\n';
  }
  out << "# NAME:TYPE is of that type alone; * comes back changed; ? may be left out\n";
}

struct Runner {
  std::istream& In;
  std::ostream& Out;
  const WindowOpener& Windows;

  int operator()(const ListCommand&) const {
    List(Out);
    return status::Done;
  }
  int operator()(const HelpGiven&) const { return status::Done; }
  int operator()(const EditOptions& options) const { return Edit(options, In, Out, Windows); }
  int operator()(const AccountOptions& options) const { return ShowAccount(options, Windows); }
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
    const int result = std::visit(Runner{in, out, windows}, ReadCommandLine(count, words, out));
    if (out.flush()) return result;
    return Complain(err, "the output cannot be written");
  } catch (const std::exception& error) {
    out.flush();
    return Complain(err, error.what());
  }
}

}  // namespace orlin
