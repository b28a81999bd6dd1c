#include "clock/locale_clock.h"

#include <chrono>
#include <cstddef>
#include <iomanip>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace orlin {
namespace {

constexpr std::string_view kMomentForm = "0000-00-00 00:00:00";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool HasMomentForm(std::string_view text) {
  if (text.size() != kMomentForm.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kMomentForm[i] == '0' ? !IsDigit(text[i]) : text[i] != kMomentForm[i]) return false;
  }
  return true;
}

int NumberOf(std::string_view digits) {
  int number = 0;
  for (const char digit : digits) number = number * 10 + (digit - '0');
  return number;
}

std::locale UserLocale() {
  try {
    return std::locale("");
  } catch (const std::runtime_error&) {
    return std::locale::classic();
  }
}

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm moment{};
  localtime_r(&now, &moment);
  return moment;
}

}  // namespace

std::optional<std::tm> ParseMoment(std::string_view text) {
  using namespace std::chrono;
  if (!HasMomentForm(text)) return std::nullopt;
  const auto part = [text](std::size_t at, std::size_t length) { return NumberOf(text.substr(at, length)); };
  const year_month_day date{year(part(0, 4)), month(static_cast<unsigned>(part(5, 2))),
                            day(static_cast<unsigned>(part(8, 2)))};
  std::tm moment{};
  moment.tm_hour = part(11, 2);
  moment.tm_min = part(14, 2);
  moment.tm_sec = part(17, 2);
  if (!date.ok() || moment.tm_hour > 23 || moment.tm_min > 59 || moment.tm_sec > 59) return std::nullopt;

  moment.tm_year = part(0, 4) - 1900;
  moment.tm_mon = part(5, 2) - 1;
  moment.tm_mday = part(8, 2);
  // Some locales name the day of the week, or count the days.
  const sys_days days = date;
  moment.tm_wday = static_cast<int>(weekday(days).c_encoding());
  moment.tm_yday = static_cast<int>((days - sys_days(date.year() / January / 1)).count());
  moment.tm_isdst = -1;
  return moment;
}

std::string LocaleClock::Date() { return Formatted("%x"); }
std::string LocaleClock::Time() { return Formatted("%X"); }
std::string LocaleClock::DateAndTime() { return Formatted("%x %X"); }

std::string LocaleClock::Formatted(const char* format) const {
  const std::tm moment = standingAt_ ? *standingAt_ : LocalTime();
  std::ostringstream text;
  text.imbue(UserLocale());
  text << std::put_time(&moment, format);
  return text.str();
}

}  // namespace orlin
