#include "app/command_line/list.h"

#include <algorithm>
#include <functional>
#include <iomanip>
#include <string_view>

#include <nlohmann/json.hpp>

#include "OrlinCustomDialogs/public_classes.h"

#include "app/calls/arguments.h"
#include "app/usage/status.h"

namespace orlin {
namespace {

using nlohmann::ordered_json;

void PrintJson(const PublicClass& publicClass, std::ostream& out) {
  ordered_json listed;
  listed["class"] = publicClass.Name();
  auto& parameters = listed["parameters"] = ordered_json::array();
  for (const auto& parameter : publicClass.Parameters()) {
    ordered_json one;
    one["name"] = parameter.Name;
    one["kind"] = KindName(parameter.Kind);
    one["required"] = !parameter.Optional;
    one["changes"] = parameter.Changes;
    parameters.push_back(std::move(one));
  }
  out << listed.dump() << '\n';
}

/// All on a line: one among many.
void PrintLine(const PublicClass& publicClass, int width, std::ostream& out) {
  out << std::left << std::setw(width) << publicClass.Name();
  for (const auto& parameter : publicClass.Parameters()) {
    out << ' ' << parameter.Name;
    if (parameter.Kind != ParameterKind::Any) out << ':' << KindName(parameter.Kind);
    if (parameter.Changes) out << '*';
    if (parameter.Optional) out << '?';
  }
  out << '\n';
}

template <class Of, class Name>
int LongestName(const std::vector<Of>& all, Name Of::*name) {
  std::size_t longest = 0;
  for (const auto& one : all) longest = std::max(longest, std::invoke(name, one).size());
  return static_cast<int>(longest);
}

void PrintWhole(const PublicClass& publicClass, std::ostream& out) {
  out << publicClass.Name() << '\n';
  const auto& parameters = publicClass.Parameters();
  const int width = LongestName(parameters, &Parameter::Name);
  for (const auto& parameter : parameters) {
    const bool rights = parameter.Name == kSecurityLevels;
    out << "  " << std::left << std::setw(width) << parameter.Name << "  " << std::setw(7)
        << (rights ? "rights" : KindName(parameter.Kind)) << "  " << (parameter.Optional ? "optional" : "required")
        << (rights ? ", the records of --level" : "") << (parameter.Changes ? ", comes back changed" : "") << '\n';
  }
}

}  // namespace

int List(const ListOptions& options, std::ostream& out) {
  if (options.Class) {
    const auto& publicClass = ClassNamed(*options.Class);
    options.Json ? PrintJson(publicClass, out) : PrintWhole(publicClass, out);
    return status::Done;
  }
  const int width = LongestName(PublicClasses(), &PublicClass::Name);
  for (const auto& publicClass : PublicClasses()) {
    options.Json ? PrintJson(publicClass, out) : PrintLine(publicClass, width, out);
  }
  if (!options.Json) {
    out << "# NAME:KIND takes that kind alone; * comes back changed; ? may be left out. orlin-host list CLASS tells "
           "more\n";
  }
  return status::Done;
}

}  // namespace orlin
