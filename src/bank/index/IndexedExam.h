// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/index/QuestionMarks.h"
#include "examfile/AttachmentSink.h"
#include "model/document/FrameSetExam.h"
#include "platform/FileDigest.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// An exam file as it goes into the index. One object reads many, one after the other.
class IndexedExam : private AttachmentSink {
 public:
  /// Both must outlive this.
  IndexedExam(ExamServices& services, const FileDigest& digest);

  void Read(const std::filesystem::path& file);

  ExamState State() const { return state_; }
  /// The first question that is missing from a damaged file, 0 if it is not known.
  int FirstMissing() const { return firstMissing_; }
  const std::u16string& Title() const { return exam_.title; }
  /// Questions from 1 on that are whole.
  int QuestionCount() const { return questionCount_; }
  const ExamQuestion& Question(int number) const { return exam_.Question(number); }
  std::optional<double> Score(int number) const { return scores_[static_cast<std::size_t>(number)]; }
  /// Of a question, or of the exam as a whole (0).
  const std::vector<IndexedFile>& Files(int number) const { return files_[static_cast<std::size_t>(number)]; }

 private:
  void Begin(int question, unsigned slot, const std::u16string& name) override;
  void Content(std::string_view bytes) override;
  void EndFile();
  void TakeScores();

  const FileDigest& digest_;
  FrameSetExam exam_;
  ExamState state_ = ExamState::Unreadable;
  int firstMissing_ = 0;
  int questionCount_ = 0;
  std::vector<std::optional<double>> scores_;
  std::vector<std::vector<IndexedFile>> files_;
  int openFileOf_ = -1;  ///< question whose last file gets content
  std::unique_ptr<RunningDigest> running_;
};

}  // namespace quorvantis
