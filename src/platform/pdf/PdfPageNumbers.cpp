// SPDX-License-Identifier: MIT
#include "platform/pdf/PdfPageNumbers.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>
#include <memory>
#include <vector>

namespace quorvantis {
namespace {

constexpr double kFontSize = 9;
constexpr double kDigitWidth = 0.556;  // of Helvetica, as a part of the font size
constexpr double kOtherWidth = 0.278;  // of its blank and its slash

/// The name of our font in the resources of a page; the browser's are "F" and a number.
constexpr const char* kFontName = "/Qv";

std::string Decimal(double value) {
  const auto tenths = static_cast<long>(value * 10);
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

double WidthOf(std::string_view digits) {
  double width = 0;
  for (const char c : digits) width += c >= '0' && c <= '9' ? kDigitWidth : kOtherWidth;
  return width * kFontSize;
}

/// As an artifact: it is no part of what the page says.
std::string Stamp(const std::string& number, double left, double bottom) {
  return "\nQ\n/Artifact BMC\nq\nBT\n" + std::string(kFontName) + " " + Decimal(kFontSize) + " Tf\n" +
         Decimal(left) + " " + Decimal(bottom) + " Td\n(" + number + ") Tj\nET\nQ\nEMC\n";
}

void Open(QPDF& pdf, std::string_view bytes) {
  pdf.setSuppressWarnings(true);
  pdf.processMemoryFile("", bytes.data(), bytes.size());
}

/// Makes the font known to a page. Pages may share their resources.
void AddFont(QPDFPageObjectHelper& page, const QPDFObjectHandle& font) {
  QPDFObjectHandle resources = page.getAttribute("/Resources", true);
  if (!resources.hasKey("/Font")) resources.replaceKey("/Font", QPDFObjectHandle::newDictionary());
  resources.getKey("/Font").replaceKey(kFontName, font);
}

/// The content of the page is put between brackets, so that what it leaves behind does not move the number.
void StampPage(QPDF& pdf, QPDFPageObjectHelper& page, const std::string& number, const NumberPlace& place) {
  const double width = page.getMediaBox().getArrayAsRectangle().urx;
  const double right = width - place.fromSide - WidthOf(number);
  const double left = place.corner == NumberCorner::BottomRight ? right : place.fromSide;
  page.addPageContents(pdf.newStream("q\n"), true);
  page.addPageContents(pdf.newStream(Stamp(number, left, place.fromBottom)), false);
}

/// Without a time or a random number in it.
std::string Written(QPDF& pdf) {
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.setDeterministicID(true);
  writer.write();
  const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

}  // namespace

std::optional<int> CountPdfPages(std::string_view bytes) {
  try {
    QPDF pdf;
    Open(pdf, bytes);
    return static_cast<int>(QPDFPageDocumentHelper(pdf).getAllPages().size());
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

std::optional<std::string> WithBlankPages(std::string_view bytes, int pages) {
  try {
    QPDF pdf;
    Open(pdf, bytes);
    QPDFPageDocumentHelper document(pdf);
    std::vector<QPDFPageObjectHelper> all = document.getAllPages();
    if (all.empty()) return std::nullopt;
    QPDFObjectHandle paper = all.back().getMediaBox(true);
    for (auto count = static_cast<int>(all.size()); count < pages; ++count) {
      QPDFObjectHandle blank = QPDFObjectHandle::parse("<< /Type /Page /Resources << >> >>");
      blank.replaceKey("/MediaBox", paper.shallowCopy());
      blank.replaceKey("/Contents", pdf.newStream(""));
      document.addPage(QPDFPageObjectHelper(pdf.makeIndirectObject(blank)), false);
    }
    return Written(pdf);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

std::optional<std::string> WithPageNumbers(std::string_view bytes, const NumberPlace& place) {
  try {
    QPDF pdf;
    Open(pdf, bytes);
    const QPDFObjectHandle font = pdf.makeIndirectObject(QPDFObjectHandle::parse(
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>"));
    std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
    const std::string count = std::to_string(pages.size());
    int number = 0;
    for (QPDFPageObjectHelper& page : pages) {
      AddFont(page, font);
      StampPage(pdf, page, std::to_string(++number) + " / " + count, place);
    }
    return Written(pdf);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace quorvantis
