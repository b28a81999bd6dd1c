#include <cstdlib>
#include <locale>

#include <gtest/gtest.h>

#include "clock/locale_clock.h"

namespace orlin::testing {
namespace {

TEST(LocaleClock, StandsStillWhereItIsToldAndKnowsEveryEnvironment) {
  LocaleClock clock(ParseMoment("2024-02-29 23:05:59").value());
  for (const char* locale : {"C", "xx_XX.nowhere"}) {
    ASSERT_EQ(setenv("LC_ALL", locale, 1), 0);
    EXPECT_EQ(clock.Date(), "02/29/24");
    EXPECT_EQ(clock.Time(), "23:05:59");
    EXPECT_EQ(clock.DateAndTime(), "02/29/24 23:05:59");
    EXPECT_EQ(std::locale(), std::locale::classic());
  }
}

TEST(LocaleClock, TellsTheLocalTime) {
  ASSERT_EQ(setenv("LC_ALL", "C", 1), 0);
  const auto now = [] {
    const std::time_t seconds = std::time(nullptr);
    char text[32];
    std::strftime(text, sizeof text, "%m/%d/%y %H:%M:%S", std::localtime(&seconds));
    return std::string(text);
  };
  const auto before = now();
  const auto told = LocaleClock().DateAndTime();
  EXPECT_TRUE(told == before || told == now()) << told;
}

TEST(ParseMoment, TakesRealMomentsOnly) {
  const auto moment = ParseMoment("2024-12-31 23:59:59").value();
  EXPECT_EQ(moment.tm_wday, 2);
  EXPECT_EQ(moment.tm_yday, 365);
  for (const char* text :
       {"", "2025-02-29 00:00:00", "2025-02-30 00:00:00", "2025-00-01 00:00:00", "2025-13-01 00:00:00",
        "2025-01-00 00:00:00", "2025-04-31 00:00:00", "2025-01-01 24:00:00", "2025-01-01 00:60:00",
        "2025-01-01 00:00:60", "2025-01-01", "2025-01-01T00:00:00", "2025-1-01 00:00:00", "2025-01-01 00:00:00 ",
        " 2025-01-01 00:00:00", "2025-01-01 0a:00:00", "+025-01-01 00:00:00", "2025/01/01 00:00:00"}) {
    EXPECT_FALSE(ParseMoment(text)) << text;
  }
}

}  // namespace
}  // namespace orlin::testing
