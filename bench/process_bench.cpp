#include <array>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

// One whole run of the command, from the start of the process to its end.

namespace {

void Run(benchmark::State& state, std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (auto& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  std::array<char*, 1> environment = {nullptr};
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
  for ([[maybe_unused]] auto step : state) {
    pid_t child = 0;
    int status = 1;
    if (posix_spawn(&child, arguments[0], &files, nullptr, arguments.data(), environment.data()) != 0 ||
        waitpid(child, &status, 0) != child || status != 0) {
      state.SkipWithError("the command failed");
    }
  }
  posix_spawn_file_actions_destroy(&files);
}

void EditZoneCode(benchmark::State& state) {
  Run(state, {ORLIN_HOST, "edit", "clsZoneFunctionsWillow", "ZoneNum=5", "ZoneCode=\"4000\"", "--script",
              ORLIN_EXAMPLES "/zone.script"});
}
BENCHMARK(EditZoneCode)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
