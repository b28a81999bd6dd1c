#pragma once

#include <functional>
#include <utility>

namespace orlin {

/// Who causes an event. A failure in a handler ends the handler where the operator caused it, and reaches the
/// code that caused it otherwise.
enum class By { Code, Operator };

/// One event of a control: at most one handler, which the dialog sets when it is made.
template <class... Arguments>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(handler_); }
  void operator()(Arguments... arguments) const { handler_(arguments...); }

 private:
  std::function<void(Arguments...)> handler_;
};

}  // namespace orlin
