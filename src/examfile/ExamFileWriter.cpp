// SPDX-License-Identifier: MIT
#include "examfile/ExamFileWriter.h"

#include "examfile/ExamFileFields.h"
#include "model/LongAnswerFlags.h"
#include "platform/Progress.h"
#include "text/PathText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

std::span<const std::byte> AsBytes(std::string_view bytes) {
  return std::as_bytes(std::span(bytes));
}

std::uint64_t SizeOf(const AttachmentList& paths) {
  std::uint64_t size = 0;
  for (const std::u16string& path : paths) {
    std::error_code error;
    const auto bytes = path.empty() ? 0 : std::filesystem::file_size(TextToPath(path), error);
    if (!error) size += bytes;
  }
  return size;
}

/// The slow part of a save.
std::uint64_t AttachedBytes(const FrameSetExam& exam) {
  std::uint64_t size = SizeOf(exam.examAttachmentPaths);
  for (int n = 1; n <= exam.questionCount; ++n) size += SizeOf(exam.Question(n).attachmentPaths);
  return size;
}

}  // namespace

std::error_code ExamFileWriter::Write(const std::filesystem::path& file) {
  exam_.CountQuestions();
  total_ = AttachedBytes(exam_);
  target_ = services_.files.Replace(file, error_);
  if (!target_) return error_;
  if (keepsOldFile_) target_->KeepOldFile();
  WriteHeader();
  PackExamAttachments();
  for (int number = 1; number <= exam_.questionCount && !error_; ++number) WriteQuestion(number);
  Flush();
  if (!error_) error_ = target_->Commit();
  target_.reset();
  return error_;
}

void ExamFileWriter::Flush() {
  if (!error_) error_ = target_->Write(AsBytes(bytes_));
  written_ += bytes_.size();
  bytes_.clear();
}

void ExamFileWriter::WriteHeader() {
  bytes_ += kByteOrderMark;
  FieldWriter fields(bytes_);
  fields.Text(kCurrentVersion.tag, kTagField);
  VisitHeader(kCurrentVersion, std::as_const(exam_), fields);
}

void ExamFileWriter::PackExamAttachments() {
  const auto& names = exam_.examAttachmentNames;
  const auto firstEmpty = std::ranges::find_if(names, [](const auto& name) { return name.empty(); });
  const auto count = static_cast<std::size_t>(firstEmpty - names.begin());
  FieldWriter fields(bytes_);
  VisitAttachmentCount(count, fields);
  for (std::size_t i = 0; i < count && !error_; ++i) {
    const std::u16string& path = exam_.examAttachmentPaths[i];
    PackFile(names[i], exam_.IsPath(path) ? TextToPath(path) : std::filesystem::path(), nullptr);
  }
}

void ExamFileWriter::WriteQuestion(int number) {
  const ExamQuestion& question = exam_.Question(number);
  // An answer that looks like the marker must take the long form, or it would be lost on reading.
  const bool longAnswer = services_.longAnswerFlags.IsSet(number) || question.answerText == kLongAnswerMarker;
  const std::u16string shortAnswer = longAnswer ? std::u16string(kLongAnswerMarker) : question.answerText;
  FieldWriter fields(bytes_);
  VisitQuestion(kCurrentVersion, question, shortAnswer, fields);
  PackQuestionAttachments(question);
  if (longAnswer) VisitLongAnswer(kCurrentVersion, question.answerText, fields);
  Flush();
}

void ExamFileWriter::PackQuestionAttachments(const ExamQuestion& question) {
  const auto& paths = question.attachmentPaths;
  const auto filled = [](const std::u16string& path) { return !path.empty(); };
  const auto count = std::ranges::count_if(paths, filled);
  FieldWriter fields(bytes_);
  VisitAttachmentCount(count, fields);
  const int* oralFlag = &question.oralFlag;
  for (std::size_t i = 0; i < kMaxAttachments && !error_; ++i) {
    if (!filled(paths[i])) continue;
    PackFile(question.attachmentNames[i], TextToPath(paths[i]), std::exchange(oralFlag, nullptr));
  }
}

/// Writes one attachment entry with its content, and the oral flag if one is given. The content must have
/// exactly the size that was measured, or the data after it would not be found: a file that shrinks
/// meanwhile, or cannot be read to its end, aborts the save.
void ExamFileWriter::PackFile(const std::u16string& name, const std::filesystem::path& path,
                              const int* oralFlag) {
  ByteSource content(path);
  const std::uint64_t size = content.IsOpen() ? content.Size() : 0;
  const AttachmentEntry entry{name, oralFlag != nullptr ? *oralFlag : 0, static_cast<std::int64_t>(size)};
  FieldWriter fields(bytes_);
  VisitAttachment(kCurrentVersion, entry, oralFlag != nullptr, fields);
  Flush();
  content.Take(size, [&](std::string_view bytes) {
    if (!error_) error_ = target_->Write(AsBytes(bytes));
    written_ += bytes.size();
    services_.progress.Report(written_, total_);
  });
  if (content.Position() < size && !error_) error_ = std::make_error_code(std::errc::io_error);
}

}  // namespace quorvantis
