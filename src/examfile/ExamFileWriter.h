// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"
#include "platform/Files.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace quorvantis {

class FrameSetExam;
struct ExamQuestion;

/// Saves an exam as a current-version file with the content of its attached files. The document does not
/// change, except for `questionCount`. Attached files are streamed; one that cannot be opened is stored with
/// size 0.
class ExamFileWriter {
 public:
  /// Both must outlive the writer.
  ExamFileWriter(FrameSetExam& exam, const ExamServices& services) : exam_(exam), services_(services) {}

  /// Replaces `file` once the new content is complete; after an error the old file is unchanged.
  std::error_code Write(const std::filesystem::path& file);

  /// Keeps the old file as a backup (see PendingFile::KeepOldFile).
  void KeepOldFile() { keepsOldFile_ = true; }

 private:
  void WriteHeader();
  void WriteQuestion(int number);
  void PackExamAttachments();
  void PackQuestionAttachments(const ExamQuestion& question);
  void PackFile(const std::u16string& name, const std::filesystem::path& path, const int* oralFlag);
  void Flush();

  FrameSetExam& exam_;
  const ExamServices& services_;
  std::unique_ptr<PendingFile> target_;
  std::string bytes_;  ///< composed but not yet written
  std::error_code error_;
  bool keepsOldFile_ = false;
  std::uint64_t written_ = 0;  ///< bytes written, and the estimated total
  std::uint64_t total_ = 0;
};

}  // namespace quorvantis
