#pragma once

#include <QFontMetrics>
#include <QString>
#include <string>
#include <string_view>

namespace orlin {

/// A text of the library for a widget. A byte that is no UTF-8 shows as U+FFFD, one for each.
[[nodiscard]] QString Shown(std::string_view text);

/// What the operator gives, for the library.
[[nodiscard]] std::string Given(const QString& text);

/// Positions of the library count characters; those of a QString count UTF-16 units, of which a few characters take
/// two.
[[nodiscard]] int UnitsBefore(const QString& text, int characters);
[[nodiscard]] int CharactersBefore(const QString& text, int units);

/// A caption without the marks of access keys, and without the colon that ends the label of a field.
[[nodiscard]] QString SpokenCaption(std::string_view caption);

/// Breaks a text into lines of at most that width, at blanks. Marks of access keys stay.
[[nodiscard]] QString Wrapped(const QString& text, const QFontMetrics& metrics, int width);

}  // namespace orlin
