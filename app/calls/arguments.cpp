#include "app/calls/arguments.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "OrlinCustomDialogs/failure.h"
#include "OrlinCustomDialogs/security_levels.h"

#include "app/calls/value_text.h"
#include "app/usage/suggestion.h"
#include "app/usage/usage_error.h"

namespace orlin {
namespace {

std::shared_ptr<SecurityLevels> ReadLevels(const std::vector<std::string>& records) {
  auto levels = std::make_shared<SecurityLevels>();
  for (const std::string_view record : records) {
    const auto equals = record.rfind('=');
    const auto comma = equals == std::string_view::npos ? equals : record.find(',', equals);
    if (comma == std::string_view::npos) {
      throw UsageError("--level wants NAME=VIEW,EDIT, not " + std::string(record));
    }
    const std::string name(record.substr(0, equals));
    try {
      levels->Add(name, ParseInteger(record.substr(equals + 1, comma - equals - 1)),
                  ParseInteger(record.substr(comma + 1)));
    } catch (const UsageError& error) {
      throw UsageError("--level " + name + ": " + error.what());
    } catch (const Failure&) {
      throw UsageError("--level " + name + " is there twice");
    }
  }
  return levels;
}

std::string_view Described(ParameterKind kind) {
  switch (kind) {
    case ParameterKind::Integer:
      return "a 16-bit integer";
    case ParameterKind::Long:
      return "a 32-bit integer";
    case ParameterKind::Boolean:
      return "a boolean";
    case ParameterKind::String:
      return "a text";
    case ParameterKind::Any:
      break;
  }
  return "a value";
}

Value ReadFor(const Parameter& parameter, std::string_view text) {
  try {
    return Converted(ParseValue(text), parameter.Kind);
  } catch (const UsageError& error) {
    throw UsageError(parameter.Name + ": " + error.what());
  } catch (const Failure&) {
    throw UsageError(parameter.Name + ": " + std::string(text) + " is not " + std::string(Described(parameter.Kind)));
  }
}

Value NotNamed(const Parameter& parameter, const std::shared_ptr<SecurityLevels>& levels) {
  if (parameter.Name == kSecurityLevels) return levels;
  return parameter.Optional ? Value() : Converted(Value(), parameter.Kind);
}

}  // namespace

const PublicClass& ClassNamed(const std::string& name) {
  if (const auto* found = FindPublicClass(name)) return *found;
  std::vector<std::string> known;
  for (const auto& publicClass : PublicClasses()) known.push_back(publicClass.Name());
  throw UsageError("there is no public class " + name + DidYouMean(name, known) + ": orlin-host list names them all");
}

std::size_t PlaceOf(const PublicClass& publicClass, std::string_view parameter) {
  std::vector<std::string> known;
  for (const auto& one : publicClass.Parameters()) {
    if (one.Name == parameter) return known.size();
    known.push_back(one.Name);
  }
  throw UsageError(publicClass.Name() + " has no parameter \"" + std::string(parameter) + '"' +
                   DidYouMean(parameter, known) + ": it takes " + Enumerated(known, "and"));
}

std::vector<Value> BindArguments(const PublicClass& publicClass, const std::vector<std::string>& named,
                                 const std::vector<std::string>& levels) {
  const auto& parameters = publicClass.Parameters();
  std::vector<std::optional<Value>> given(parameters.size());
  for (const std::string_view argument : named) {
    const auto equals = argument.find('=');
    if (equals == std::string_view::npos) {
      throw UsageError("an argument is NAME=VALUE, not " + std::string(argument));
    }
    const auto place = PlaceOf(publicClass, argument.substr(0, equals));
    if (given[place]) throw UsageError(parameters[place].Name + " is named twice");
    given[place] = ReadFor(parameters[place], argument.substr(equals + 1));
  }

  const auto collection = ReadLevels(levels);
  std::vector<Value> arguments;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    arguments.push_back(given[i] ? *std::move(given[i]) : NotNamed(parameters[i], collection));
  }
  return arguments;
}

std::vector<std::size_t> DifferentPlaces(const PublicClass& publicClass, const std::vector<Value>& a,
                                         const std::vector<Value>& b) {
  std::vector<std::size_t> different;
  for (std::size_t i = 0; i < publicClass.Parameters().size(); ++i) {
    if (publicClass.Parameters()[i].Name != kSecurityLevels && a.at(i) != b.at(i)) different.push_back(i);
  }
  return different;
}

}  // namespace orlin
