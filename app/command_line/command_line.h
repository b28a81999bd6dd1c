#pragma once

#include <ostream>
#include <variant>

#include "app/account/account_command.h"
#include "app/calls/edit.h"
#include "app/command_line/encrypt.h"
#include "app/command_line/list.h"
#include "app/description/describe.h"

namespace orlin {

/// The command line was a question for help or for the version, which has been answered.
struct HelpGiven {};

using Command = std::variant<ListOptions, DescribeOptions, EditOptions, AccountOptions, EncryptCommand, HelpGiven>;

/// Reads the words of the command line; `UsageError` where they make no command.
[[nodiscard]] Command ReadCommandLine(int count, const char* const* words, std::ostream& out);

}  // namespace orlin
