#include <memory>
#include <sstream>
#include <utility>

#include <benchmark/benchmark.h>

#include "OrlinCustomDialogs/hosts/script/script_host.h"
#include "OrlinCustomDialogs/platform/standard_platform.h"
#include "OrlinCustomDialogs/public_classes.h"
#include "OrlinCustomDialogs/security_levels.h"

// One scripted `Display` inside a process: an operator picks a row and presses OK.

namespace orlin {
namespace {

void ScriptedDisplay(benchmark::State& state, const char* name, const std::vector<Value>& arguments,
                     const char* script) {
  const auto* publicClass = FindPublicClass(name);
  const auto actions = ParseScript(script);
  std::ostringstream lines;
  Trace trace(lines);
  StandardPlatformOptions options;
  for ([[maybe_unused]] auto step : state) {
    state.PauseTiming();
    lines.str({});
    options.Host = std::make_shared<ScriptHost>(actions, trace, true);
    UsePlatform(StandardPlatform(options));
    auto values = arguments;
    state.ResumeTiming();
    if (!publicClass->Confirmed(publicClass->Display(values), values))
      state.SkipWithError("the operator did not get to OK");
  }
  UsePlatform({});
}

void WillowZoneFunctions(benchmark::State& state) {
  ScriptedDisplay(state, "clsZoneFunctionsWillow", {std::int16_t{5}, "4000"}, "select cmbDigit(3) 2\nclick cmdOK\n");
}
BENCHMARK(WillowZoneFunctions)->Unit(benchmark::kMicrosecond);

void BirchZoneFunctions(benchmark::State& state) {
  ScriptedDisplay(state, "clsZoneFunctionsBirch",
                  {"Zone 7", std::int16_t{3}, std::int16_t{0}, std::int16_t{0}, std::make_shared<SecurityLevels>()},
                  "select cmbType 2\nclick cmdOK\n");
}
BENCHMARK(BirchZoneFunctions)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace orlin

BENCHMARK_MAIN();
