#pragma once

#include "app/account_command.h"
#include "app/describe.h"
#include "app/edit.h"
#include "app/list.h"

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
