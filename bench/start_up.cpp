// SPDX-License-Identifier: MIT
// Starting the command line, compared with starting a program that does nothing.
#include "BenchArguments.h"
#include "RatioReporter.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace quorvantis;

void Start(benchmark::State& state, const std::string& command) {
  const std::string quiet = command + " >/dev/null";
  for (auto _ : state) {
    if (std::system(quiet.c_str()) != 0) state.SkipWithError("failed");  // NOLINT(concurrency-mt-unsafe)
  }
}

void Register(const std::string& name, const std::string& command) {
  benchmark::RegisterBenchmark(name.c_str(), Start, command)
      ->UseRealTime()
      ->Repetitions(9)
      ->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const auto program = bench::TakeArgument(argumentCount, arguments, "--program=").value_or("quorvantis-cli");
  const auto exam = bench::TakeArgument(argumentCount, arguments, "--exam=").value_or("sample.exm");
  Register("true", "/bin/true");
  Register("version", "'" + program + "' --version");
  Register("show", "'" + program + "' show '" + exam + "'");
  bench::RunComparisons(
      argumentCount, arguments,
      {{"quorvantis-cli --version / true", "version", "true", 15.0, bench::Measure::Milliseconds},
       {"quorvantis-cli show of the sample / true", "show", "true", 60.0, bench::Measure::Milliseconds}});
  return 0;
}
