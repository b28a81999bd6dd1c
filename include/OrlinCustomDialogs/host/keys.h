#pragma once

#include <string>
#include <string_view>

namespace [[using gnu: visibility("default")]] orlin {

/// The numbers of keys, as `KeyDown` handlers get them. Letters and digits have the number of their capital.
namespace keys {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int Space = 32;
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F2 = 113;
inline constexpr int OtherCharacter = 231;  ///< a key that types neither a letter, a digit nor a blank
}  // namespace keys

/// One press of a key by the operator.
struct Key {
  int Code = 0;            ///< one of `keys`, or the number of a capital letter or digit
  char32_t Character = 0;  ///< what the key types; 0 for a key that types nothing
  bool Alt = false;
  bool Shift = false;

  /// A key that types nothing by itself: one of `keys` up to F2.
  static Key Named(int code) { return Key{code}; }
  static Key ShiftTab() { return Key{keys::Tab, 0, false, true}; }
  /// The key that types a character.
  static Key Typing(char32_t character);
  /// Alt and the letter of an access key.
  static Key Access(char32_t letter);
};

/// The letter behind the "&" of a caption, in lower case, or 0. "&&" is an ampersand.
[[nodiscard]] char32_t AccessKey(std::string_view caption);

/// A caption as it is read: without the marks of access keys, "&&" as an ampersand.
[[nodiscard]] std::string PlainCaption(std::string_view caption);

}  // namespace orlin
