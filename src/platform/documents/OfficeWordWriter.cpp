// SPDX-License-Identifier: MIT
#include "platform/documents/OfficeWordWriter.h"

#include "platform/WholeFile.h"
#include "platform/documents/DocumentKind.h"
#include "platform/documents/FlatDocument.h"
#include "platform/posix/PrivateFolder.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostDocumentBytes = std::size_t{1} << 30;
constexpr std::size_t kSourceBytesOfALimit = std::size_t{1} << 20;

struct Format {
  const char* extension;
  const char* filter;  ///< LibreOffice's name for it
};

Format FormatOf(WordFormat format) {
  switch (format) {
    case WordFormat::Docx:
      return {"docx", "MS Word 2007 XML"};
    case WordFormat::Pdf:
      return {"pdf", "writer_pdf_Export"};
    case WordFormat::Doc:
      break;
  }
  return {"doc", "MS Word 97"};
}

bool IsPdf(std::string_view bytes) {
  constexpr std::size_t kTrailer = 32;
  const std::string_view end = bytes.substr(bytes.size() - std::min(bytes.size(), kTrailer));
  return bytes.starts_with("%PDF-") && end.find("%%EOF") != std::string_view::npos;
}

/// Whether LibreOffice has made the requested file.
bool Is(WordFormat format, const fs::path& file, std::string_view bytes) {
  if (format == WordFormat::Pdf) return IsPdf(bytes);
  const DocumentKindOutcome outcome = KindOfDocument(file);
  const DocumentKind wanted = format == WordFormat::Doc ? DocumentKind::Doc : DocumentKind::Docx;
  return outcome.result == WordResult::Done && outcome.kind == wanted;
}

WordWriteResult ResultOf(WordResult converted) {
  switch (converted) {
    case WordResult::Done:
      return WordWriteResult::Done;
    case WordResult::WordProcessorMissing:
      return WordWriteResult::WordProcessorMissing;
    case WordResult::TimedOut:
      return WordWriteResult::TimedOut;
    case WordResult::Cancelled:
      return WordWriteResult::Cancelled;
    default:
      return WordWriteResult::WordProcessorFailed;
  }
}

WordWriteOutcome CannotWrite(const fs::path& place, std::error_code error) {
  return {WordWriteResult::CannotWrite, place, error};
}

}  // namespace

OfficeWordWriter::OfficeWordWriter(Files& files, OfficePrograms programs)
    : files_(files), programs_(std::move(programs)) {}

/// Find out that the target cannot be written before waiting for LibreOffice.
WordWriteOutcome OfficeWordWriter::Write(const WordWriteJob& job) try {
  if (programs_.office.empty()) return {WordWriteResult::WordProcessorMissing};
  std::error_code error;
  const std::unique_ptr<PendingFile> target = files_.Replace(job.target, error);
  if (target == nullptr) return CannotWrite(job.target, error);
  const PrivateFolder folder;
  const fs::path source = folder.Path() / "exam.fodt";
  const WordWriteOutcome converted = Convert(job, source);
  if (converted.result != WordWriteResult::Done) return converted;
  const fs::path document = fs::path(source).replace_extension(FormatOf(job.format).extension);
  const auto bytes = ReadWholeFile(document, kMostDocumentBytes);
  if (!bytes || !Is(job.format, document, *bytes)) return {WordWriteResult::WordProcessorFailed};
  if (const auto failure = target->Write(std::as_bytes(std::span(*bytes))))
    return CannotWrite(job.target, failure);
  if (const auto failure = target->Commit()) return CannotWrite(job.target, failure);
  return {};
} catch (const fs::filesystem_error& failure) {
  return CannotWrite(failure.path1(), failure.code());
}

/// Laying out pages takes time, so the limit grows with the text.
WordWriteOutcome OfficeWordWriter::Convert(const WordWriteJob& job, const fs::path& source) const {
  const std::string text = FlatDocumentOf(job.paragraphs);
  if (const auto failure = SaveWholeFile(files_, source, text)) return CannotWrite(source, failure);
  OfficePrograms programs = programs_;
  programs.limit *= 1 + static_cast<int>(text.size() / kSourceBytesOfALimit);
  const Format format = FormatOf(job.format);
  const OfficeConverter converter(std::move(programs), job.isCancelled);
  return {ResultOf(converter.Convert({source, {kFlatDocumentFilter}, format.extension, format.filter}))};
}

}  // namespace quorvantis
