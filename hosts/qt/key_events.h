#pragma once

#include <QKeyEvent>
#include <QString>
#include <vector>

#include "OrlinCustomDialogs/host/keys.h"

namespace orlin {

/// What a press of a key is for the dialog: mostly one key, none for a key that the dialogs do not know.
[[nodiscard]] std::vector<Key> KeysOf(const QKeyEvent& event);

/// The keys that type a text; a line end is Enter.
[[nodiscard]] std::vector<Key> KeysTyping(const QString& text);

/// A press of a key as a keyboard sends it: the other direction.
struct KeyPress {
  int Code = 0;
  Qt::KeyboardModifiers Modifiers = Qt::NoModifier;
  QString Text;
};
[[nodiscard]] KeyPress PressOf(const Key& key);

}  // namespace orlin
