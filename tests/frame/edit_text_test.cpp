#include "OrlinCustomDialogs/edit_text.h"

#include <functional>
#include <string>

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
  const struct {
    const char* Name;
    const char* Before;
    std::function<void(EditText&)> Edit;
    const char* After;
  } cases[] = {
      {"insert at the caret", "a[]b", [](auto& e) { e.Insert(U'x', 0); }, "ax[]b"},
      {"insert over the selection", "[ab]c", [](auto& e) { e.Insert(U'x', 0); }, "x[]c"},
      {"no insert beyond the limit", "ab[]", [](auto& e) { e.Insert(U'x', 2); }, "ab[]"},
      {"a selection makes room", "a[b]", [](auto& e) { e.Insert(U'x', 2); }, "ax[]"},
      {"a line end needs two", "a[]", [](auto& e) { e.InsertLineEnd(2); }, "a[]"},
      {"backspace", "ab[]c", [](auto& e) { e.Backspace(); }, "a[]c"},
      {"backspace at the start", "[]ab", [](auto& e) { e.Backspace(); }, "[]ab"},
      {"backspace over a selection", "a[bc]", [](auto& e) { e.Backspace(); }, "a[]"},
      {"backspace over a line end", "a\r\n[]b", [](auto& e) { e.Backspace(); }, "a[]b"},
      {"delete", "a[]bc", [](auto& e) { e.Delete(); }, "a[]c"},
      {"delete at the end", "ab[]", [](auto& e) { e.Delete(); }, "ab[]"},
      {"delete a line end", "a[]\r\nb", [](auto& e) { e.Delete(); }, "a[]b"},
      {"left", "ab[]", [](auto& e) { e.Left(); }, "a[]b"},
      {"left of a selection", "a[bc]", [](auto& e) { e.Left(); }, "a[]bc"},
      {"right of a selection", "[ab]c", [](auto& e) { e.Right(); }, "ab[]c"},
      {"right over a line end", "a[]\r\nb", [](auto& e) { e.Right(); }, "a\r\n[]b"},
      {"home in a line", "a\r\nbc[]", [](auto& e) { e.Home(); }, "a\r\n[]bc"},
      {"end of a line", "[]ab\r\nc", [](auto& e) { e.End(); }, "ab[]\r\nc"},
      {"up to a shorter line", "a\r\nbcd[]", [](auto& e) { e.Up(); }, "a[]\r\nbcd"},
      {"up from the first line", "a[b]", [](auto& e) { e.Up(); }, "a[]b"},
      {"down", "a[]b\r\ncd", [](auto& e) { e.Down(); }, "ab\r\nc[]d"},
      {"a set text keeps the caret", "a[]bc", [](auto& e) { e.SetText("xyz"); }, "x[]yz"},
      {"behind the mark", "[ab]c", [](auto& e) { e.SetText("xyz"); }, "xy[]z"},
      {"or at the end of a shorter one", "abc[]", [](auto& e) { e.SetText("x"); }, "x[]"},
      {"a selection is cut to the text", "ab[]", [](auto& e) { e.Select(1, 9); }, "a[b]"},
      {"a text over the selection", "a[b]c", [](auto& e) { e.ReplaceSelection("xy"); }, "axy[]c"},
  };
  for (const auto& one : cases) {
    auto edit = Marked(one.Before);
    one.Edit(edit);
    EXPECT_EQ(Shown(edit), one.After) << one.Name;
  }
}

TEST(EditText, CountsCharactersAndKeepsStrayBytes) {
  EditText edit;
  const std::string text = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x92";
  edit.SetText(text);
  EXPECT_EQ(edit.Length(), 3);
  EXPECT_FALSE(edit.Insert(U'x', 3));
  EXPECT_EQ(edit.Text(), text);
  const std::string stray =
      "a\xFF\xC3"
      "b\xED\xA0\x80\xF4\x90\x80\x80\xC0\x80";
  edit.SetText(stray);
  EXPECT_EQ(edit.Text(), stray);
}

}  // namespace
}  // namespace orlin::testing
