#include "OrlinCustomDialogs/host/keys.h"

#include "OrlinCustomDialogs/written_text.h"

namespace orlin {
namespace {

int CodeOf(char32_t character) {
  const auto small = SmallLetter(character);
  if (small >= U'a' && small <= U'z') return static_cast<int>(small - U'a' + U'A');
  if (character >= U'0' && character <= U'9') return static_cast<int>(character);
  return character == U' ' ? keys::Space : keys::OtherCharacter;
}

struct ReadCaption {
  std::u32string Plain;
  char32_t Marked = 0;
};

ReadCaption Read(std::string_view caption) {
  ReadCaption read;
  const auto characters = FromUtf8(caption);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    if (characters[i] == U'&' && i + 1 < characters.size()) {
      ++i;
      if (characters[i] != U'&' && read.Marked == 0) read.Marked = characters[i];
    }
    read.Plain.push_back(characters[i]);
  }
  return read;
}

}  // namespace

Key Key::Typing(char32_t character) { return Key{CodeOf(character), character}; }

Key Key::Access(char32_t letter) { return Key{CodeOf(letter), SmallLetter(letter), true}; }

char32_t AccessKey(std::string_view caption) { return SmallLetter(Read(caption).Marked); }

std::string PlainCaption(std::string_view caption) { return ToUtf8(Read(caption).Plain); }

}  // namespace orlin
