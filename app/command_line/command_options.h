#pragma once

#include "app/account/account_command.h"
#include "app/calls/edit.h"
#include "app/command_line/list.h"
#include "app/description/describe.h"

namespace CLI {
class App;
}  // namespace CLI

namespace orlin {

// What each command takes, and its help text. The options set what they are read into, which outlives the command.

void AddList(CLI::App& command, ListOptions& options);
void AddDescribe(CLI::App& command, DescribeOptions& options);
void AddEdit(CLI::App& command, EditOptions& options);
void AddAccount(CLI::App& command, AccountOptions& options);
void AddEncrypt(CLI::App& command);

}  // namespace orlin
