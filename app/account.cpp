#include "app/account.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

#include "app/arguments.h"
#include "app/usage_error.h"
#include "app/value_format.h"

namespace orlin {
namespace {

using Json = nlohmann::ordered_json;

[[noreturn]] void FailWithError(const std::filesystem::path& file, const char* what) {
  throw UsageError("cannot " + std::string(what) + ' ' + file.string() + ": " + std::strerror(errno));
}

/// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  [[nodiscard]] int Number() const noexcept { return number_; }

 private:
  int number_;
};

bool WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const auto written = write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// Puts a text in place of a file: what a reader, or a crash, finds is the old or the new one, whole.
void Replace(const std::filesystem::path& named, std::string_view text) {
  // A link stays one; the file that it leads to is replaced.
  std::error_code ignored;
  auto file = std::filesystem::canonical(named, ignored);
  if (ignored) file = named;
  auto temporary = file.string() + ".XXXXXX";
  const Descriptor written(mkstemp(temporary.data()));
  if (written.Number() < 0) FailWithError(file, "write beside");
  struct stat old {};
  const bool kept = stat(file.c_str(), &old) != 0 || fchmod(written.Number(), old.st_mode & 07777) == 0;
  if (!kept || !WriteAll(written.Number(), text) || fsync(written.Number()) != 0 ||
      rename(temporary.c_str(), file.c_str()) != 0) {
    const int error = errno;
    unlink(temporary.c_str());
    errno = error;
    FailWithError(file, "write");
  }
  const auto folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
  const Descriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY));
  if (directory.Number() >= 0) fsync(directory.Number());
}

std::vector<std::string> Texts(const Json& object, const char* name) {
  return object.contains(name) ? object.at(name).get<std::vector<std::string>>() : std::vector<std::string>();
}

}  // namespace

Account::Account(std::filesystem::path file) : file_(std::move(file)) {
  std::ifstream stream(file_, std::ios::binary);
  if (!stream) FailWithError(file_, "read");
  try {
    Read({std::istreambuf_iterator<char>(stream), {}});
    for (std::size_t i = 0; i < parameters_.size(); ++i) static_cast<void>(ValuesOf(i));
  } catch (const UsageError& error) {
    throw UsageError(file_.string() + ": " + error.what());
  }
}

void Account::Read(const std::string& text) try {
  const auto document = Json::parse(text);
  const auto common = Texts(document, "levels");
  std::vector<Parameter> parameters;
  for (const auto& entry : document.at("parameters")) {
    Parameter parameter;
    parameter.Name = entry.at("name").get<std::string>();
    const auto className = entry.at("class").get<std::string>();
    try {
      parameter.Class = &ClassNamed(className);
    } catch (const UsageError& error) {
      throw UsageError(parameter.Name + ": " + error.what());
    }
    for (const auto& [name, value] : entry.at("arguments").items()) {
      parameter.Arguments.push_back(name + '=' + value.get<std::string>());
    }
    parameter.Levels = common;
    for (auto& level : Texts(entry, "levels")) parameter.Levels.push_back(std::move(level));
    parameters.push_back(std::move(parameter));
  }
  panel_ = document.at("panel").get<std::string>();
  parameters_ = std::move(parameters);
  text_ = text;
} catch (const nlohmann::json::exception& error) {
  // Without the mark of the library in front of it.
  const std::string what = error.what();
  throw UsageError(what.substr(std::min(what.find("] ") + 2, what.size())));
}

std::vector<Value> Account::ValuesOf(std::size_t parameter) const {
  const auto& edited = parameters_.at(parameter);
  try {
    return BindArguments(*edited.Class, edited.Arguments, edited.Levels);
  } catch (const UsageError& error) {
    throw UsageError(edited.Name + ": " + error.what());
  }
}

bool Account::Store(std::size_t parameter, const std::vector<Value>& values) {
  const auto before = ValuesOf(parameter);
  const auto& known = parameters_.at(parameter).Class->Parameters();
  auto document = Json::parse(text_);
  auto& stored = document.at("parameters").at(parameter).at("arguments");
  bool different = false;
  for (std::size_t i = 0; i < known.size(); ++i) {
    if (known[i].Name == kSecurityLevels || values.at(i) == before.at(i)) continue;
    stored[known[i].Name] = FormatValue(values[i]);
    different = true;
  }
  if (!different) return false;
  std::string text;
  try {
    text = document.dump(2) + '\n';
  } catch (const nlohmann::json::exception& error) {
    throw UsageError(error.what());
  }
  Replace(file_, text);
  Read(text);
  return true;
}

}  // namespace orlin
