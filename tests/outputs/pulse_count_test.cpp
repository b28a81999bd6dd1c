#include "outputs_test.h"

namespace orlin::testing {
namespace {

Json Counts() {
  Json counts{Text(1468, "INTERVAL", "4"), Text(1468, "INTERVAL", "16")};
  for (int count = 2; count <= 15; ++count) counts.push_back(Text(1470, "COUNT", std::to_string(count)));
  return counts;
}

/// The times for a position in the list of counts.
Json Times(int position) {
  if (position == 0) return {Text(1472, "INTERVAL", "4")};
  if (position == 1) return {Text(1472, "INTERVAL", "16")};
  if (position < 0) return {Text(1489)};
  Json times = Json::array();
  for (std::int16_t number = 1473; number <= 1488; ++number) {
    times.push_back(Text(number, "INTERVAL", number <= 1480 ? "4" : "16"));
  }
  return times;
}

TEST(PulseCount, FirstTwoCountsAreStoredTheOtherWayRoundAndTimesFollow) {
  const struct {
    std::string Count, Time, Picks;
    int Position, TimeRow, After;
  } cases[] = {{"0", "7", "", 1, 0, 0},      {"1", "-1", "", 0, 0, 1},        {"2", "9", "", 2, 9, 2},
               {"15", "15", "", 15, 15, 15}, {"\"2\"", "\"0\"", "", 2, 0, 2}, {"2", "16", "", 2, -1, 2},
               {"16", "0", "", -1, 0, -1},   {"16", "3", "", -1, -1, -1},     {"-1", "0", "", -1, 0, -1},
               {"5", "12", "9", 9, 12, 9},   {"5", "12", "1", 1, 0, 0},       {"5", "12", "05", 5, 0, 5},
               {"16", "3", "2", 2, -1, 2}};
  for (const auto* model : {"Pine", "Spruce"}) {
    for (const auto& [count, time, picks, position, timeRow, after] : cases) {
      std::string script;
      for (const char row : picks) script += std::string("select cbPulseCount ") + row + "\n";
      const auto run = Open(Pulses(count, time, model), script + "dump\nclick cmdOK");
      EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Zone 3"));
      EXPECT_EQ(Seen(run, "cbPulseCount", {"list", "listIndex"}), (Json{Counts(), position}));
      EXPECT_EQ(Seen(run, "cbPulseCountTime", {"list", "listIndex"}), (Json{Times(position), timeRow}));
      EXPECT_EQ(Back(run, {"vPulseCount", "vPulseCountTime", "vInterval1", "vInterval2"}),
                (Values{Integer(after), Integer(timeRow), "4", Integer(16)}));
    }
  }
}

}  // namespace
}  // namespace orlin::testing
