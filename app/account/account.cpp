#include "app/account/account.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <utility>

#include <fcntl.h>
#include <nlohmann/json.hpp>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "app/calls/arguments.h"
#include "app/calls/value_text.h"

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

/// A file that no other writer changes as long as this lives. Locked is the file itself, so that nothing has to stand
/// beside it. Every writer puts another file in its place: the lock counts where the name still leads to this one.
class LockedFile {
 public:
  explicit LockedFile(const std::filesystem::path& file) {
    do {
      Open(file);
      while (flock(opened_->Number(), LOCK_EX) != 0) {
        if (errno != EINTR) FailWithError(file, "lock");
      }
    } while (!IsNamed(file));
    std::array<char, 65536> part{};
    for (;;) {
      const auto length = read(opened_->Number(), part.data(), part.size());
      if (length < 0 && errno == EINTR) continue;
      if (length < 0) FailWithError(file, "read");
      if (length == 0) break;
      text_.append(part.data(), static_cast<std::size_t>(length));
    }
  }

  [[nodiscard]] const std::string& Text() const noexcept { return text_; }

 private:
  /// For writing where it may be: over a network only such a file can be locked.
  void Open(const std::filesystem::path& file) {
    opened_.emplace(open(file.c_str(), O_RDWR | O_CLOEXEC));
    if (opened_->Number() < 0 && (errno == EACCES || errno == EROFS)) {
      opened_.emplace(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    }
    if (opened_->Number() < 0) FailWithError(file, "read");
  }

  [[nodiscard]] bool IsNamed(const std::filesystem::path& file) const {
    struct stat locked {};
    struct stat named {};
    return fstat(opened_->Number(), &locked) == 0 && stat(file.c_str(), &named) == 0 && locked.st_dev == named.st_dev &&
           locked.st_ino == named.st_ino;
  }

  std::optional<Descriptor> opened_;
  std::string text_;
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
  const Descriptor written(mkostemp(temporary.data(), O_CLOEXEC));
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
  const Descriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.Number() >= 0) fsync(directory.Number());
}

std::string TextOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) FailWithError(file, "read");
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> Texts(const Json& object, const char* name) {
  return object.contains(name) ? object.at(name).get<std::vector<std::string>>() : std::vector<std::string>();
}

/// The text of an account with new values of one of its parameters.
std::string WithValues(const std::string& text, std::size_t parameter, const PublicClass& editor,
                       const std::vector<Value>& values, const std::vector<std::size_t>& different) {
  auto document = Json::parse(text);
  auto& stored = document.at("parameters").at(parameter).at("arguments");
  for (const auto i : different) stored[editor.Parameters()[i].Name] = FormatValue(values[i]);
  try {
    return document.dump(2) + '\n';
  } catch (const nlohmann::json::exception& error) {
    throw UsageError(error.what());
  }
}

}  // namespace

Account::Account(std::filesystem::path file) : Account(file, TextOf(file)) {}

Account::Account(std::filesystem::path file, std::string text) : file_(std::move(file)), text_(std::move(text)) {
  try {
    Read();
    for (std::size_t i = 0; i < parameters_.size(); ++i) static_cast<void>(ValuesOf(i));
  } catch (const UsageError& error) {
    throw UsageError(file_.string() + ": " + error.what());
  }
}

void Account::Read() try {
  const auto document = Json::parse(text_);
  const auto common = Texts(document, "levels");
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
    parameters_.push_back(std::move(parameter));
  }
  panel_ = document.at("panel").get<std::string>();
} catch (const nlohmann::json::exception& error) {
  // Without the mark of the library in front of it.
  const std::string what = error.what();
  throw UsageError(what.substr(std::min(what.find("] ") + 2, what.size())));
}

bool Account::ReadAgain() {
  auto text = TextOf(file_);
  if (text == text_) return false;
  *this = Account(file_, std::move(text));
  return true;
}

std::vector<Value> Account::ValuesOf(std::size_t parameter) const {
  const auto& stored = parameters_.at(parameter);
  try {
    return BindArguments(*stored.Class, stored.Arguments, stored.Levels);
  } catch (const UsageError& error) {
    throw UsageError(stored.Name + ": " + error.what());
  }
}

/// Which parameter here is one of another reading of the account. Its place may be another; names may be there twice.
std::optional<std::size_t> Account::SameAs(const Account& other, std::size_t parameter) const {
  const auto& wanted = other.parameters_.at(parameter);
  const auto isAlike = [&wanted](const Parameter& one) { return one.Name == wanted.Name && one.Class == wanted.Class; };
  const auto end = other.parameters_.begin() + static_cast<std::ptrdiff_t>(parameter);
  auto before = std::count_if(other.parameters_.begin(), end, isAlike);
  for (std::size_t i = 0; i < parameters_.size(); ++i) {
    if (isAlike(parameters_[i]) && before-- == 0) return i;
  }
  return std::nullopt;
}

bool Account::Store(std::size_t parameter, const std::vector<Value>& values) {
  const auto& editor = *parameters_.at(parameter).Class;
  const auto before = ValuesOf(parameter);
  if (DifferentPlaces(editor, before, values).empty()) return false;

  const LockedFile locked(file_);
  Account now(file_, locked.Text());
  const auto place = now.SameAs(*this, parameter);
  if (!place) throw UsageError(file_.string() + " no longer has this parameter");
  const auto found = now.ValuesOf(*place);
  const auto different = DifferentPlaces(editor, found, values);
  if (different.empty()) {
    *this = std::move(now);
    return false;
  }
  if (!DifferentPlaces(editor, found, before).empty()) {
    *this = std::move(now);
    throw ChangedMeanwhile("it was changed by somebody else meanwhile", found);
  }
  Account after(file_, WithValues(now.text_, *place, editor, values, different));
  Replace(file_, after.text_);
  *this = std::move(after);
  return true;
}

}  // namespace orlin
