// SPDX-License-Identifier: MIT
#include "versions/verify/ExamComparison.h"

#include "model/AnswerLetters.h"
#include "model/ExamFields.h"
#include "model/QuestionKinds.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/texts/SavingTexts.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "versions/folder/VersionExam.h"
#include "versions/plan/QuestionScores.h"
#include "versions/verify/SameContent.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {
namespace {

/// Compares an exam with the order in which it should stand. Orders are applied here in another way than
/// where versions are made: from the place in the version back to the source.
class Comparison {
 public:
  Comparison(const FrameSetExam& source, const PlannedVersion& version, const FrameSetExam& exam)
      : source_(source), version_(version), exam_(exam), strings_(source.Services().strings) {}

  std::vector<std::u16string> Run() {
    const auto count = static_cast<int>(version_.questions.size());
    CompareHeader(count);
    if (exam_.questionCount == count) {
      for (number_ = 1; number_ <= count; ++number_) CompareQuestion();
      CompareScores(count);
    }
    return std::move(differences_);
  }

 private:
  void Check(bool isSame, int what) {
    if (isSame) return;
    const std::u16string name = strings_.Text(what);
    if (number_ == 0) {
      differences_.push_back(FillMessage(strings_.Text(text_id::kExamDiffers), {name}));
    } else {
      differences_.push_back(FillMessage(strings_.Text(text_id::kQuestionDiffers),
                                         {FormatInteger(Place()), FormatInteger(number_), name}));
    }
  }

  /// Of the question in the version, from 1 on.
  int Place() const {
    const auto found = std::ranges::find(version_.questions, number_);
    return static_cast<int>(found - version_.questions.begin()) + 1;
  }

  void CompareHeader(int count) {
    Check(exam_.title == VersionTitle(source_.title, version_.name), text_id::kTheTitle);
    Check(exam_.questionCount == count, text_id::kTheQuestionCount);
    Check(exam_.randomMode == RandomMode::Off, text_id::kTheRandomMode);
    Check(exam_.scoreMode == source_.scoreMode, text_id::kTheScoreMode);
    Check(exam_.boundaryQuestion == source_.boundaryQuestion, text_id::kBoundaryQuestion);
    Check(exam_.examAttachmentNames == source_.examAttachmentNames, text_id::kAttachmentName);
    Check(HaveSameFiles(exam_.examAttachmentPaths, source_.examAttachmentPaths), text_id::kTheFiles);
  }

  void CompareQuestion() {
    const ExamQuestion& source = source_.Question(number_);
    const ExamQuestion& question = exam_.Question(Place());
    Check(question.kind == source.kind, text_id::kTheKind);
    Check(question.text == source.text, text_id::kTheText);
    Check(question.answerText == source.answerText, text_id::kFillInAnswer);
    Check(question.essayAnswer == source.essayAnswer, text_id::kEssayAnswer);
    CompareOptions(source, question);
    Check(question.oralFlag == source.oralFlag, text_id::kTheFiles);
    Check(question.attachmentNames == source.attachmentNames, text_id::kAttachmentName);
    Check(HaveSameFiles(question.attachmentPaths, source.attachmentPaths), text_id::kTheFiles);
  }

  void CompareOptions(const ExamQuestion& source, const ExamQuestion& question) {
    const OptionOrder& order = version_.options[static_cast<std::size_t>(Place()) - 1];
    bool isKeySame = question.answerLetters.size() == source.answerLetters.size();
    for (std::size_t option = 0; option < kOptionCount; ++option) {
      const auto place = static_cast<std::size_t>(std::ranges::find(order, option) - order.begin());
      Check(question.options[place] == source.options[option], text_id::kOptionText);
      const bool isRight = (question.answerMask & AnswerBoxWeight(place)) != 0;
      const bool wasRight = (source.answerMask & AnswerBoxWeight(option)) != 0;
      isKeySame = isKeySame && isRight == wasRight;
    }
    // Letters that stand for no options are those of the source, or nobody could tell what they mean.
    if (order == kSourceOrder) isKeySame = isKeySame && question.answerLetters == source.answerLetters;
    Check(isKeySame, text_id::kAnswerLetters);
  }

  void CompareScores(int count) {
    const QuestionScores wanted = ScoresOf(source_, count);
    const QuestionScores scores = ScoresOf(exam_, count);
    for (number_ = 1; number_ <= count; ++number_) {
      const auto& score = scores[static_cast<std::size_t>(Place())];
      const auto& other = wanted[static_cast<std::size_t>(number_)];
      const bool isSame = score.has_value() == other.has_value() &&
                          FormatScore(score.value_or(0)) == FormatScore(other.value_or(0));
      Check(isSame, text_id::kAScore);
    }
    number_ = 0;
    if (!HasScoreRanges(source_.scoreMode))
      Check(exam_.scoreFrom == source_.scoreFrom && exam_.scoreTo == source_.scoreTo &&
                std::ranges::equal(exam_.scoreValue, source_.scoreValue, {}, FormatScore, FormatScore),
            text_id::kAScore);
  }

  const FrameSetExam& source_;
  const PlannedVersion& version_;
  const FrameSetExam& exam_;
  const StringTable& strings_;
  int number_ = 0;  ///< in the source, of the question that is compared; 0 for the exam as a whole
  std::vector<std::u16string> differences_;
};

}  // namespace

std::vector<std::u16string> CompareWithSource(const FrameSetExam& source, const PlannedVersion& version,
                                              const FrameSetExam& exam) {
  return Comparison(source, version, exam).Run();
}

}  // namespace quorvantis
