#include "outputs_test.h"

namespace orlin::testing {
namespace {

DialogRun Open(const std::string& count, const std::string& time, const std::string& script,
               const std::string& model = "Pine") {
  return Play("clsPulseCount_" + model,
              {"vName=Zone 3", "vInterval1=\"4\"", "vInterval2=16", "vPulseCount=" + count, "vPulseCountTime=" + time},
              script);
}

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

TEST(PulseCount, FirstTwoCountsAreStoredTheOtherWayRound) {
  const struct {
    std::string Given, GivenTime;
    int Position, TimeRow, Count;
  } cases[] = {{"0", "0", 1, 0, 0},    {"0", "7", 1, 0, 0},      {"1", "0", 0, 0, 1},         {"1", "-1", 0, 0, 1},
               {"2", "9", 2, 9, 2},    {"15", "15", 15, 15, 15}, {"\"2\"", "\"0\"", 2, 0, 2}, {"2", "16", 2, -1, 2},
               {"16", "0", -1, 0, -1}, {"16", "3", -1, -1, -1},  {"-1", "0", -1, 0, -1}};
  for (const auto* model : {"Pine", "Spruce"}) {
    for (const auto& expected : cases) {
      const auto run = Open(expected.Given, expected.GivenTime, "dump\nclick cmdOK", model);
      EXPECT_EQ(run.Events("state")[0]["caption"], Text(1192, "ITEM", "Zone 3"));
      EXPECT_EQ(Seen(run, "cbPulseCount", {"list", "listIndex"}), (Json{Counts(), expected.Position}));
      EXPECT_EQ(Seen(run, "cbPulseCountTime", {"list", "listIndex"}),
                (Json{Times(expected.Position), expected.TimeRow}));
      EXPECT_EQ(Back(run, {"vPulseCount", "vPulseCountTime", "vInterval1", "vInterval2"}),
                (Values{Integer(expected.Count), Integer(expected.TimeRow), "4", Integer(16)}));
    }
  }
}

TEST(PulseCount, TimesFollowTheCount) {
  const struct {
    std::string Count, Time, Script;
    int Position, TimeRow;
  } cases[] = {{"5", "12", "select cbPulseCount 9", 9, 12},
               {"5", "12", "select cbPulseCount 1", 1, 0},
               {"5", "12", "select cbPulseCount 0\nselect cbPulseCount 5", 5, 0},
               {"16", "3", "select cbPulseCount 2", 2, -1}};
  for (const auto& expected : cases) {
    const auto run = Open(expected.Count, expected.Time, expected.Script + "\ndump");
    EXPECT_EQ(Seen(run, "cbPulseCountTime", {"list", "listIndex"}), (Json{Times(expected.Position), expected.TimeRow}))
        << expected.Script;
  }
}

}  // namespace
}  // namespace orlin::testing
