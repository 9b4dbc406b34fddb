// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "taking/CollectedMessages.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// An exam file that is read for itself, apart from any exam being edited: its attached files are unpacked
/// into a folder of its own, which is removed at the end, and nothing is shown to the user.
class ReadExam {
 public:
  /// `services` must outlive this. `folder` is emptied first; no other object may use it.
  ReadExam(const ExamServices& services, std::filesystem::path folder, const std::filesystem::path& file);
  ~ReadExam();
  ReadExam(const ReadExam&) = delete;
  ReadExam& operator=(const ReadExam&) = delete;

  const FrameSetExam& Exam() const { return exam_; }
  /// Questions up to the last one that a file counts.
  int QuestionCount() const { return exam_.LastCountedQuestion(); }

  /// Why the exam is not what its file holds, or what a file that is written of it would lack, for the user;
  /// empty if it is whole.
  std::u16string Problem() const;

 private:
  std::filesystem::path file_;
  std::filesystem::path folder_;
  CollectedMessages messages_;
  LongAnswerFlags flags_;
  ExamServices services_;
  FrameSetExam exam_;
};

}  // namespace quorvantis
