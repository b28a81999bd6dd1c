#include "schedules/willow_sked_code.h"

#include <array>

#include "frame/services/services.h"
#include "frame/values/conversions.h"

namespace orlin::willow {
namespace {

// Row 0 is every month; February has its longest length in every year.
constexpr std::array<int, 13> kDaysInMonth = {31, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool IsNumber(const Value& value, double number) { return IsNumeric(value) && ToDouble(value) == number; }

std::int16_t DecodeDatePart(const std::string& part) { return part == kEvery ? 0 : ToInteger(NumericValue(part)); }

std::string EncodeDatePart(int row) { return row == 0 ? kEvery : TwoDigits(row); }

}  // namespace

SkedType DecodeType(const Value& skedType) {
  if (IsNumber(skedType, 1)) return SkedType::ByDate;
  if (IsNumber(skedType, 2)) return SkedType::ByDayOfWeek;
  return SkedType::Disabled;
}

bool DecodeTimeEdit(const Value& timeEdit) { return IsNumber(timeEdit, 1); }

std::string ShownNumber(std::int32_t skedNo) { return std::to_string(skedNo / 16 + 1) + TwoDigits(skedNo % 16 + 1); }

Time DecodeTime(const std::string& skedTime) {
  if (skedTime.empty()) return {};
  return {Mid(skedTime, 1, 2), Mid(skedTime, 4, 2)};
}

std::string EncodeTime(const Time& time) { return WithLeadingZero(time.Hour) + ":" + WithLeadingZero(time.Minute); }

Date DecodeDate(const Value& skedData) {
  const auto* text = skedData.Get<std::string>();
  if (text == nullptr || text->empty() || *text == "00/00") return {};
  return {DecodeDatePart(Mid(*text, 1, 2)), DecodeDatePart(Mid(*text, 4, 2))};
}

std::string EncodeDate(const Date& date) { return EncodeDatePart(date.Month) + "/" + EncodeDatePart(date.Day); }

int DaysInMonth(int month) { return kDaysInMonth.at(static_cast<std::size_t>(month)); }

bool RunsOn(std::int16_t days, int day) { return CurrentBits().BitGet0(days, day) != 0; }

void SetRunsOn(std::int16_t& days, int day, bool on) { CurrentBits().BitPack0(days, day, 1, on ? 1 : 0); }

std::string EncodeFunction(SkedType type, std::string_view text) {
  return type == SkedType::Disabled ? std::string() : Left(text, 3);
}

}  // namespace orlin::willow
