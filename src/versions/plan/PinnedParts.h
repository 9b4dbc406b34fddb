// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "versions/plan/VersionRequest.h"

#include <array>
#include <optional>
#include <vector>

namespace quorvantis {

/// Why something keeps its place in every version.
enum class PinReason {
  // Of a question:
  Teacher,
  NamesQuestion,    ///< its text names the question `other`
  IsNamed,          ///< question `other` names it
  FollowsOn,        ///< it stays behind the question before it, and moves only together with it
  CannotMoveAlong,  ///< it is tied to question `other`, which cannot move with it
  Empty,            ///< it has neither text nor options nor fill-in answers, so it would vanish at the end
  // Of options, one of them or all of a question:
  TeacherOption,
  SpeaksOfOthers,  ///< "all of the above"
  NamesLetters,    ///< an option or the text names options by their letters
  OwnLetters,      ///< the options are called by their own letters, like parts of a picture
  TooFew,          ///< there are not two options
  OddKey,          ///< the key is not a list of letters
};

/// Something that keeps its place, and why.
struct PinnedPart {
  int question = 0;                        ///< 1 to 500
  std::optional<std::size_t> option = {};  ///< 0 to 4, if it is one option
  PinReason reason = PinReason::Teacher;
  int other = 0;  ///< another question that is the reason, else 0

  bool operator==(const PinnedPart&) const = default;
};

/// Whether the reason is one of a question, not of its options.
constexpr bool IsOfQuestion(PinReason reason) {
  return reason < PinReason::TeacherOption;
}

/// What may move and what may not, in an exam with the questions 1 to Count().
class PinnedParts {
 public:
  /// Looks at the first `questionCount` questions. Pins of the teacher for what the exam does not have are
  /// ignored.
  PinnedParts(const ExamPaper& exam, int questionCount, const TeacherPins& pins);

  /// The number of questions.
  int Count() const { return static_cast<int>(stays_.size()) - 1; }

  /// Whether a question has its number in every version.
  bool Stays(int question) const { return stays_[static_cast<std::size_t>(question)]; }
  /// Whether a question stays directly behind the one before it.
  bool FollowsOn(int question) const { return follows_[static_cast<std::size_t>(question)]; }

  /// The options of a question that may move, in order: 0 for A to 4 for E; none or at least two.
  const std::vector<std::size_t>& MovableOptions(int question) const {
    return options_[static_cast<std::size_t>(question)];
  }

  /// What was pinned, by question.
  const std::vector<PinnedPart>& Parts() const { return parts_; }

  /// Keeps a question where it is, for a reason that only the plan can find.
  void Pin(const PinnedPart& part);

 private:
  void PinQuestions(const ExamPaper& exam, const TeacherPins& pins);
  void PinOptions(const ExamQuestion& question, int number, const TeacherPins& pins);
  bool PinAllOptions(const ExamQuestion& question, int number);

  std::vector<bool> stays_;
  std::vector<bool> follows_;
  std::vector<std::vector<std::size_t>> options_;
  std::vector<PinnedPart> parts_;
};

}  // namespace quorvantis
