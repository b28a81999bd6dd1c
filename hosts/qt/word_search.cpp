#include "qt/word_search.h"

#include <algorithm>
#include <utility>

#include "qt/texts.h"

namespace orlin {
namespace {

QString WithoutBlanks(QString text) { return text.remove(u' '); }

/// Whether a row has a word, or a number, that begins so. Blanks count neither here nor there.
bool HasWord(const QString& row, const QString& typed) {
  const auto wanted = WithoutBlanks(typed);
  QString rest = row.trimmed();
  for (qsizetype at = 0; at < rest.size(); ++at) {
    const bool inWord = at > 0 && rest.at(at - 1).isLetterOrNumber();
    // The zeros of a number in front are no part of it.
    const bool behindZeros = at > 0 && std::all_of(rest.begin(), rest.begin() + at, [](QChar c) { return c == u'0'; });
    if (inWord && !behindZeros) continue;
    if (WithoutBlanks(rest.mid(at)).startsWith(wanted, Qt::CaseInsensitive)) return true;
  }
  return false;
}

bool BeginsWith(const QString& row, const QString& typed) {
  return row.trimmed().startsWith(typed, Qt::CaseInsensitive);
}

shown::RowList* ListWithKeyboard(const shown::Dialog& dialog) {
  auto* focused = dialog.FocusedControl();
  auto* list = focused != nullptr && focused->WithinReach() ? focused->AsRowList() : nullptr;
  return list != nullptr && list->Choice() == shown::Choice::One ? list : nullptr;
}

/// A row of the list that has the keyboard, as people read it.
QString RowOf(const shown::Dialog& dialog, int row) {
  const auto& focused = *dialog.FocusedControl();
  return Shown(focused.Translated(focused.AsRowList()->List(row)));
}

bool HasEditField(const shown::Dialog& dialog) {
  const auto* field = dialog.FocusedControl()->AsTextField();
  return field != nullptr && field->HasEditField();
}

}  // namespace

void WordSearch::Press(const Key& key, bool inOpenList) {
  auto* list = ListWithKeyboard(dialog_);
  const bool searches = list != nullptr && (inOpenList || !HasEditField(dialog_));
  if (!searches || key.Character == 0 || key.Alt) {
    Pause();
    return desk_.Press(key, dialog_);
  }
  if (std::exchange(in_, list) != list) Pause();
  const auto character = QString::fromUcs4(&key.Character, 1);
  if (HasEditField(dialog_)) {
    if (!Pick(*list, typed_ + character) && !Pick(*list, character)) Pause();
    return;
  }
  if (typed_.isEmpty()) finds_ = false;
  if (finds_ && Pick(*list, typed_ + character)) return;
  if (std::exchange(finds_, false)) Pause();
  desk_.Press(key, dialog_);
  if (!dialog_.IsShown() || ListWithKeyboard(dialog_) != list) return Pause();
  typed_ += character;
  if (BeginsWith(RowOf(dialog_, list->ListIndex()), typed_)) return;
  // The list has found nothing, and begins anew.
  finds_ = Pick(*list, typed_);
  if (!finds_) Pause();
}

bool WordSearch::Pick(shown::RowList& list, const QString& typed) {
  const int count = list.ListCount();
  // As in the list itself: the first character leaves the row that stands, further ones may keep it.
  const int first = std::max(typed.size() == 1 ? list.ListIndex() + 1 : +list.ListIndex(), 0);
  for (const auto fits : {BeginsWith, HasWord}) {
    for (int i = 0; i < count && !typed.trimmed().isEmpty(); ++i) {
      const int row = (first + i) % count;
      if (!fits(RowOf(dialog_, row), typed)) continue;
      desk_.Do([&] { return list.PickRow(row); });
      typed_ = typed;
      return true;
    }
  }
  return false;
}

}  // namespace orlin
