#pragma once

#include <ostream>
#include <variant>

#include "app/account_command.h"
#include "app/edit.h"

namespace orlin {

/// `orlin-host list`
struct ListCommand {};

/// The command line was a question for help, which has been answered.
struct HelpGiven {};

using Command = std::variant<ListCommand, EditOptions, AccountOptions, HelpGiven>;

/// Reads the words of the command line; `UsageError` where they make no command.
[[nodiscard]] Command ReadCommandLine(int count, const char* const* words, std::ostream& out);

}  // namespace orlin
