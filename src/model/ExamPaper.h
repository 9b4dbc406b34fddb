// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"
#include "model/ExamQuestion.h"
#include "model/PageRenderer.h"

#include <array>
#include <string>
#include <vector>

namespace quorvantis {

enum class RandomMode : int { Off = 0, Options = 1, Sequence = 2 };
/// A file can hold any other number. Deliberate: such an exam has neither one score nor ranges, so pages show
/// nothing; whoever asks for only one of the two treats it as the other.
enum class ScoreMode : int { Same = 0, Custom = 1 };

constexpr bool HasOneScore(ScoreMode mode) {
  return mode == ScoreMode::Same;
}
constexpr bool HasScoreRanges(ScoreMode mode) {
  return mode == ScoreMode::Custom;
}

/// The questions of an exam with their scores: title, 500 numbered slots, ten score ranges. Plain data with
/// operations that keep the slots in order. Question numbers are 1 to 500; operations ignore any other
/// number.
class ExamPaper {
 public:
  ExamPaper();
  ExamPaper(const ExamPaper&) = default;
  ExamPaper& operator=(const ExamPaper&) = default;
  virtual ~ExamPaper() = default;

  /// Empties the exam. `attachmentCopies` and `oralFlag` of the questions stay: the copies must still be
  /// deleted, and the oral flag belongs to the slot until a question is shown or read there.
  void Reset();

  /// Removes question n and closes the gap. Slot 500 becomes empty but keeps its kind; it has always done so,
  /// and other programs show that kind. Attachments and the oral flag stay where they are.
  void DeleteQuestion(int n);

  /// Opens an empty question at n (0 to 499) and moves the later ones up; the content of slot 500 is lost.
  void InsertQuestion(int n);

  /// Sets `questionCount` to the last slot with a text, an option or a fill-in answer; 0 if there is none.
  void CountQuestions() { questionCount = LastCountedQuestion(); }
  int LastCountedQuestion() const;

  void SetRenderOption(int option);

  /// Moves the exam to the application folder: its files go there from now on, and random mode is off.
  void SetHostMode(int mode);

  ExamQuestion& Question(int n) { return questions[static_cast<std::size_t>(n)]; }
  const ExamQuestion& Question(int n) const { return questions[static_cast<std::size_t>(n)]; }

  std::u16string workFolder;  ///< decimal number of the student folder, used while `locationMode` is 0
  int resultPageOption = 1;
  std::vector<std::u16string> stringList;
  PageRenderer pageRenderer;
  int renderOption = 1;           ///< change it through SetRenderOption only
  int locationMode = 0;           ///< not 0: work folders lie under the application folder
  int questionFilesUnpacked = 0;  ///< 1 if the reader unpacked attachments of questions
  RandomMode randomMode = RandomMode::Off;
  std::u16string title;
  int questionCount = 0;  ///< from the last CountQuestions or read; out of date while editing
  std::array<int, kScoreRanges> scoreFrom{};
  std::array<int, kScoreRanges> scoreTo{};
  std::array<float, kScoreRanges> scoreValue{};
  ScoreMode scoreMode = ScoreMode::Same;
  std::vector<ExamQuestion> questions;  ///< always 501 slots
  int hostMode = 0;                     ///< change it through SetHostMode only
  std::vector<int> questionState;       ///< one number per slot
  float resultScore = 0;                ///< score on the result page
};

}  // namespace quorvantis
