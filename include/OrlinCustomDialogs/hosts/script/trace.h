#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "OrlinCustomDialogs/host/dialog_host.h"
#include "OrlinCustomDialogs/value.h"

namespace orlin {

/// What happens during one call of `Display`, as JSON Lines: one object a line, in the order in which things happen.
/// Texts are UTF-8 as they stand; a byte that is none becomes U+FFFD. A stream that fails takes no more lines.
class Trace {
 public:
  /// The stream outlives the trace.
  explicit Trace(std::ostream& out) : out_(out) {}

  /// One argument of the call, after it.
  struct Argument {
    std::string Name;
    const Value& Held;
  };

  void Shown(const shown::Dialog& dialog);
  void Answered(const Message& message, int answer);
  void Beep();
  void FaultLogged(std::int32_t number, std::string_view module, std::string_view procedure,
                   std::string_view additional, bool shown);
  void HandlerFailed(std::string_view handler, std::int32_t number);
  void Refused(int line, std::string_view action, std::string_view why);
  void State(const shown::Dialog& dialog);
  void Returned(std::int32_t result, const std::vector<Argument>& arguments);
  /// The public class let a failure through.
  void Raised(std::int32_t number, const std::vector<Argument>& arguments);

 private:
  std::ostream& out_;
};

}  // namespace orlin
