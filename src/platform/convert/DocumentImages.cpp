// SPDX-License-Identifier: MIT
#include "platform/convert/DocumentImages.h"

#include "platform/convert/Later.h"
#include "platform/convert/ProgramRun.h"
#include "platform/programs/ImportFilters.h"
#include "platform/programs/OfficeProfile.h"
#include "platform/programs/PageImages.h"
#include "platform/programs/TimeLimits.h"

#include <QFile>

#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kDotsPerInch = 120;  // sharp on screen, legible on paper
constexpr std::size_t kHeadBytes = 8;
constexpr int kLanes = 2;

std::string Head(const fs::path& file) {
  QFile in(file);
  return in.open(QIODevice::ReadOnly) ? in.read(kHeadBytes).toStdString() : std::string();
}

fs::path PdfOf(const fs::path& folder) {
  return folder / "document.pdf";
}

bool IsFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

}  // namespace

DocumentImages::DocumentImages(ConverterPrograms programs, fs::path folder)
    : programs_(std::move(programs)), folder_(std::move(folder)), office_(kLanes), drawing_(kLanes) {}

void DocumentImages::Make(const fs::path& document, const QString& extension, const fs::path& folder,
                          Done done) {
  auto job = std::make_shared<Job>(Job{document, extension, folder, std::move(done), {}});
  Later(*this, {}, [this, job = std::move(job)] { Begin(job); });
}

void DocumentImages::Begin(const SharedJob& job) {
  if (programs_.pdfImages.isEmpty()) return job->done({});
  const std::string head = Head(job->document);
  if (job->extension == "pdf") {
    return head.starts_with("%PDF") ? DrawPages(job, job->document) : job->done({});
  }
  job->filters = ImportFiltersOf(job->extension.toStdString(), head);
  if (programs_.office.isEmpty() || job->filters.empty()) return job->done({});
  office_.Add([this, job](int lane) {
    // LibreOffice fails on some names. Through a link it reads the original and leaves nothing beside it.
    std::error_code error;
    fs::create_symlink(job->document, LinkIn(*job), error);
    if (error) job->filters.clear();
    TryNextFilter(job, lane);
  });
}

void DocumentImages::TryNextFilter(const SharedJob& job, int lane) {
  if (job->filters.empty()) return LeaveOffice(job, lane);
  WriteOfficeProfile(Profile(lane));
  const QStringList arguments =
      ProgramArguments(OfficeArguments(Profile(lane), job->filters.front(), "pdf", LinkIn(*job)));
  job->filters.erase(job->filters.begin());
  const ProgramOrder order{programs_.office, arguments, kLongestShownDocument, {}, FileArgument(job->folder)};
  RunProgram(*this, order, [this, job, lane](bool ended, const QByteArray&) {
    // After a hang or a crash the next filter would do the same. The exit code is success even if nothing
    // could be read; only the output file tells.
    if (!ended || IsFile(PdfOf(job->folder))) job->filters.clear();
    TryNextFilter(job, lane);
  });
}

/// The next document need not wait for the page images of this one.
void DocumentImages::LeaveOffice(const SharedJob& job, int lane) {
  office_.Leave(lane);
  const fs::path pdf = PdfOf(job->folder);
  IsFile(pdf) ? DrawPages(job, pdf) : job->done({});
}

void DocumentImages::DrawPages(const SharedJob& job, const fs::path& pdf) {
  const QStringList arguments =
      ProgramArguments(PageImageArguments(pdf, job->folder, kDotsPerInch, kMostPages));
  drawing_.Add([this, job, order = ProgramOrder{programs_.pdfImages, arguments, kLongestDrawing}](int lane) {
    RunProgram(*this, order, [this, job, lane](bool ended, const QByteArray&) {
      drawing_.Leave(lane);
      std::vector<fs::path> pages = DrawnPages(job->folder);
      if (!ended && !pages.empty()) pages.pop_back();  // the page that was being drawn
      job->done(pages);
    });
  });
}

fs::path DocumentImages::LinkIn(const Job& job) {
  return job.folder / ("document." + job.extension.toStdString());
}

fs::path DocumentImages::Profile(int lane) const {
  return folder_ / std::to_string(lane);
}

}  // namespace quorvantis
