// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace quorvantis::bench {

/// Something of ours beside the peer that it is measured against.
struct Comparison {
  std::string what;
  std::string ours;  ///< names of two benchmarks
  std::string peer;
  double wanted;        ///< what we aim to stay below: a ratio,
  bool beyond = false;  ///< or milliseconds beyond the peer
};

/// Prints the usual table, and at the end each comparison as a ratio of median wall times.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  explicit RatioReporter(std::vector<Comparison> comparisons) : comparisons_(std::move(comparisons)) {}

  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  double Median(const std::string& name) const;

  std::vector<Comparison> comparisons_;
  std::map<std::string, std::vector<double>> milliseconds_;
};

}  // namespace quorvantis::bench
