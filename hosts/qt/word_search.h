#pragma once

#include <QString>

#include "qt/control_view.h"

namespace orlin {

/// Finds rows of a list for a person who types what stands in the midst of them. The list itself finds what its rows
/// begin with, and comes first; where it finds nothing, this picks a row in which a word begins with what was typed,
/// or whose number does, without the blanks and the zeros before it: "47" for "047  Bypass zone 1".
class WordSearch {
 public:
  WordSearch(shown::Dialog& dialog, Desk& desk) : dialog_(dialog), desk_(desk) {}

  /// Presses a key in the dialog, or takes it for the search. What is typed into an open list does not go into the edit
  /// field that it may have.
  void Press(const Key& key, bool inOpenList);
  /// What is typed next begins anew.
  void Pause() { typed_.clear(); }

 private:
  /// Picks the row that a text leads to, if there is one, which is then what was typed so far.
  bool Pick(shown::RowList& list, const QString& typed);

  shown::Dialog& dialog_;
  Desk& desk_;
  const shown::RowList* in_ = nullptr;
  QString typed_;       // so far, in the same list
  bool finds_ = false;  // whether this found it, and not the list
};

}  // namespace orlin
