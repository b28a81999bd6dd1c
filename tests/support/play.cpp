#include <algorithm>
#include <sstream>
#include <utility>

#include "OrlinCustomDialogs/hosts/script/script.h"
#include "OrlinCustomDialogs/public_classes.h"

#include "app/calls/arguments.h"
#include "app/calls/edit.h"
#include "app/calls/value_text.h"
#include "app/command_line/command.h"
#include "app/usage/usage_error.h"
#include "catalogue/text_catalogue.h"
#include "support/dialog_test.h"
#include "support/temporary_folder.h"
#include "support/windows_of_tests.h"

namespace orlin {

void PrintTo(const Value& value, std::ostream* out) {
  try {
    const auto* array = value.Get<Array>();
    *out << FormatValue(array != nullptr ? Array(array->Elements()) : value);
  } catch (const UsageError& error) {
    *out << KindName(value.kind()) << ": " << error.what();
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

/// Makes the call in windows, on copies: what it stores there is not there for the next one.
std::string TraceIn(WindowSystem& windows, EditorCall call, PlayOptions options) {
  call.Windows = &windows;
  const TemporaryFolder drives;
  if (options.Drives && std::filesystem::exists(*options.Drives)) {
    std::filesystem::copy(*options.Drives, drives.Path(), std::filesystem::copy_options::recursive);
  }
  if (options.Drives) options.Drives = drives.Path();
  return RunIn(std::move(call), options).Trace;
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

std::vector<std::string> SplitAtBlanks(const std::string& line) {
  std::vector<std::string> words;
  std::istringstream stream(line);
  for (std::string word; std::getline(stream, word, ' ');) words.push_back(word);
  return words;
}

Ended RunHost(const std::string& line, const std::string& input) {
  const auto words = SplitAtBlanks("orlin-host " + line);
  std::vector<const char*> pointers;
  for (const auto& word : words) pointers.push_back(word.c_str());
  std::istringstream in(input);
  std::ostringstream out, err;
  const auto windows = [](Screen) -> WindowSystem& { throw UsageError("windows are wanted"); };
  const int status = RunCommand(static_cast<int>(words.size()), pointers.data(), in, out, err, windows);
  return {status, out.str(), err.str()};
}

DialogRun Play(std::string_view publicClass, const std::vector<std::string>& arguments, std::string_view script,
               const PlayOptions& options) {
  const auto* called = FindPublicClass(publicClass);
  if (called == nullptr) throw std::invalid_argument("no public class " + std::string(publicClass));
  const auto& parameters = called->Parameters();
  EditorCall call{*called, BindArguments(*called, arguments, options.Levels), ParseScript(script), false, {}};
  for (const auto& [name, object] : options.Objects) call.Arguments[PlaceOf(*called, name)] = object;
  const auto answers = std::count_if(call.Script->begin(), call.Script->end(), [](const Action& action) {
    return std::holds_alternative<actions::Answer>(action.Do);
  });

  std::optional<std::string> inWindows;
  if (auto* windows = WindowsOfTests()) inWindows = TraceIn(*windows, call, options);
  auto [came, trace] = RunIn(std::move(call), options);
  EXPECT_EQ(inWindows.value_or(trace), trace) << "in windows, and without";
  DialogRun run{ReadLines(trace), came.Result, came.Raised, {}};
  for (std::size_t i = 0; i < parameters.size(); ++i) run.Arguments[parameters[i].Name] = std::move(came.Arguments[i]);
  Check(run, answers, options.MayRefuse);
  return run;
}

}  // namespace orlin::testing
