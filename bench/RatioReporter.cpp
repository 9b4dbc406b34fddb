// SPDX-License-Identifier: MIT
#include "RatioReporter.h"

#include "BenchArguments.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iomanip>
#include <iostream>

namespace quorvantis::bench {
namespace {

std::string Rounded(double value, int digits) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.*f", digits, value);
  return text.data();
}

}  // namespace

bool RatioReporter::ReportContext(const Context& context) {
  return rowsOnly_ || ConsoleReporter::ReportContext(context);
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  if (!rowsOnly_) ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration) continue;
    if (run.error_occurred) std::cerr << run.benchmark_name() << ": " << run.error_message << "\n";
    if (run.error_occurred) continue;
    milliseconds_[run.run_name.function_name].push_back(run.real_accumulated_time * 1000.0 /
                                                        static_cast<double>(run.iterations));
  }
}

double RatioReporter::Median(const std::string& name) const {
  const auto found = milliseconds_.find(name);
  if (found == milliseconds_.end()) return 0;
  std::vector<double> sorted = found->second;
  std::ranges::sort(sorted);
  return sorted[sorted.size() / 2];
}

void RatioReporter::Finalize() {
  for (const Comparison& row : comparisons_) {
    const double ours = Median(row.ours);
    const double peer = Median(row.peer);
    if (ours == 0 || peer == 0) continue;
    const double result = row.measure == Measure::Ratio    ? ours / peer
                          : row.measure == Measure::Beyond ? ours - peer
                                                           : ours;
    const char* unit = row.measure == Measure::Ratio ? "" : " ms";
    PrintRow(row.what, Rounded(ours, 2), Rounded(peer, 2), Rounded(result, 2) + unit,
             row.wanted ? "< " + Rounded(*row.wanted, 1) + unit : std::string());
  }
}

void RegisterTimed(const std::string& name, const std::function<void(benchmark::State&)>& run) {
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Unit(benchmark::kMillisecond)
      ->MinTime(0.1)
      ->Repetitions(9);
}

void RunComparisons(int argumentCount, char** arguments, std::vector<Comparison> comparisons) {
  const bool rowsOnly = TakeFlag(argumentCount, arguments, "--rows");
  benchmark::Initialize(&argumentCount, arguments);
  RatioReporter reporter(std::move(comparisons), rowsOnly);
  benchmark::RunSpecifiedBenchmarks(&reporter);
}

void PrintRow(const std::string& what, const std::string& ours, const std::string& peer,
              const std::string& result, const std::string& wanted) {
  std::cout << std::left << std::setw(54) << what << std::right << std::setw(10) << ours << std::setw(10)
            << peer << std::setw(11) << result << std::setw(12) << wanted << std::endl;
}

}  // namespace quorvantis::bench
