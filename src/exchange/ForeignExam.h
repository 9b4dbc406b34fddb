// SPDX-License-Identifier: MIT
#pragma once

#include "editor/WholeQuestion.h"
#include "exchange/Formats.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "taking/CollectedMessages.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

/// Questions chosen from a file of a learning system.
struct ForeignQuestions {
  FrameSetExam exam;  ///< an exam of only these questions, with the title, the scores and the random mode
  std::vector<WholeQuestion> questions = {};  ///< the same, each by itself
};

/// A file of a learning system, open to take questions from it. The files in it are unpacked into a folder of
/// its own, which is removed at the end; the exam being edited is not touched. Nothing is shown to the user.
/// It may be made on any thread.
class ForeignExam {
 public:
  /// Reads `file`, which is a stranger's. `services` are those of the exam being edited and must outlive
  /// this. `folder`, in the folder of its work copies, must be a new one each time. Without `format`, the
  /// file's content tells it.
  ForeignExam(const ExamServices& services, std::filesystem::path folder, std::filesystem::path file,
              const FormatRow* format, Progress& progress);
  ~ForeignExam();
  ForeignExam(const ForeignExam&) = delete;
  ForeignExam& operator=(const ForeignExam&) = delete;

  const std::filesystem::path& File() const { return file_; }

  /// That by which it was read; null if it has none that is known.
  const FormatRow* Format() const { return format_; }

  const FrameSetExam& Exam() const { return exam_; }
  /// The number of questions that can be taken, from 1 on.
  int QuestionCount() const { return questionCount_; }

  /// Why there are no questions, for the user; empty if there are some.
  const std::u16string& Problem() const { return problem_; }

  /// What an exam cannot hold of the file.
  const std::vector<ExchangeNote>& Notes() const { return notes_.All(); }

  /// The same with the numbers that the questions have here, which differ from those in the file behind one
  /// that could not be read. What is told of such a one is about the whole.
  std::vector<ExchangeNote> NotesByOwnNumbers() const;

  /// Questions with these numbers, ascending. Their files exist as long as this object.
  ForeignQuestions Take(const std::vector<int>& numbers) const;

 private:
  void Read(Progress& progress);
  void ReadQuestions(const ExchangeSource& source, Progress& progress);

  std::filesystem::path file_;
  std::filesystem::path folder_;
  CollectedMessages messages_;
  LongAnswerFlags flags_;
  ExamServices services_;
  FrameSetExam exam_;
  const FormatRow* format_;
  ExchangeNotes notes_;
  ExchangedExam read_;
  int questionCount_ = 0;
  std::u16string problem_;
};

}  // namespace quorvantis
