#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/components.h"

namespace orlin {

/// A date and time of the form "YYYY-MM-DD HH:MM:SS"; nothing for any other text, and for a moment that the calendar
/// does not have, such as "2025-02-30 12:00:00".
[[nodiscard]] std::optional<std::tm> ParseMoment(std::string_view text);

/// A clock whose texts have the form of the user's locale (`%x`, `%X`), as the environment names it; that of "C" where
/// there is no such locale.
class LocaleClock : public Clock {
 public:
  /// Tells the local time.
  LocaleClock() = default;
  /// Stands still at a moment (see `ParseMoment`).
  explicit LocaleClock(const std::tm& standingAt) : standingAt_(standingAt) {}

  std::string Date() override;
  std::string Time() override;
  std::string DateAndTime() override;

 private:
  [[nodiscard]] std::string Formatted(const char* format) const;

  std::optional<std::tm> standingAt_;
};

}  // namespace orlin
