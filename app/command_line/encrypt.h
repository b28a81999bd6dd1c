#pragma once

#include <istream>
#include <ostream>

namespace orlin {

/// `orlin-host encrypt`
struct EncryptCommand {};

/// Reads a password, one line of `in`, and prints the text that the setting "Password" keeps for it. A terminal does
/// not show what is typed. `UsageError` where there is no password.
int Encrypt(std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace orlin
