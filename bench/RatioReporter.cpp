// SPDX-License-Identifier: MIT
#include "RatioReporter.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace quorvantis::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
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
  std::cout << "\n"
            << std::left << std::setw(44) << "median of wall time" << std::right << std::setw(12)
            << "ours, ms" << std::setw(12) << "peer, ms" << std::setw(9) << "ratio" << std::setw(10)
            << "wanted\n";
  for (const Comparison& row : comparisons_) {
    const double ours = Median(row.ours);
    const double peer = Median(row.peer);
    if (ours == 0 || peer == 0) continue;
    std::cout << std::left << std::setw(44) << row.what << std::right << std::fixed << std::setprecision(2)
              << std::setw(12) << ours << std::setw(12) << peer << std::setw(9)
              << (row.beyond ? ours - peer : ours / peer) << std::setw(7) << "< " << std::setprecision(1)
              << row.wanted << (row.beyond ? " ms beyond" : "") << "\n";
  }
}

}  // namespace quorvantis::bench
