// SPDX-License-Identifier: MIT
#include "bank/index/IndexedExam.h"

#include "examfile/ExamFileReader.h"
#include "scoring/ScoreDistribution.h"
#include "scoring/ScoreSegments.h"

#include <algorithm>

namespace quorvantis {
namespace {

ExamState StateOf(const ExamReadOutcome& outcome, ReadDoubt doubt) {
  if (!outcome.opened) return ExamState::Unreadable;
  switch (doubt) {
    case ReadDoubt::None:
      break;
    case ReadDoubt::ReadInPart:
      return ExamState::EndsEarly;
    case ReadDoubt::PassedOver:
      return ExamState::TooMuch;
    case ReadDoubt::NoExam:
      return ExamState::NoExam;
  }
  return ExamState::Whole;
}

}  // namespace

IndexedExam::IndexedExam(ExamServices& services, const FileDigest& digest)
    : digest_(digest), exam_(services), scores_(kMaxQuestions + 1), files_(kMaxQuestions + 1) {}

void IndexedExam::Read(const std::filesystem::path& file) {
  exam_.Reset();
  for (auto& files : files_) files.clear();
  const ExamReadOutcome outcome = ReadWithoutUnpacking(exam_, exam_.Services(), file, *this);
  EndFile();
  state_ = StateOf(outcome, exam_.readDoubt);
  firstMissing_ = outcome.endsEarly ? outcome.firstMissingQuestion : 0;
  const bool hasQuestions = state_ != ExamState::Unreadable && state_ != ExamState::NoExam;
  questionCount_ = hasQuestions ? exam_.LastCountedQuestion() : 0;
  if (firstMissing_ > 0) questionCount_ = std::min(questionCount_, firstMissing_ - 1);
  TakeScores();
}

void IndexedExam::TakeScores() {
  std::fill(scores_.begin(), scores_.end(), std::nullopt);
  if (!HasScoreRanges(exam_.scoreMode)) return;
  for (const ScoreSegment& segment : SegmentsOf(DistributionOf(exam_), questionCount_)) {
    for (int number = segment.first; segment.range != 0 && number <= segment.last; ++number)
      scores_[static_cast<std::size_t>(number)] = segment.score;
  }
}

void IndexedExam::Begin(int question, unsigned, const std::u16string& name) {
  EndFile();
  files_[static_cast<std::size_t>(question)].push_back({name, 0, {}});
  openFileOf_ = question;
  running_ = digest_.Begin();
}

void IndexedExam::Content(std::string_view bytes) {
  files_[static_cast<std::size_t>(openFileOf_)].back().size += static_cast<std::int64_t>(bytes.size());
  running_->Add(bytes);
}

void IndexedExam::EndFile() {
  if (running_) files_[static_cast<std::size_t>(openFileOf_)].back().hash = running_->Text();
  running_.reset();
  openFileOf_ = -1;
}

}  // namespace quorvantis
