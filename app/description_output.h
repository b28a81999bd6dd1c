#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "app/description.h"

namespace orlin {

/// Prints a description for people: the title, captions and values below each other in two columns, then the notes.
/// `name`: what the parameter is called in its account.
void PrintText(const Description& description, const std::optional<std::string>& name, std::ostream& out);

/// Prints a description for programs: a JSON object on one line.
void PrintJson(const Description& description, const std::optional<std::string>& name, std::ostream& out);

}  // namespace orlin
