#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "OrlinCustomDialogs/value.h"

// The raw values of a sked of the Willow panels, and what they say.

namespace orlin::willow {

enum class SkedType : std::int16_t { Disabled = 0, ByDate = 1, ByDayOfWeek = 2 };

/// Whatever is not 1 or 2 is a disabled sked.
[[nodiscard]] SkedType DecodeType(const Value& skedType);

/// Whatever is not 1 is off.
[[nodiscard]] bool DecodeTimeEdit(const Value& timeEdit);

/// The number that the operator sees: the group of 16, counted from 1, and two digits for the entry in it.
[[nodiscard]] std::string ShownNumber(std::int32_t skedNo);

/// Every month or day, hour or minute.
inline constexpr const char* kEvery = "**";

/// Two digits, or `kEvery`.
struct Time {
  std::string Hour = "00";
  std::string Minute = "00";
};
[[nodiscard]] Time DecodeTime(const std::string& skedTime);
[[nodiscard]] std::string EncodeTime(const Time& time);

/// Rows of the lists of months and days: the number of the month or day, or 0 for every one.
struct Date {
  int Month = 1;
  int Day = 1;
};
/// January, the 1st, for a value that holds no date.
[[nodiscard]] Date DecodeDate(const Value& skedData);
[[nodiscard]] std::string EncodeDate(const Date& date);

/// How many days the list of days offers for a row of the list of months.
[[nodiscard]] int DaysInMonth(int month);

inline constexpr int kDaysOfWeek = 7;
/// Day 0 is Sunday.
[[nodiscard]] bool RunsOn(std::int16_t days, int day);
void SetRunsOn(std::int16_t& days, int day, bool on);

/// The code out of the text of a function, empty for a disabled sked.
[[nodiscard]] std::string EncodeFunction(SkedType type, std::string_view text);

}  // namespace orlin::willow
