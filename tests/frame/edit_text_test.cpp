#include "frame/controls/edit_text.h"

#include <functional>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace orlin::testing {
namespace {

/// A text with its selection in brackets: "a[b]c", "ab[]".
std::string Shown(const EditText& edit) {
  std::string text = edit.Text();
  text.insert(static_cast<std::size_t>(edit.SelStart() + edit.SelLength()), "]");
  text.insert(static_cast<std::size_t>(edit.SelStart()), "[");
  return text;
}

EditText Marked(const std::string& shown) {
  const auto from = shown.find('[');
  const auto to = shown.find(']');
  EditText edit;
  edit.SetText(shown.substr(0, from) + shown.substr(from + 1, to - from - 1) + shown.substr(to + 1));
  edit.Select(static_cast<int>(from), static_cast<int>(to - from - 1));
  return edit;
}

TEST(EditText, MovesAndEdits) {
  const std::tuple<const char*, std::function<void(EditText&)>, const char*> cases[] = {
      {"a[]b", [](auto& e) { e.Insert(U'x', 0); }, "ax[]b"},
      {"ab[]", [](auto& e) { e.Insert(U'x', 2); }, "ab[]"},
      {"a[b]", [](auto& e) { e.Insert(U'x', 2); }, "ax[]"},
      {"a[]", [](auto& e) { e.InsertLineEnd(2); }, "a[]"},
      {"ab\r\n[]c", [](auto& e) { e.Backspace(), e.Backspace(); }, "a[]c"},
      {"[]ab", [](auto& e) { e.Backspace(); }, "[]ab"},
      {"a[bc]", [](auto& e) { e.Backspace(); }, "a[]"},
      {"a[]\r\nbc", [](auto& e) { e.Delete(), e.Delete(); }, "a[]c"},
      {"ab[]", [](auto& e) { e.Delete(); }, "ab[]"},
      {"ab[]", [](auto& e) { e.Left(); }, "a[]b"},
      {"a[bc]", [](auto& e) { e.Left(); }, "a[]bc"},
      {"[ab]c\r\nd", [](auto& e) { e.Right(), e.Right(), e.Right(); }, "abc\r\n[]d"},
      {"a\r\nbc[]", [](auto& e) { e.Home(); }, "a\r\n[]bc"},
      {"[]ab\r\nc", [](auto& e) { e.End(); }, "ab[]\r\nc"},
      {"a\r\nbcd[]", [](auto& e) { e.Up(); }, "a[]\r\nbcd"},
      {"a[b]", [](auto& e) { e.Up(); }, "a[]b"},
      {"a[]b\r\ncd", [](auto& e) { e.Down(); }, "ab\r\nc[]d"},
      {"[ab]c", [](auto& e) { e.SetText("xyz"); }, "xy[]z"},
      {"abc[]", [](auto& e) { e.SetText("x"); }, "x[]"},
      {"ab[]", [](auto& e) { e.Select(1, 9); }, "a[b]"},
      {"a[b]c", [](auto& e) { e.ReplaceSelection("xy"); }, "axy[]c"},
  };
  for (const auto& [before, edit, after] : cases) {
    auto text = Marked(before);
    edit(text);
    EXPECT_EQ(Shown(text), after) << before;
  }
}

TEST(EditText, CountsCharactersAndKeepsStrayBytes) {
  EditText edit;
  const std::string text = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x92";
  edit.SetText(text);
  EXPECT_EQ(edit.Length(), 3);
  EXPECT_FALSE(edit.Insert(U'x', 3));
  EXPECT_EQ(edit.Text(), text);
  const std::string stray = "a\xFF\xC3_\xED\xA0\x80\xF4\x90\x80\x80\xC0\x80";
  edit.SetText(stray);
  EXPECT_EQ(edit.Text(), stray);
}

}  // namespace
}  // namespace orlin::testing
