// SPDX-License-Identifier: MIT
#include "versions/VersionSheets.h"

#include "text/PathText.h"
#include "text/Utf.h"
#include "versions/VersionFiles.h"

#include <algorithm>
#include <cstddef>
#include <system_error>
#include <utility>
#include <vector>

namespace quorvantis {
namespace {

std::vector<PaperJob> JobsFor(const std::filesystem::path& folder, const PlanRecord& record) {
  std::vector<PaperJob> jobs;
  for (std::size_t i = 0; i < record.plan.versions.size(); ++i) {
    const std::u16string& name = record.plan.versions[i].name;
    for (const Sheet sheet : kVersionSheets)
      jobs.push_back({folder / TextToPath(ExamFileOf(name)), folder / TextToPath(SheetFileOf(name, sheet)),
                      sheet, name, Utf8ToUtf16(record.codes[i])});
  }
  return jobs;
}

/// The papers that are shorter than the longest, to be printed again with as many pages.
std::vector<PaperJob> ShortPapers(const std::vector<PaperJob>& jobs, PaperPrinter& printer) {
  std::vector<std::pair<PaperJob, int>> papers;
  int most = 0;
  for (const PaperJob& job : jobs) {
    if (job.sheet != Sheet::Paper) continue;
    papers.emplace_back(job, printer.PageCount(job.target).value_or(0));
    most = std::max(most, papers.back().second);
  }
  std::vector<PaperJob> again;
  for (auto& [job, pages] : papers) {
    if (pages == most) continue;
    job.pages = most;
    again.push_back(std::move(job));
  }
  return again;
}

}  // namespace

std::optional<std::string> PrintSheets(const std::filesystem::path& folder, const PlanRecord& record,
                                       PaperPrinter& printer, Progress& progress) {
  const std::vector<PaperJob> jobs = JobsFor(folder, record);
  std::optional<std::string> problem = printer.Print(jobs, progress);
  // Blank pages may move what is before them, so a filled paper can become the longest.
  constexpr int kRounds = 3;
  for (int round = 0; round < kRounds && !problem; ++round) {
    const std::vector<PaperJob> again = ShortPapers(jobs, printer);
    if (again.empty()) break;
    problem = printer.Print(again, progress);
  }
  std::error_code ignored;
  for (const PaperJob& job : jobs) {
    if (problem) std::filesystem::remove(job.target, ignored);
  }
  return problem;
}

}  // namespace quorvantis
