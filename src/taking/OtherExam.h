// SPDX-License-Identifier: MIT
#pragma once

#include "editor/FileState.h"
#include "editor/WholeQuestion.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "taking/CollectedMessages.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// Questions taken from another exam, or why nothing can be taken.
struct TakenQuestions {
  std::u16string problem = {};  ///< for the user; empty if there is none
  std::vector<WholeQuestion> questions = {};
};

/// A second exam file, open to take questions from it. Its attached files are unpacked into a folder of its
/// own, so the exam being edited and its work folder are not touched; the folder is removed at the end.
/// Nothing is shown to the user, and the file is never changed.
class OtherExam {
 public:
  /// Reads `file`, which is a stranger's. `services` are those of the exam being edited and must outlive
  /// this. `workRoot` is the folder of its work copies. `number` must be a new one each time (see
  /// AttachmentEditor::TakeCopyNumber).
  OtherExam(const ExamServices& services, const std::filesystem::path& workRoot, std::filesystem::path file,
            int number);
  ~OtherExam();
  OtherExam(const OtherExam&) = delete;
  OtherExam& operator=(const OtherExam&) = delete;

  const FrameSetExam& Exam() const { return exam_; }

  /// The number of questions that can be taken, from 1 on: all up to the first damaged one.
  int QuestionCount() const { return questionCount_; }

  /// What is wrong with the file, for the user: why there are no questions, or which are missing. Empty if
  /// nothing is.
  const std::u16string& Problem() const { return problem_; }

  /// What the file holds beyond the limits of an exam and cannot be taken, for the user; empty if nothing.
  const std::u16string& PassedOverNotice() const { return passedOver_; }

  /// Questions with these numbers. Their attached files exist as long as this object.
  TakenQuestions Take(const std::vector<int>& numbers) const;

  const std::filesystem::path& File() const { return file_; }

 private:
  void Read();
  std::u16string WhyNothing() const;
  std::u16string ProblemOf(const std::vector<int>& numbers) const;
  std::u16string MissingFileOf(int number) const;
  std::u16string Text(int id) const { return services_.strings.Text(id); }

  std::filesystem::path file_;
  std::filesystem::path folder_;
  std::optional<FileState> state_;  ///< before it was read
  CollectedMessages messages_;
  LongAnswerFlags flags_;
  ExamServices services_;
  FrameSetExam exam_;
  int questionCount_ = 0;
  std::u16string problem_;
  std::u16string passedOver_;
};

}  // namespace quorvantis
