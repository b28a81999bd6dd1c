#include "OrlinCustomDialogs/hosts/script/script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <utility>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/written_text.h"

#include "script/text_literal.h"

namespace orlin {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// A row or column that does not exist is a matter between the operator and the control.
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

struct Word {
  std::string Text;
  bool Quoted = false;
};

struct Line {
  std::vector<Word> Words;
  std::string_view Source;
};

std::string_view WithoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Splits a line at blanks, up to its comment.
Line SplitLine(std::string_view text) {
  Line line;
  auto rest = text;
  while (true) {
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    if (rest.empty() || rest.front() == '#') break;
    if (rest.front() == '"') {
      line.Words.push_back({ReadQuoted(rest), true});
      if (!rest.empty() && std::string_view(" \t#").find(rest.front()) == std::string_view::npos) {
        throw BadText("a blank has to follow the closing quote of a text");
      }
    } else {
      const auto length = std::min(rest.find_first_of(" \t#\""), rest.size());
      line.Words.push_back({std::string(rest.substr(0, length))});
      rest.remove_prefix(length);
      if (!rest.empty() && rest.front() == '"') throw BadText("a blank has to stand before a text");
    }
  }
  line.Source = WithoutBlanks(text.substr(0, text.size() - rest.size()));
  return line;
}

/// The words behind the name of an action are not those that it wants.
struct Unwanted {};

/// Takes the words behind the name of an action, one by one.
class WordReader {
 public:
  explicit WordReader(const std::vector<Word>& words) : next_(words.begin() + 1), end_(words.end()) {}

  [[nodiscard]] bool AtEnd() const { return next_ == end_; }
  void End() const {
    if (!AtEnd()) throw Unwanted();
  }

  std::string Name() { return Take(false); }

  int Number(int min, int max) {
    const auto word = Take(false);
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    if (!whole || number < min || number > max) throw Unwanted();
    return number;
  }

  std::u32string Text() {
    const auto text = Take(true);
    if (!IsUtf8(text)) throw BadText("the text is not UTF-8");
    return FromUtf8(text);
  }

  /// Whether the word is the first of the two.
  bool OneOf(std::string_view yes, std::string_view no) {
    const auto word = Take(false);
    if (word != yes && word != no) throw Unwanted();
    return word == yes;
  }

 private:
  std::string Take(bool quoted) {
    if (AtEnd() || next_->Quoted != quoted) throw Unwanted();
    return (next_++)->Text;
  }

