// SPDX-License-Identifier: MIT
#include "platform/programs/OfficeConverter.h"

#include "platform/posix/PrivateFolder.h"
#include "platform/programs/ChildProgram.h"
#include "platform/programs/OfficeProfile.h"
#include "platform/programs/PageImages.h"

#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

bool IsThere(const fs::path& file) {
  std::error_code error;
  return fs::is_regular_file(file, error) && fs::file_size(file, error) > 0;
}

}  // namespace

OfficePrograms OfficePrograms::Find() {
  return {FindProgram("soffice"), FindProgram("pdftoppm")};
}

OfficeConverter::OfficeConverter(OfficePrograms programs, std::function<bool()> isCancelled)
    : programs_(std::move(programs)), isCancelled_(std::move(isCancelled)) {}

WordResult OfficeConverter::Convert(const OfficeJob& job) const {
  const PrivateFolder profile;
  WriteOfficeProfile(profile.Path());
  const fs::path result = fs::path(job.input).replace_extension(job.format);
  const std::string format = job.format + (job.exportFilter.empty() ? "" : ":" + job.exportFilter);
  for (const std::string& filter : job.filters) {
    const WordResult run =
        Run(programs_.office, OfficeArguments(profile.Path(), filter, format, job.input), profile.Path());
    // The exit code is success even if nothing could be read; only the output file tells.
    if (IsThere(result)) return WordResult::Done;
    if (run != WordResult::Done && run != WordResult::Damaged) return run;
  }
  return WordResult::Damaged;
}

WordResult OfficeConverter::DrawPages(const fs::path& pdf, int dotsPerInch) const {
  const fs::path folder = pdf.parent_path();
  return Run(programs_.pdfImages, PageImageArguments(pdf, folder, dotsPerInch), folder);
}

WordResult OfficeConverter::Run(const fs::path& program, std::vector<std::string> arguments,
                                const fs::path& temporaryFolder) const {
  if (program.empty()) return WordResult::WordProcessorMissing;
  switch (RunChildProgram({program, std::move(arguments), temporaryFolder}, programs_.limit, isCancelled_)) {
    case ChildEnd::Succeeded:
      return WordResult::Done;
    case ChildEnd::NotStarted:
      return WordResult::WordProcessorMissing;
    case ChildEnd::TimedOut:
      return WordResult::TimedOut;
    case ChildEnd::Cancelled:
      return WordResult::Cancelled;
    case ChildEnd::Failed:
      break;
  }
  return WordResult::Damaged;
}

}  // namespace quorvantis
