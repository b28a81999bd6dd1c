#include "qt/key_events.h"

#include <algorithm>
#include <array>

namespace orlin {
namespace {

struct NamedKey {
  int Qt;
  int Code;
};

constexpr std::array<NamedKey, 17> kNamedKeys = {{
    {Qt::Key_Backspace, keys::Backspace},
    {Qt::Key_Tab, keys::Tab},
    {Qt::Key_Backtab, keys::Tab},
    {Qt::Key_Return, keys::Enter},
    {Qt::Key_Enter, keys::Enter},
    {Qt::Key_Escape, keys::Escape},
    {Qt::Key_PageUp, keys::PageUp},
    {Qt::Key_PageDown, keys::PageDown},
    {Qt::Key_End, keys::End},
    {Qt::Key_Home, keys::Home},
    {Qt::Key_Left, keys::Left},
    {Qt::Key_Up, keys::Up},
    {Qt::Key_Right, keys::Right},
    {Qt::Key_Down, keys::Down},
    {Qt::Key_Delete, keys::Delete},
    {Qt::Key_F2, keys::F2},
    {Qt::Key_Space, keys::Space},
}};

}  // namespace

std::vector<Key> KeysOf(const QKeyEvent& event) {
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  if (alt && !control) {
    // Some keyboards send no text with Alt; the key itself then names the letter.
    const auto text = event.text().toUcs4();
    if (!text.isEmpty() && text.front() > U' ') return {Key::Access(text.front())};
    const bool letter = event.key() > Qt::Key_Space && event.key() <= 0xFF;
    return letter ? std::vector{Key::Access(static_cast<char32_t>(event.key()))} : std::vector<Key>();
  }
  const auto named =
      std::find_if(kNamedKeys.begin(), kNamedKeys.end(), [&](const auto& known) { return known.Qt == event.key(); });
  if (named != kNamedKeys.end() && named->Code != keys::Space) {
    auto key = Key::Named(named->Code);
    key.Shift = event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier);
    return {key};
  }
  // Control and Alt together are AltGr on some keyboards, which types.
  if (control && !alt) return {};
  return KeysTyping(event.text());
}

std::vector<Key> KeysTyping(const QString& text) {
  std::vector<Key> typed;
  const auto characters = text.toUcs4();
  for (qsizetype i = 0; i < characters.size(); ++i) {
    const auto character = characters[i];
    const bool lineEnd = character == U'\r' || character == U'\n';
    if (character == U'\r' && i + 1 < characters.size() && characters[i + 1] == U'\n') ++i;
    if (lineEnd) {
      typed.push_back(Key::Named(keys::Enter));
    } else if (character >= U' ' && character != 0x7F) {
      typed.push_back(Key::Typing(character));
    }
  }
  return typed;
}

KeyPress PressOf(const Key& key) {
  if (key.Alt) {
    const auto letter = QString::fromUcs4(&key.Character, 1);
    return {letter.toUpper().front().unicode(), Qt::AltModifier, letter};
  }
  if (key.Character != 0) {
    const auto character = QString::fromUcs4(&key.Character, 1);
    return {character.toUpper().front().unicode(), Qt::NoModifier, character};
  }
  if (key.Code == keys::Tab && key.Shift) return {Qt::Key_Backtab, Qt::ShiftModifier, {}};
  const auto named =
      std::find_if(kNamedKeys.begin(), kNamedKeys.end(), [&](const auto& known) { return known.Code == key.Code; });
  if (named == kNamedKeys.end()) return {};
  return {named->Qt, key.Shift ? Qt::ShiftModifier : Qt::NoModifier, {}};
}

}  // namespace orlin
