// SPDX-License-Identifier: MIT
#include "preview/SheetsOnPrinter.h"

#include "platform/convert/ConverterPrograms.h"
#include "platform/convert/Later.h"
#include "platform/convert/ProgramRun.h"
#include "platform/programs/PageImages.h"
#include "preview/SheetLayout.h"

#include <QFile>
#include <QImage>
#include <QPageRanges>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::chrono::minutes kLongestDrawingOfSheets{10};

std::vector<std::filesystem::path> ChosenPages(const QPrinter& printer,
                                               const std::vector<std::filesystem::path>& pages) {
  const QPageRanges ranges = printer.pageRanges();
  std::vector<std::filesystem::path> chosen;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (ranges.isEmpty() || ranges.contains(static_cast<int>(i) + 1)) chosen.push_back(pages[i]);
  }
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(chosen);
  const std::size_t once = chosen.size();
  const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
  for (int i = 1; i < copies; ++i) {
    for (std::size_t page = 0; page < once; ++page) chosen.push_back(chosen[page]);
  }
  return chosen;
}

}  // namespace

bool SheetsOnPrinter::IsPossible() {
  return !ConverterPrograms::Find().pdfImages.isEmpty();
}

std::filesystem::path SheetsOnPrinter::Draft() const {
  return QFile::encodeName(folder_.filePath("sheets.pdf")).toStdString();
}

void SheetsOnPrinter::Print(bool isRightToLeft, Done done) {
  if (!NumberSheets(Draft(), isRightToLeft))
    return Later(*this, {}, [done = std::move(done)] { done(false); });
  const std::filesystem::path folder = Draft().parent_path();
  const QStringList arguments = ProgramArguments(PageImageArguments(Draft(), folder, printer_.resolution()));
  const ProgramOrder order{ConverterPrograms::Find().pdfImages, arguments, kLongestDrawingOfSheets};
  RunProgram(*this, order, [this, folder, done = std::move(done)](bool succeeded, const QByteArray&) {
    done(succeeded && Paint(printer_, DrawnPages(folder)));
  });
}

bool SheetsOnPrinter::Paint(QPrinter& printer, const std::vector<std::filesystem::path>& pages) {
  printer.setFullPage(true);
  const std::vector<std::filesystem::path> chosen = ChosenPages(printer, pages);
  QPainter painter;
  if (chosen.empty() || !painter.begin(&printer)) return false;
  const QRectF paper({}, printer.paperRect(QPrinter::DevicePixel).size());
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    if (i > 0 && !printer.newPage()) return false;
    const QImage picture(QFile::decodeName(chosen[i].c_str()));
    if (picture.isNull()) return false;
    painter.drawImage(paper, picture);
  }
  return painter.end();
}

}  // namespace quorvantis
