// SPDX-License-Identifier: MIT
#include "versions/make/VersionSheets.h"

#include "text/PathText.h"
#include "text/Utf.h"
#include "versions/folder/VersionFiles.h"

#include <cstddef>
#include <system_error>
#include <vector>

namespace quorvantis {
namespace {

std::vector<PaperJob> JobsFor(const std::filesystem::path& folder, const PlanRecord& record) {
  std::vector<PaperJob> jobs;
  for (std::size_t i = 0; i < record.plan.versions.size(); ++i) {
    const std::u16string& name = record.plan.versions[i].name;
    for (const Sheet sheet : kVersionSheets)
      jobs.push_back({folder / TextToPath(ExamFileOf(name)), folder / TextToPath(SheetFileOf(name, sheet)),
                      sheet, name, Utf8ToUtf16(record.codes[i]), false, sheet == Sheet::Paper});
  }
  return jobs;
}

}  // namespace

std::optional<std::string> PrintSheets(const std::filesystem::path& folder, const PlanRecord& record,
                                       PaperPrinter& printer, Progress& progress) {
  const std::vector<PaperJob> jobs = JobsFor(folder, record);
  const std::optional<std::string> problem = printer.Print(jobs, progress);
  std::error_code ignored;
  for (const PaperJob& job : jobs) {
    if (problem) std::filesystem::remove(job.target, ignored);
  }
  return problem;
}

}  // namespace quorvantis
