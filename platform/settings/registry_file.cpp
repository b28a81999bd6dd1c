#include "settings/registry_file.h"

#include <algorithm>
#include <cstddef>

#include "files/text_file.h"

namespace orlin {
namespace {

using Setting = SettingsStore::Setting;
using Type = SettingsStore::Type;

constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

class Parser {
 public:
  explicit Parser(const std::filesystem::path& path) : file_(path) {}

  RegistryKeys Parse() {
    RegistryKeys keys;
    RegistryValues* key = nullptr;
    while (NextLine()) {
      if (AtEnd() || (key == nullptr && Take(kHeader))) {
        ExpectEnd();
        continue;
      }
      if (Take("[")) {
        key = &keys[KeyPath()];
      } else if (key == nullptr) {
        file_.Fail("a [key] has to stand before the first value");
      } else {
        const auto name = ValueName();
        (*key)[name] = ReadValue();
      }
      ExpectEnd();
    }
    return keys;
  }

 private:
  bool NextLine() {
    if (!file_.Next()) return false;
    rest_ = file_.Line();
    SkipBlanks();
    return true;
  }

  void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size())); }

  /// Whether nothing is left of the line but a comment.
  bool AtEnd() const { return rest_.empty() || rest_.front() == ';'; }

  void ExpectEnd() const {
    if (!AtEnd()) file_.Fail("nothing but a comment may follow here");
  }

  /// Takes a word, and blanks behind it, if it stands next.
  bool Take(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    SkipBlanks();
    return true;
  }

  std::string KeyPath() {
    const auto end = rest_.find(']');
    if (end == std::string_view::npos) file_.Fail("the ] of the key is missing");
    auto path = FoldCase(rest_.substr(0, end));
    if (!path.starts_with("hkey_")) file_.Fail("a key has to begin with HKEY_LOCAL_MACHINE or another HKEY_ name");
    rest_.remove_prefix(end);
    Take("]");
    return path;
  }

  std::string ValueName() {
    std::string name;
    if (rest_.starts_with('"')) {
      name = FoldCase(QuotedText());
    } else if (!Take("@")) {
      file_.Fail("a [key] or \"name\"=value has to stand here");
    }
    if (!Take("=")) file_.Fail("the = behind the name is missing");
    return name;
  }

  Setting ReadValue() {
    if (rest_.starts_with('"')) return {Type::String, QuotedText()};
    if (Take("dword:")) {
      SkipHexDigits(1, 8);
    } else if (Take("hex")) {
      SkipBytes();
    } else {
      file_.Fail("a \"text\", dword: or hex: has to stand behind the =");
    }
    SkipBlanks();
    return {Type::Other, {}};
  }

  std::string QuotedText() {
    std::string text;
    for (std::size_t at = 1; at < rest_.size(); ++at) {
      if (rest_[at] == '"') {
        rest_.remove_prefix(at + 1);
        SkipBlanks();
        return text;
      }
      text.push_back(rest_[at] == '\\' ? Unescaped(rest_.substr(++at, 1)) : rest_[at]);
    }
    file_.Fail("the closing \" is missing");
  }

  char Unescaped(std::string_view escape) const {
    if (escape == "\\" || escape == "\"") return escape.front();
    if (escape == "0") return '\0';
    file_.Fail("an unknown escape; a backslash stands before another backslash, \" or 0");
  }

  void SkipBytes() {
    if (Take("(")) {
      SkipHexDigits(1, 8);
      if (!Take(")")) file_.Fail("the ) behind hex( is missing");
    }
    if (!Take(":")) file_.Fail("the : behind hex is missing");
    if (AtEnd()) return;
    do {
      while (Take("\\")) {
        ExpectEnd();
        if (!NextLine()) file_.Fail("the line that the \\ announces is missing");
      }
      SkipHexDigits(2, 2);
      SkipBlanks();
    } while (Take(","));
  }

  void SkipHexDigits(std::size_t least, std::size_t most) {
    const auto count = std::min(rest_.find_first_not_of(kHexDigits), rest_.size());
    if (count < least || count > most) file_.Fail("this is no hexadecimal number of the right length");
    rest_.remove_prefix(count);
  }

  TextFile file_;
  std::string_view rest_;  // of the current line
};

}  // namespace

std::string FoldCase(std::string_view name) {
  std::string folded(name);
  std::ranges::transform(folded, folded.begin(), LowerCase);
  return folded;
}

RegistryKeys ReadRegistryFile(const std::filesystem::path& path) { return Parser(path).Parse(); }

}  // namespace orlin
