// SPDX-License-Identifier: MIT
#include "pdf/PaperWork.h"

#include "examfile/ExamFileReader.h"
#include "platform/WholeFile.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "preview/PreviewSetup.h"
#include "preview/SheetLayout.h"
#include "render/sheets/ReadingDirection.h"
#include "render/sheets/SheetPages.h"
#include "shell/language/LanguageId.h"
#include "shell/language/LanguageList.h"

#include <QCoreApplication>
#include <QFontDatabase>

#include <algorithm>
#include <iostream>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kBetweenSigns{5};

/// Null, for the built-in texts, if there is none.
std::unique_ptr<LanguageLibrary> LoadLanguageOf(const PaperOrder& order) {
  const fs::path beside = ExecutableFolder();
  const fs::path& own = order.applicationFolder.empty() ? beside : order.applicationFolder;
  DynamicLanguageLibraries libraries;
  std::error_code error;
  const LanguageList list = ScanLanguageLibraries(LanguageFolder(own, beside), libraries, error);
  const auto index = list.IndexOf(order.languageId);
  return index ? libraries.Load(list.languageFiles[*index]) : nullptr;
}

/// A line for the program that has started this one.
void Tell(std::string line) {
  std::ranges::replace(line, '\n', ' ');
  std::cout << line << std::endl;
}

}  // namespace

PaperWork::PaperWork(PaperOrder order)
    : order_(std::move(order)),
      host_(order_.folder, order_.languageId, false, {language_, dialogs_, progress_, longAnswerFlags_}) {
  if (order_.languageId != 0) language_.Use(LoadLanguageOf(order_));
  browser_ =
      std::make_unique<SheetBrowser>(SetUpGateway(order_.folder, host_.Services().strings, host_.Pages()));
  connect(browser_.get(), &SheetBrowser::Printed, this, &PaperWork::Finish);
  connect(&signs_, &QTimer::timeout, this, [this] {
    if (browser_->IsConverting()) Tell(std::string(kJobGoesOn));
  });
  signs_.start(kBetweenSigns);
}

PaperWork::~PaperWork() = default;

/// Without a font, the browser crashes.
void PaperWork::Begin() {
  if (QFontDatabase::families().isEmpty())
    return Fail("there are no fonts to print with; install some, for example fonts-dejavu-core");
  Next();
}

void PaperWork::Next() {
  if (next_ < order_.jobs.size()) return Start(order_.jobs[next_++]);
  if (DeliverFilledUp()) QCoreApplication::exit(0);
}

void PaperWork::Start(const PaperJob& job) {
  FrameSetExam exam(host_.Services());
  exam.SetHostMode(1);
  exam.ReadExamFile(job.exam);
  if (!exam.lastRead->opened) return Fail(job.exam.string() + ": cannot be opened. " + dialogs_.LastError());
  if (exam.filesNotUnpacked > 0)
    return Fail(job.exam.string() + ": its attached files could not be unpacked into " +
                order_.folder.string());
  exam.CountQuestions();
  host_.Services().pages.Clear();
  const bool languageIsRightToLeft = IsRightToLeft(order_.languageId);
  const fs::path page =
      WriteSheet(exam, {job.sheet, {job.version, job.code}, job.largePrint, languageIsRightToLeft});
  draft_ = {order_.folder / ("draft-" + std::to_string(next_) + ".pdf"), &job,
            RunsRightToLeft(exam, languageIsRightToLeft)};
  browser_->Print({page, draft_.file});
}

void PaperWork::Finish(bool succeeded) {
  if (!succeeded) return Fail(draft_.job->target.string() + ": the browser could not print the page");
  if (draft_.job->isFilledUp)
    filledUp_.push_back(draft_);
  else if (!Deliver(draft_, 0))
    return;
  Tell(std::string(kJobDone));
  Next();
}

/// Puts the file in its place, with at least so many pages.
bool PaperWork::Deliver(const Draft& draft, int pages) {
  const std::string target = draft.job->target.string();
  if (!NumberSheets(draft.file, draft.isRightToLeft, pages)) {
    Fail(target + ": " + draft.file.string() + " cannot be written");
    return false;
  }
  const std::error_code failure = CopyWholeFile(host_.Services().files, draft.file, draft.job->target);
  if (failure) Fail(target + ": cannot be written: " + failure.message());
  std::error_code ignored;
  fs::remove(draft.file, ignored);
  return !failure;
}

bool PaperWork::DeliverFilledUp() {
  int most = 0;
  for (const Draft& draft : filledUp_) most = std::max(most, CountSheets(draft.file));
  return std::ranges::all_of(filledUp_, [&](const Draft& draft) { return Deliver(draft, most); });
}

void PaperWork::Fail(const std::string& why) {
  Tell(std::string(kJobFailed) + why);
  QCoreApplication::exit(1);
}

}  // namespace quorvantis
