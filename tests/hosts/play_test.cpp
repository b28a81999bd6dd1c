#include <stdexcept>
#include <string>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "app/usage/usage_error.h"
#include "support/dialog_test.h"

namespace orlin::testing {
namespace {

DialogRun PlayWillow(const std::string& script, const PlayOptions& options = {}) {
  return Play("clsZoneFunctionsWillow", {"ZoneNum=5", R"(ZoneCode="4000")"}, script, options);
}

// 2 as the first digit does not go with 3 as the second, which a message tells.
constexpr const char* kRefusedPairing = "select cmbDigit(0) 1\nselect cmbDigit(1) 2\nclick cmdOK\n";

TEST(Play, ReturnsWhatTheCallReturned) {
  const auto run = PlayWillow("dump\nselect cmbDigit(3) 7\ndump\nclick cmdOK");
  EXPECT_EQ(run.Result, 0);
  EXPECT_EQ(run.Argument("ZoneNum"), Integer(5));
  EXPECT_EQ(run.Argument("ZoneCode"), "5118");
  EXPECT_EQ(run.Control("cmbDigit(3)", 0).at("listIndex"), 0);
  EXPECT_EQ(run.Control("cmbDigit(3)").at("listIndex"), 7);
  EXPECT_EQ(run.Control("lblZoneCode").at("caption"), "5118");
  EXPECT_EQ(run.Focus(0), "cmbDigit(0)");
  EXPECT_EQ(run.Focus(), "cmbDigit(3)");
}

TEST(Play, StandsOnWhatItIsTold) {
  PlayOptions options;
  options.Catalogue = "1784\tKeine 1\n262\tFalsch\n";
  const auto run = PlayWillow("answer 1\n" + std::string(kRefusedPairing), options);
  EXPECT_EQ(run.Result, 1);
  EXPECT_EQ(run.Fields("message", "text"), std::vector<Json>{"Keine 1"});
  EXPECT_EQ(run.Fields("message", "title"), std::vector<Json>{"Falsch"});

  options.Levels = {"AuthorityLevel=1,1", "Type=2,1"};
  options.Objects = {{"vName", Value("Zone 7")}};
  EXPECT_EQ(Play("clsZoneFunctionsBirch", {}, "dump", options).Control("cmbType").at("visible"), false);
}

TEST(Play, FailsOnWhatTheTestDoesNotExpect) {
  EXPECT_NONFATAL_FAILURE(PlayWillow(kRefusedPairing), "nobody expected");
  EXPECT_NONFATAL_FAILURE(PlayWillow("answer 1"), "no message came");
  EXPECT_NONFATAL_FAILURE(PlayWillow("click cmdNone"), "no control named cmdNone");
  PlayOptions options;
  options.MayRefuse = true;
  EXPECT_EQ(PlayWillow("click cmdNone", options).Fields("refused", "line"), std::vector<Json>{1});
  EXPECT_THROW(Play("clsNone", {}, ""), std::invalid_argument);
  EXPECT_THROW(Play("clsZoneFunctionsWillow", {"Zone=5"}, ""), UsageError);
}

}  // namespace
}  // namespace orlin::testing
