// SPDX-License-Identifier: MIT
#include "exchange/QuestionExport.h"

#include "exchange/exam/ExamToExchange.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace quorvantis {
namespace {

constexpr std::size_t kWrittenBlock = std::size_t{512} * 1024;  // bytes between two looks at the user

std::error_code WriteBytes(std::string_view bytes, PendingFile& file, Progress& progress) {
  const std::size_t total = bytes.size();
  while (!bytes.empty()) {
    if (progress.IsCancelled()) return std::make_error_code(std::errc::operation_canceled);
    const std::string_view block = bytes.substr(0, kWrittenBlock);
    if (const auto error = file.Write(std::as_bytes(std::span(block)))) return error;
    bytes.remove_prefix(block.size());
    progress.Report(total - bytes.size(), total);
  }
  if (progress.IsCancelled()) return std::make_error_code(std::errc::operation_canceled);
  return file.Commit();
}

}  // namespace

ForeseenExport ForeseeExport(const FrameSetExam& exam, const FormatRow& format) {
  ExchangeNotes notes;
  ExchangedExam exchanged = ExamToExchange(exam, notes);
  ForeseenExport foreseen;
  foreseen.held = HeldExam(format.held, std::move(exchanged), notes);
  foreseen.losses = notes.All();
  return foreseen;
}

std::error_code WriteQuestionFile(const ExchangedExam& held, const FormatRow& format,
                                  const std::filesystem::path& target, const WritingTools& tools) {
  const std::string bytes = format.writer()->Write(held, tools.strings, tools.progress);
  if (tools.progress.IsCancelled()) return std::make_error_code(std::errc::operation_canceled);
  if (bytes.empty()) return std::make_error_code(std::errc::io_error);  // no format has empty files
  std::error_code error;
  const std::unique_ptr<PendingFile> file = tools.files.Replace(target, error);
  if (!file) return error ? error : std::make_error_code(std::errc::io_error);
  return WriteBytes(bytes, *file, tools.progress);
}

}  // namespace quorvantis
