#include <algorithm>
#include <sstream>
#include <utility>

#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/public_classes.h"

#include "app/calls/arguments.h"
#include "app/calls/edit.h"
#include "catalogue/text_catalogue.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"
#include "support/windows_of_tests.h"

namespace orlin {

void PrintTo(const Value& value, std::ostream* out) {
  switch (value.kind()) {
    case Value::Kind::Empty:
      *out << "empty";
      break;
    case Value::Kind::Integer:
      *out << *value.Get<std::int16_t>();
      break;
    case Value::Kind::Long:
      *out << *value.Get<std::int32_t>() << 'L';
      break;
    case Value::Kind::Double:
      *out << *value.Get<double>() << 'D';
      break;
    case Value::Kind::Boolean:
      *out << (*value.Get<bool>() ? "true" : "false");
      break;
    case Value::Kind::String:
      *out << ::testing::PrintToString(*value.Get<std::string>());
      break;
    case Value::Kind::Array:
      *out << '[';
      for (const auto& element : value.Get<Array>()->Elements()) {
        PrintTo(element, out);
        *out << ',';
      }
      *out << ']';
      break;
    case Value::Kind::Object:
      *out << "object";
      break;
  }
}

}  // namespace orlin

namespace orlin::testing {
namespace {

StandardPlatformOptions PlatformFor(const PlayOptions& options, const TemporaryFolder& folder) {
  StandardPlatformOptions platform;
  if (options.Catalogue) platform.CatalogueFile = folder.Write("catalogue.tsv", *options.Catalogue);
  if (options.Settings) platform.SettingsFile = folder.Write("settings.reg", *options.Settings);
  if (options.DataList) platform.DataListFile = folder.Write("data.list", *options.DataList);
  platform.DrivesFolder = options.Drives.value_or(folder.Path() / "drives");
  platform.FaultFile = folder.Path() / "Tolmar.err";
  platform.Now = options.Now;
  return platform;
}

std::vector<Json> ReadLines(const std::string& trace) {
  std::vector<Json> lines;
  std::istringstream stream(trace);
  for (std::string line; std::getline(stream, line);) lines.push_back(Json::parse(line));
  return lines;
}

void Check(const DialogRun& run, std::ptrdiff_t answers, bool mayRefuse) {
  const auto messages = run.Fields("message", "text");
  EXPECT_LE(messages.size(), answers) << "nobody expected all of these messages: " << Json(messages);
  for (const auto& line : run.Events("message")) {
    EXPECT_FALSE(line.at("text") == "" || line.at("title") == "") << "a text is missing: " << line;
  }
  if (mayRefuse) return;
  for (const auto& refused : run.Events("refused")) ADD_FAILURE() << refused;
}

struct Played {
  Outcome Came;
  std::string Trace;
};

/// Makes the call with the files of the options in a folder of its own, whose name does not show in the trace.
Played RunIn(EditorCall call, const PlayOptions& options) {
  const TemporaryFolder folder;
  call.Platform = PlatformFor(options, folder);
  std::ostringstream trace;
  Played played{Run(std::move(call), trace), trace.str()};
  const auto path = folder.Path().string();
  for (auto at = played.Trace.find(path); at != std::string::npos; at = played.Trace.find(path, at)) {
    played.Trace.replace(at, path.size(), "FOLDER");
  }
  return played;
}

DialogRun Told(Played played, const std::vector<Parameter>& parameters, std::ptrdiff_t answers,
               const PlayOptions& options) {
  DialogRun run{ReadLines(played.Trace), played.Came.Result, played.Came.Raised, {}};
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    run.Arguments[parameters[i].Name] = std::move(played.Came.Arguments[i]);
  }
  Check(run, answers, options.MayRefuse);
  return run;
}

const Json& Nth(const std::vector<Json>& lines, std::optional<std::size_t> number) {
  return number ? lines.at(*number) : lines.at(lines.size() - 1);
}

}  // namespace

std::string Text(int number, const std::string& variable, const std::string& value) {
  auto text = TextCatalogue().GetLocalTextBASE(static_cast<std::int16_t>(number));
  EXPECT_NE(text, "") << number;
  if (variable.empty()) return text;
  const auto marker = "%" + variable + "%";
  const auto at = text.find(marker);
  EXPECT_NE(at, std::string::npos) << text << " has no " << marker;
  return at == std::string::npos ? text : text.replace(at, marker.size(), value);
}

std::vector<Json> DialogRun::Events(std::string_view kind) const {
  std::vector<Json> events;
  std::copy_if(Lines.begin(), Lines.end(), std::back_inserter(events),
               [&](const Json& line) { return line.at("event") == kind; });
  return events;
}

std::vector<Json> DialogRun::Fields(std::string_view kind, const std::string& field) const {
  std::vector<Json> fields;
  for (const auto& line : Events(kind)) fields.push_back(line.at(field));
  return fields;
}

Json DialogRun::Control(const std::string& name, std::optional<std::size_t> dump) const {
  return Nth(Events("state"), dump).at("controls").at(name);
}

Json DialogRun::Focus(std::optional<std::size_t> dump) const { return Nth(Events("state"), dump).at("focus"); }

DialogRun Play(std::string_view publicClass, const std::vector<std::string>& arguments, std::string_view script,
               const PlayOptions& options) {
  const auto* called = FindPublicClass(publicClass);
  if (called == nullptr) throw std::invalid_argument("no public class " + std::string(publicClass));
  const auto& parameters = called->Parameters();
  EditorCall call{*called, BindArguments(*called, arguments, options.Levels), ParseScript(script), false, {}};
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const auto object = options.Objects.find(parameters[i].Name);
    if (object != options.Objects.end()) call.Arguments[i] = object->second;
  }
  const auto answers = std::count_if(call.Script->begin(), call.Script->end(), [](const Action& action) {
    return std::holds_alternative<actions::Answer>(action.Do);
  });

  if (auto* windows = WindowsOfTests()) {
    auto inWindows = call;
    inWindows.Windows = windows;
    // What the call stores is not there for the second one.
    const TemporaryFolder drives;
    auto copied = options;
    if (options.Drives && std::filesystem::exists(*options.Drives)) {
      std::filesystem::copy(*options.Drives, drives.Path(), std::filesystem::copy_options::recursive);
    }
    if (options.Drives) copied.Drives = drives.Path();
    const auto seen = RunIn(std::move(inWindows), copied);
    auto played = RunIn(std::move(call), options);
    EXPECT_EQ(seen.Trace, played.Trace) << "in windows, and without";
    return Told(std::move(played), parameters, answers, options);
  }
  return Told(RunIn(std::move(call), options), parameters, answers, options);
}

}  // namespace orlin::testing
