#include "OrlinCustomDialogs/hosts/script/script.h"

#include <functional>

#include "support/temporary_folder.h"

namespace orlin::testing {
namespace {

using namespace actions;

template <class Kind>
Kind Only(const std::string& text) {
  const auto script = ParseScript(text);
  EXPECT_EQ(script.size(), 1U) << text;
  return std::get<Kind>(script.at(0).Do);
}

std::string ErrorIn(const std::string& text) {
  return ErrorOf<ScriptError>([&] { return ParseScript(text); });
}

TEST(Script, KnowsTheKeys) {
  const std::pair<const char*, int> named[] = {
      {"Up", 38},  {"Down", 40}, {"Left", 37}, {"Right", 39},    {"PageUp", 33}, {"PageDown", 34}, {"Home", 36},
      {"End", 35}, {"Tab", 9},   {"F2", 113},  {"Backspace", 8}, {"Delete", 46}, {"Enter", 13},    {"Escape", 27},
  };
  for (const auto& [name, code] : named) {
    const auto stroke = Only<KeyStroke>(std::string("key txtA ") + name);
    EXPECT_EQ(stroke.Control, "txtA");
    EXPECT_EQ(stroke.Pressed.Code, code) << name;
    EXPECT_FALSE(stroke.Pressed.Alt);
  }
  const auto access = Only<KeyStroke>("key - Alt+\xC3\x9C");
  EXPECT_EQ(access.Control, std::nullopt);
  EXPECT_EQ(access.Pressed.Character, U'\u00FC');
  EXPECT_TRUE(access.Pressed.Alt);
}

TEST(Script, ReadsTextsWithTheirEscapes) {
  const std::pair<const char*, std::u32string> texts[] = {
      {R"("")", U""},
      {R"("a # b")", U"a # b"},
      {R"("\"\\\t\n\r")", U"\"\\\t\n\r"},
      {R"("\\n")", U"\\n"},
      {"\"\xE2\x82\xAC\xF0\x9F\x94\x92\"", U"\u20AC\U0001F512"},
  };
  for (const auto& [text, characters] : texts) {
    EXPECT_EQ(Only<Type>(std::string("type txtA ") + text).Text, characters) << text;
  }
}

TEST(Script, KeepsTheNumberAndTheSourceOfALine) {
  const auto script =
      ParseScript("\xEF\xBB\xBF# a comment\r\n\r\n \t click\tcmdA # press it\r\ntype txtA \"#\"#\n  close");
  std::string lines;
  for (const auto& action : script) lines += std::to_string(action.Line) + ": " + action.Source + '\n';
  EXPECT_EQ(lines, "3: click\tcmdA\n4: type txtA \"#\"\n5: close\n");
  EXPECT_TRUE(ParseScript("").empty());
}

TEST(Script, TellsTheLineThatMakesNoSense) {
  EXPECT_EQ(ErrorIn("\n\nselect lstA"),
            "line 3: select wants a control and a row, counted from 0: select C ROW [on|off]");
  EXPECT_EQ(ErrorIn("dump\npress cmdA"),
            "line 2: press is no action; a line begins with one of select, click, type, key, caret, focus, step, cell, "
            "doubleclick, edit, tick, answer, dump, close");
  const std::pair<const char*, std::vector<const char*>> bad[] = {
      {"select wants", {"select lstA 1x", "select lstA 99999999999", "select lstA 1 yes", "select lstA 1 on 2"}},
      {"click wants", {"click", "click \"cmdA\""}},
      {"click is no action", {"\"click\" cmdA"}},
      {"Click is no action", {"Click cmdA"}},
      {"type wants", {"type txtA text"}},
      {"closing quote", {"type txtA \"text", "type txtA \"text\\"}},
      {"no escape", {"type txtA \"\\q\""}},
      {"a blank has to follow", {"type txtA \"a\"b"}},
      {"a blank has to stand before", {"type txtA\"a\""}},
      {"not UTF-8", {"type txtA \"\xFF\"", "type txtA \"\xC3\""}},
      {"key wants", {"key txtA enter", "key txtA Alt+", "key txtA Alt+ab"}},
      {"caret wants", {"caret txtA 1", "caret txtA -1 0"}},
      {"step wants", {"step updA", "step updA left", "step updA up 0"}},
      {"cell wants", {"cell grdA 1"}},
      {"edit wants", {"edit grdA 1 2"}},
      {"answer wants", {"answer 0", "answer 3", "answer 5", "answer 8"}},
      {"dump wants", {"dump all"}},
  };
  for (const auto& [what, lines] : bad) {
    for (const auto* line : lines) {
      const auto error = ErrorIn(line);
      EXPECT_EQ(error.find("line 1: "), 0U) << line;
      EXPECT_NE(error.find(what), std::string::npos) << line << " -> " << error;
    }
  }
}

}  // namespace
}  // namespace orlin::testing
