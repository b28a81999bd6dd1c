#include "frame/controls/edit_text.h"

#include <algorithm>

#include "OrlinCustomDialogs/written_text.h"

namespace orlin {
namespace {

constexpr std::u32string_view kLineEnd = U"\r\n";

}  // namespace

std::string EditText::Text() const { return ToUtf8(characters_); }

bool EditText::SetText(std::string_view text) {
  auto characters = FromUtf8(text);
  const bool another = characters != characters_;
  const int caret = CaretEnd();
  characters_ = std::move(characters);
  Select(caret, 0);
  return another;
}

void EditText::Select(int start, int length) {
  start_ = std::clamp(start, 0, Length());
  length_ = std::clamp(length, 0, Length() - start_);
}

bool EditText::Put(std::u32string_view characters, int maxLength) {
  const int added = static_cast<int>(characters.size());
  if (maxLength > 0 && Length() - length_ + added > maxLength) return false;
  characters_.replace(static_cast<std::size_t>(start_), static_cast<std::size_t>(length_), characters);
  Select(start_ + added, 0);
  return true;
}

bool EditText::Insert(char32_t character, int maxLength) { return Put(std::u32string_view(&character, 1), maxLength); }

bool EditText::InsertLineEnd(int maxLength) { return Put(kLineEnd, maxLength); }

void EditText::ReplaceSelection(std::string_view text) { Put(FromUtf8(text), 0); }

bool EditText::Remove(int start, int length) {
  characters_.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
  Select(start, 0);
  return length > 0;
}

bool EditText::LineEndAt(int position) const noexcept {
  return position >= 0 && position + 2 <= Length() &&
         std::u32string_view(characters_).substr(static_cast<std::size_t>(position), 2) == kLineEnd;
}

bool EditText::Backspace() {
  if (length_ > 0) return Remove(start_, length_);
  const int count = LineEndAt(start_ - 2) ? 2 : std::min(start_, 1);
  return Remove(start_ - count, count);
}

bool EditText::Delete() {
  if (length_ > 0) return Remove(start_, length_);
  return Remove(start_, LineEndAt(start_) ? 2 : std::min(Length() - start_, 1));
}

void EditText::Left() { Select(length_ > 0 ? start_ : LineEndAt(start_ - 2) ? start_ - 2 : start_ - 1, 0); }

void EditText::Right() { Select(length_ > 0 ? CaretEnd() : LineEndAt(start_) ? start_ + 2 : start_ + 1, 0); }

int EditText::LineStart(int position) const noexcept {
  while (position > 0 && !LineEndAt(position - 2)) --position;
  return position;
}

int EditText::LineEnd(int position) const noexcept {
  while (position < Length() && !LineEndAt(position)) ++position;
  return position;
}

void EditText::Home() { Select(LineStart(start_), 0); }

void EditText::End() { Select(LineEnd(CaretEnd()), 0); }

void EditText::Up() {
  const int lineStart = LineStart(start_);
  if (lineStart == 0) return Select(start_, 0);
  const int above = LineStart(lineStart - 2);
  Select(std::min(above + start_ - lineStart, lineStart - 2), 0);
}

void EditText::Down() {
  const int caret = CaretEnd();
  const int lineEnd = LineEnd(caret);
  if (lineEnd == Length()) return Select(caret, 0);
  const int below = lineEnd + 2;
  Select(std::min(below + caret - LineStart(caret), LineEnd(below)), 0);
}

}  // namespace orlin
