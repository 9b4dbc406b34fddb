// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis::bench {

/// What a row of the table tells in its column "result".
enum class Measure {
  Ratio,         ///< our time by the peer's
  Beyond,        ///< the milliseconds that we take more than the peer
  Milliseconds,  ///< our time; the peer only shows what the machine does
};

/// Something of ours beside the peer that it is measured against.
struct Comparison {
  std::string what;
  std::string ours;  ///< names of two benchmarks
  std::string peer;
  std::optional<double> wanted;  ///< what we aim to stay below; nothing where the peer only shows what can be
  Measure measure = Measure::Ratio;
};

/// Keeps the times of the runs and prints each comparison of their medians as a row. Prints the runs
/// themselves too, unless only the rows are wanted.
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

/// The program of a benchmark: runs what is registered and prints the comparisons. With --rows the rows are
/// all that is printed, so that several programs make one table.
void RunComparisons(int argumentCount, char** arguments, std::vector<Comparison> comparisons);

/// Prints a row of its own. Empty texts stay blank.
void PrintRow(const std::string& what, const std::string& ours, const std::string& peer,
              const std::string& result, const std::string& wanted);

}  // namespace quorvantis::bench
