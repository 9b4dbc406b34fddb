// SPDX-License-Identifier: MIT
#include "platform/convert/DocumentImages.h"

#include "platform/convert/Later.h"
#include "platform/convert/OfficeFilters.h"
#include "platform/convert/OfficeProfile.h"
#include "platform/convert/ProgramRun.h"

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

QString Text(const fs::path& path) {
  return QFile::decodeName(path.c_str());
}

QByteArray Head(const fs::path& file) {
  QFile in(file);
  return in.open(QIODevice::ReadOnly) ? in.read(kHeadBytes) : QByteArray();
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

DocumentImages::DocumentImages(ConverterPrograms programs) : programs_(std::move(programs)) {
  WriteOfficeProfile(profile_.path().toStdString());
}

void DocumentImages::Make(const fs::path& document, const QString& extension, const fs::path& folder,
                          Done done) {
  jobs_.push_back({document, extension, folder, std::move(done), {}});
  if (jobs_.size() == 1) StartNext();
}

void DocumentImages::StartNext() {
  Later(*this, {}, [this] { Begin(); });
}

void DocumentImages::Begin() {
  Job& job = jobs_.front();
  if (programs_.pdfImages.isEmpty()) return Finish({});
  const QByteArray head = Head(job.document);
  if (job.extension == "pdf") {
    return head.startsWith("%PDF") ? DrawPages(job.document) : Finish({});
  }
  job.filters = ImportFilters(job.extension, head);
  // A copy with a plain name: LibreOffice fails on some names and leaves lock files beside the original.
  std::error_code error;
  fs::copy_file(job.document, job.folder / ("document." + job.extension.toStdString()), error);
  if (error) return Finish({});
  TryNextFilter();
}

void DocumentImages::TryNextFilter() {
  Job& job = jobs_.front();
  if (programs_.office.isEmpty() || job.filters.isEmpty()) return Finish({});
  const QString filter = job.filters.takeFirst();
  const QStringList arguments{"-env:UserInstallation=" + QUrl::fromLocalFile(profile_.path()).toString(),
                              "--headless",
                              "--norestore",
                              "--infilter=" + filter,
                              "--convert-to",
                              "pdf",
                              "--outdir",
                              Text(job.folder),
                              Text(job.folder / "document.") + job.extension};
  RunProgram(*this, {programs_.office, arguments}, [this](bool, const QByteArray&) {
    // The exit code says success even where nothing could be read; only the file tells.
    const fs::path pdf = jobs_.front().folder / "document.pdf";
    std::error_code error;
    fs::exists(pdf, error) ? DrawPages(pdf) : TryNextFilter();
  });
}

void DocumentImages::DrawPages(const fs::path& pdf) {
  const fs::path folder = jobs_.front().folder;
  const QStringList arguments{"-png",
                              "-r",
                              QString::number(kDotsPerInch),
                              "-l",
                              QString::number(kMostPages),
                              Text(pdf),
                              Text(folder / "page")};
  RunProgram(*this, {programs_.pdfImages, arguments},
             [this, folder](bool, const QByteArray&) { Finish(PagesIn(folder)); });
}

void DocumentImages::Finish(const std::vector<fs::path>& pages) {
  const Job job = std::move(jobs_.front());
  jobs_.pop_front();
  if (!jobs_.empty()) StartNext();
  job.done(pages);
}

}  // namespace quorvantis
