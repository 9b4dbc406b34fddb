// SPDX-License-Identifier: MIT
#include "platform/convert/DocumentImages.h"

#include "platform/convert/Later.h"
#include "platform/convert/OfficeFilters.h"
#include "platform/convert/ProgramRun.h"
#include "platform/programs/OfficeProfile.h"

#include <QFile>
#include <QUrl>

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr int kDotsPerInch = 120;  // sharp on the screen, legible on paper
constexpr qint64 kHeadBytes = 8;
constexpr int kLanes = 2;
constexpr std::chrono::seconds kLongestConversion{30};
constexpr std::chrono::seconds kLongestDrawing{60};

QByteArray Head(const fs::path& file) {
  QFile in(file);
  return in.open(QIODevice::ReadOnly) ? in.read(kHeadBytes) : QByteArray();
}

fs::path PdfOf(const fs::path& folder) {
  return folder / "document.pdf";
}

bool IsFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

/// pdftoppm pads the page numbers to one width, so the order of the names is that of the pages.
std::vector<fs::path> PagesIn(const fs::path& folder) {
  std::vector<fs::path> pages;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (entry.path().extension() == ".png") pages.push_back(entry.path());
  }
  std::sort(pages.begin(), pages.end());
  return pages;
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
  const QByteArray head = Head(job->document);
  if (job->extension == "pdf") {
    return head.startsWith("%PDF") ? DrawPages(job, job->document) : job->done({});
  }
  job->filters = ImportFilters(job->extension, head);
  if (programs_.office.isEmpty() || job->filters.isEmpty()) return job->done({});
  office_.Add([this, job](int lane) {
    // LibreOffice fails on some names. Through a link it reads the original and leaves nothing beside it.
    std::error_code error;
    fs::create_symlink(job->document, job->folder / ("document." + job->extension.toStdString()), error);
    if (error) job->filters.clear();
    TryNextFilter(job, lane);
  });
}

void DocumentImages::TryNextFilter(const SharedJob& job, int lane) {
  if (job->filters.isEmpty()) return LeaveOffice(job, lane);
  WriteOfficeProfile(Profile(lane));
  const QString filter = job->filters.takeFirst();
  const QStringList arguments{
      "-env:UserInstallation=" + QUrl::fromLocalFile(FileArgument(Profile(lane))).toString(),
      "--headless",
      "--norestore",
      "--infilter=" + filter,
      "--convert-to",
      "pdf",
      "--outdir",
      FileArgument(job->folder),
      FileArgument(job->folder / "document.") + job->extension};
  const ProgramOrder order{programs_.office, arguments, kLongestConversion, {}, FileArgument(job->folder)};
  RunProgram(*this, order, [this, job, lane](bool ended, const QByteArray&) {
    // One that hung or crashed would do so again. The exit code says success even where nothing could be
    // read; only the file tells.
    if (!ended || IsFile(PdfOf(job->folder))) job->filters.clear();
    TryNextFilter(job, lane);
  });
}

/// The next document need not wait for the pictures of this one.
void DocumentImages::LeaveOffice(const SharedJob& job, int lane) {
  office_.Leave(lane);
  const fs::path pdf = PdfOf(job->folder);
  IsFile(pdf) ? DrawPages(job, pdf) : job->done({});
}

void DocumentImages::DrawPages(const SharedJob& job, const fs::path& pdf) {
  const QStringList arguments{"-png",
                              "-r",
                              QString::number(kDotsPerInch),
                              "-l",
                              QString::number(kMostPages),
                              FileArgument(pdf),
                              FileArgument(job->folder / "page")};
  drawing_.Add([this, job, order = ProgramOrder{programs_.pdfImages, arguments, kLongestDrawing}](int lane) {
    RunProgram(*this, order, [this, job, lane](bool ended, const QByteArray&) {
      drawing_.Leave(lane);
      std::vector<fs::path> pages = PagesIn(job->folder);
      if (!ended && !pages.empty()) pages.pop_back();  // the one that was being drawn
      job->done(pages);
    });
  });
}

fs::path DocumentImages::Profile(int lane) const {
  return folder_ / std::to_string(lane);
}

}  // namespace quorvantis
