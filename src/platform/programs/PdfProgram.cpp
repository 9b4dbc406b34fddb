// SPDX-License-Identifier: MIT
#include "platform/programs/PdfProgram.h"

#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/PrivateFolder.h"
#include "platform/programs/ChildProcess.h"
#include "platform/programs/PaperJobArguments.h"
#include "platform/programs/PopplerPdfText.h"
#include "platform/programs/TimeLimits.h"

#include <thread>
#include <unistd.h>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kProgramName = "quorvantis-pdf";

/// The program at work on some jobs, as far as it has told.
class PdfRun {
 public:
  PdfRun(const ChildOrder& order, std::size_t jobs, Progress& progress)
      : child_(ChildProcess::Start(order)), jobs_(jobs), progress_(progress) {}

  /// Returns why not all jobs were done.
  std::optional<std::string> Wait() {
    if (child_ == nullptr) return std::string(kProgramName) + " could not be started";
    for (;; std::this_thread::sleep_for(kBetweenLooksAtPrograms)) {
      const std::optional<ChildEnd> end = child_->End();
      Take(child_->ReadOutput());
      if (failure_ || (end && done_ == jobs_)) return failure_;
      if (end) return std::string(kProgramName) + " ended before the PDF file was complete";
      progress_.Wait();
      if (progress_.IsCancelled()) return "cancelled";
      if (Clock::now() > lastWord_ + kLongestSheet)
        return std::string(kProgramName) + " took too long and was stopped";
    }
  }

 private:
  void Take(const std::string& output) {
    begun_ += output;
    for (std::size_t end = 0; (end = begun_.find('\n')) != std::string::npos; begun_.erase(0, end + 1))
      TakeLine(begun_.substr(0, end));
  }

  void TakeLine(const std::string& line) {
    lastWord_ = Clock::now();
    if (line == kJobDone) progress_.Report(++done_, jobs_);
    if (line.starts_with(kJobFailed)) failure_ = line.substr(kJobFailed.size());
  }

  const std::unique_ptr<ChildProcess> child_;
  const std::size_t jobs_;
  Progress& progress_;
  std::size_t done_ = 0;
  std::string begun_;  ///< the incomplete last line
  std::optional<std::string> failure_;
  Clock::time_point lastWord_ = Clock::now();
};

PaperJob WithFullPaths(PaperJob job) {
  job.exam = fs::absolute(job.exam).lexically_normal();
  job.target = fs::absolute(job.target).lexically_normal();
  return job;
}

}  // namespace

fs::path PdfProgram::Find() {
  fs::path program = ExecutableFolder() / kProgramName;
  return ::access(program.c_str(), X_OK) == 0 ? program : fs::path();
}

std::optional<std::string> PdfProgram::Print(std::span<const PaperJob> jobs, Progress& progress) {
  if (jobs.empty()) return std::nullopt;
  if (program_.empty()) {
    return std::string(kProgramName) +
           " is not installed beside this program, which was built without the window";
  }
  try {
    return PrintIn(PrivateFolder().Path(), jobs, progress);
  } catch (const fs::filesystem_error& error) {  // no folder for temporary files
    return error.what();
  }
}

std::optional<std::string> PdfProgram::PrintIn(const fs::path& folder, std::span<const PaperJob> jobs,
                                               Progress& progress) const {
  PaperOrder paper{folder / "work", {}, languageId_, {}};
  if (!applicationFolder_.empty())
    paper.applicationFolder = fs::absolute(applicationFolder_).lexically_normal();
  fs::create_directory(paper.folder);
  for (const PaperJob& job : jobs) paper.jobs.push_back(WithFullPaths(job));
  ChildOrder order{program_, PaperArguments(paper), folder};
  order.readsOutput = true;
  order.limitsMemory = false;  // the browser reserves far more addresses than it uses
  order.lowPriority = false;   // the user waits for the file
  return PdfRun(order, jobs.size(), progress).Wait();
}

/// By the reader of texts, a program too: a library for this would make every start of this one slower.
std::optional<int> PdfProgram::PageCount(const fs::path& pdf) {
  const PdfPages text = PopplerPdfText().Read(pdf);
  return text.problem ? std::nullopt : std::optional(static_cast<int>(text.pages.size()));
}

}  // namespace quorvantis
