#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "app/description/description.h"

namespace orlin {

/// Prints a description for people: the title, captions and values below each other in two columns, then the notes.
/// `name`: what the parameter is called in its account.
void PrintText(const Description& description, const std::optional<std::string>& name, std::ostream& out);

/// Prints a description for programs: a JSON object on one line.
void PrintJson(const Description& description, const std::optional<std::string>& name, std::ostream& out);

/// All that a description tells, in one line.
[[nodiscard]] std::string WordsOf(const Description& description);

/// What two descriptions of one parameter tell differently, in one line each, such as "First digit: 5. Medical zone;
/// Second digit: 1. Instant". All that they tell where one of them tells nothing of its own.
[[nodiscard]] std::pair<std::string, std::string> DifferentWords(const Description& a, const Description& b);

}  // namespace orlin
