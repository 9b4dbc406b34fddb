// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis::bench {

/// What the column "result" of the table shows for a row.
enum class Measure {
  Ratio,         ///< our time divided by the peer's
  Beyond,        ///< by how many milliseconds we are slower than the peer
  Milliseconds,  ///< our time; the peer only shows what the machine can do
};

/// One of our operations and the peer that it is compared with.
struct Comparison {
  std::string what;
  std::string ours;  ///< names of two benchmarks
  std::string peer;
  std::optional<double> wanted;  ///< the upper bound that we aim for, if the peer is not just for information
  Measure measure = Measure::Ratio;
};

/// Records the times of the runs and prints each comparison of medians as a row. Also prints the runs
/// themselves, unless only the rows are wanted.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  RatioReporter(std::vector<Comparison> comparisons, bool rowsOnly)
      : comparisons_(std::move(comparisons)), rowsOnly_(rowsOnly) {}

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  double Median(const std::string& name) const;

  std::vector<Comparison> comparisons_;
  bool rowsOnly_;
  std::map<std::string, std::vector<double>> milliseconds_;
};

/// Registers an operation of the usual kind: some milliseconds long, timed nine times.
void RegisterTimed(const std::string& name, const std::function<void(benchmark::State&)>& run);

/// The main function of a benchmark program: runs what is registered and prints the comparisons. With --rows
/// only the rows are printed, so that several programs make one table.
void RunComparisons(int argumentCount, char** arguments, std::vector<Comparison> comparisons);

/// Prints a separate row. Empty texts stay blank.
void PrintRow(const std::string& what, const std::string& ours, const std::string& peer,
              const std::string& result, const std::string& wanted);

}  // namespace quorvantis::bench
