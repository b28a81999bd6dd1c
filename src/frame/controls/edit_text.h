#pragma once

#include <string>
#include <string_view>

namespace orlin {

/// A text with a caret and a marked selection, as it stands in a text box, in the edit field of a combo box and in
/// the editor of a grid cell. All positions and lengths count characters, not bytes. Bytes that are no UTF-8
/// survive as they are, each counting as one character.
class EditText {
 public:
  [[nodiscard]] std::string Text() const;
  [[nodiscard]] int Length() const noexcept { return static_cast<int>(characters_.size()); }
  [[nodiscard]] int SelStart() const noexcept { return start_; }
  [[nodiscard]] int SelLength() const noexcept { return length_; }

  /// Replaces the text. The caret stays where it was, behind the mark where text was marked, or at the end of a
  /// text that is shorter now; nothing is marked any more. Tells whether the text is another one.
  bool SetText(std::string_view text);

  /// Marks `length` characters from `start`; both are cut to what there is.
  void Select(int start, int length);

  /// Puts a character in place of the selection, unless the text would grow longer than `maxLength` (0: no limit).
  /// Tells whether it went in.
  bool Insert(char32_t character, int maxLength);
  /// The same for a line end (carriage return and line feed).
  bool InsertLineEnd(int maxLength);
  /// Puts a text in place of the selection, of any length.
  void ReplaceSelection(std::string_view text);

  /// Removes the selection or, if nothing is marked, the character before the caret (behind it); a line end goes
  /// as a whole. Tells whether there was anything to remove.
  bool Backspace();
  bool Delete();

  /// Moves the caret; a marked selection is gone.
  void Left();
  void Right();
  void Home();
  void End();
  void Up();
  void Down();

 private:
  [[nodiscard]] int CaretEnd() const noexcept { return start_ + length_; }
  [[nodiscard]] bool LineEndAt(int position) const noexcept;
  [[nodiscard]] int LineStart(int position) const noexcept;
  [[nodiscard]] int LineEnd(int position) const noexcept;
  bool Put(std::u32string_view characters, int maxLength);
  bool Remove(int start, int length);

  std::u32string characters_;
  int start_ = 0;
  int length_ = 0;
};

}  // namespace orlin