  std::vector<Word>::const_iterator next_;
  std::vector<Word>::const_iterator end_;
};

Key KeyNamed(std::string_view name) {
  static constexpr std::array<std::pair<std::string_view, int>, 14> kKeys = {{{"Up", keys::Up},
                                                                              {"Down", keys::Down},
                                                                              {"Left", keys::Left},
                                                                              {"Right", keys::Right},
                                                                              {"PageUp", keys::PageUp},
                                                                              {"PageDown", keys::PageDown},
                                                                              {"Home", keys::Home},
                                                                              {"End", keys::End},
                                                                              {"Backspace", keys::Backspace},
                                                                              {"Delete", keys::Delete},
                                                                              {"Enter", keys::Enter},
                                                                              {"Escape", keys::Escape},
                                                                              {"Tab", keys::Tab},
                                                                              {"F2", keys::F2}}};
  const auto known = std::find_if(kKeys.begin(), kKeys.end(), [&](const auto& key) { return key.first == name; });
  if (known != kKeys.end()) return Key::Named(known->second);
  constexpr std::string_view alt = "Alt+";
  if (name.starts_with(alt)) {
    const auto letter = FromUtf8(name.substr(alt.size()));
    if (letter.size() == 1 && !IsStrayByte(letter.front())) return Key::Access(letter.front());
  }
  throw Unwanted();
}

std::optional<std::string> NameOrWherever(std::string name) {
  if (name == "-") return std::nullopt;
  return name;
}

actions::MakeCell ReadCell(WordReader& words) {
  auto grid = words.Name();
  const int row = words.Number(kLowest, kHighest);
  return {std::move(grid), row, words.Number(kLowest, kHighest)};
}

struct Syntax {
  std::string_view Name;
  std::string_view Wants;
  Operation (*Read)(WordReader& words);
};

constexpr std::array<Syntax, 14> kActions = {{
    {"select", "a control and a row, counted from 0: select C ROW [on|off]",
     [](WordReader& words) -> Operation {
       actions::Select select{words.Name(), words.Number(kLowest, kHighest), std::nullopt};
       if (!words.AtEnd()) select.On = words.OneOf("on", "off");
       return select;
     }},
    {"click", "a control: click C", [](WordReader& words) -> Operation { return actions::Click{words.Name()}; }},
    {"type", "a control and a text: type C \"text\"",
     [](WordReader& words) -> Operation {
       auto control = words.Name();
       return actions::Type{std::move(control), words.Text()};
     }},
    {"key",
     "a control, or -, and a key: key C Up|Down|Left|Right|PageUp|PageDown|Home|End|Backspace|Delete|Enter|"
     "Escape|Tab|F2|Alt+letter",
     [](WordReader& words) -> Operation {
       auto control = NameOrWherever(words.Name());
       return actions::KeyStroke{std::move(control), KeyNamed(words.Name())};
     }},
    {"caret", "a control, a start and a length: caret C START LENGTH",
     [](WordReader& words) -> Operation {
       auto control = words.Name();
       const int start = words.Number(0, kHighest);
       return actions::Caret{std::move(control), start, words.Number(0, kHighest)};
     }},
    {"focus", "a control: focus C", [](WordReader& words) -> Operation { return actions::FocusOn{words.Name()}; }},
    {"step", "a control, a direction and how often: step C up|down [N]",
     [](WordReader& words) -> Operation {
       auto control = words.Name();
       const auto direction = words.OneOf("up", "down") ? shown::Direction::Up : shown::Direction::Down;
       return actions::Step{std::move(control), direction, words.AtEnd() ? 1 : words.Number(1, 65535)};
     }},
    {"cell", "a grid, a row and a column: cell G ROW COL",
     [](WordReader& words) -> Operation { return ReadCell(words); }},
    {"doubleclick", "a grid: doubleclick G",
     [](WordReader& words) -> Operation { return actions::DoubleClick{words.Name()}; }},
    {"edit", "a grid, a row, a column and a text: edit G ROW COL \"text\"",
     [](WordReader& words) -> Operation {
       auto cell = ReadCell(words);
       return actions::EditCell{std::move(cell), words.Text()};
     }},
    {"tick", "a timer: tick T", [](WordReader& words) -> Operation { return actions::Tick{words.Name()}; }},
    {"answer", "1 for OK, 2 for Cancel, 6 for Yes or 7 for No: answer N",
     [](WordReader& words) -> Operation {
       const int button = words.Number(answers::Ok, answers::No);
       if (button > answers::Cancel && button < answers::Yes) throw Unwanted();
       return actions::Answer{button};
     }},
    {"dump", "nothing behind it: dump", [](WordReader&) -> Operation { return actions::Dump{}; }},
    {"close", "nothing behind it: close", [](WordReader&) -> Operation { return actions::Close{}; }},
}};

Operation ReadOperation(const std::vector<Word>& words, int line) {
  const auto& name = words.front();
  const auto syntax = std::find_if(kActions.begin(), kActions.end(),
                                   [&](const auto& known) { return !name.Quoted && known.Name == name.Text; });
  if (syntax == kActions.end()) {
    std::string known;
    for (const auto& action : kActions) known.append(known.empty() ? "" : ", ").append(action.Name);
    throw ScriptError(line, name.Text + " is no action; a line begins with one of " + known);
  }
  try {
    WordReader reader(words);
    auto operation = syntax->Read(reader);
    reader.End();
    return operation;
  } catch (const Unwanted&) {
    throw ScriptError(line, name.Text + " wants " + std::string(syntax->Wants));
  }
}

}  // namespace

std::vector<Action> ParseScript(std::string_view text) {
  std::vector<Action> script;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  for (int number = 1; !text.empty(); ++number) {
    auto source = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(source.size() + 1, text.size()));
    if (source.ends_with('\r')) source.remove_suffix(1);
    try {
      const auto line = SplitLine(source);
      if (line.Words.empty()) continue;
      script.push_back({number, std::string(line.Source), ReadOperation(line.Words, number)});
    } catch (const BadText& bad) {
      throw ScriptError(number, bad.what());
    }
  }
  return script;
}

}  // namespace orlin
