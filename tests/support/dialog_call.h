#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/dialog_test.h"

// What tests of dialogs say again and again, in few words.

namespace orlin::testing {

using Strings = std::vector<std::string>;

/// The parts of a text; none of an empty one.
[[nodiscard]] Strings Split(const std::string& text, const std::string& separator);

/// Every text is its own number, behind which stand its variables: "1554 8". So a state tells which texts it shows.
[[nodiscard]] const std::string& NumbersForTexts();

/// The rows of a list on one line. A run of rows whose last or first words count up is told by its ends: "513
/// 1196..1198", "1554 1..8", "1473 4..1480 4". So are two rows that take turns: "1566 1, 1567 1..1566 8, 1567 8".
[[nodiscard]] std::string Listing(const Strings& rows);

/// What came of a call on one line, asked for in words:
///     result, beeps, failures, events (all, in order), title (of the dialog), messages (text, title and flags of each)
///     NAME of an argument, as the command line writes it, texts in single quotes: 5, 5L, '0A', [1,'x',0*9]
///     focus, CONTROL (the text or caption, or the rows of a list in brackets), CONTROL.PROPERTY, CONTROL.on (visible
///     and enabled), CONTROL.rows (how many): of the last dump, or of the first one: 0:focus
[[nodiscard]] std::string Told(const DialogRun& run, const std::string& words);

/// A call for each of many rows. The cells of a row, between "|", stand in for {0}, {1} ... of its call and its script;
/// what it comes to is the last cell.
struct Cases {
  std::string Call;    ///< the class and its arguments: "clsZoneFunctions_Fir ZoneCode='{0}'"
  std::string Script;  ///< its actions, with ";" between them
  std::string Words;   ///< what is told of it
  Strings Levels = {};
  std::optional<std::string> Settings = {};  ///< the text of the file
  bool Texts = false;                        ///< the texts are those of the catalogue, not their numbers
};

void ExpectEach(const Cases& cases, const Strings& rows);

}  // namespace orlin::testing
