// SPDX-License-Identifier: MIT
// What an exam file cannot hold, or a reader clears again because the question's kind has no use for it.
#include "cli/SavingLosses.h"

#include "examfile/ExamFileFields.h"
#include "text/NumberText.h"
#include "text/Utf.h"

namespace quorvantis::cli {
namespace {

/// Gathers the losses of one part of the exam.
class LossList {
 public:
  explicit LossList(std::vector<std::string>& lines) : lines_(lines) {}

  void In(std::string place) { place_ = std::move(place); }
  void Add(const std::string& what) { lines_.push_back(place_ + what); }

  void CutText(const std::string& what, std::u16string_view text, std::size_t units) {
    if (text.size() > units) {
      Add(what + " is cut from " + std::to_string(text.size()) + " to " + std::to_string(units) +
          " characters");
    } else if (text.find(u'\0') != std::u16string_view::npos) {
      Add(what + " ends at its first NUL character");
    }
  }
  void CutNumber(const std::string& what, std::int64_t number) {
    if (FormatInteger(number).size() > 4)
      Add(what + " " + std::to_string(number) + " is cut to four characters");
  }
  void Cleared(const std::string& what, bool lost) {
    if (lost) Add(what + " is not kept for a question of this kind");
  }

 private:
  std::vector<std::string>& lines_;
  std::string place_;
};

void CheckAttachments(LossList& losses, const AttachmentList& names) {
  for (const auto& name : names) losses.CutText("the name of an attached file", name, 128);
}

void CheckScore(LossList& losses, float score) {
  const std::u16string text = FormatScore(score);
  losses.CutText("a score", text, 7);
  if (ParseScoreText(text) != score) losses.Add("a score is rounded to " + Utf16ToUtf8(text));
}

bool HasOptions(const ExamQuestion& question) {
  for (const auto& option : question.options) {
    if (!option.empty()) return true;
  }
  return false;
}

bool HasAnything(const ExamQuestion& question) {
  return !question.text.empty() || HasOptions(question) || !question.answerLetters.empty() ||
         !question.answerText.empty() || !question.essayAnswer.empty() ||
         !question.attachmentPaths[0].empty();
}

void CheckKind(LossList& losses, const ExamQuestion& question) {
  const bool known = question.kind >= QuestionKind::Choice && question.kind <= QuestionKind::Oral;
  if (!known) return;
  losses.Cleared("an option text", question.kind != QuestionKind::Choice && HasOptions(question));
  losses.Cleared("the fill-in answer", question.kind != QuestionKind::FillIn && !question.answerText.empty());
  losses.Cleared("the essay answer", question.kind != QuestionKind::Essay && !question.essayAnswer.empty());
}

void CheckQuestion(LossList& losses, const ExamQuestion& question) {
  losses.CutText("the text", question.text, kMaxQuestionText);
  for (const auto& option : question.options) losses.CutText("an option text", option, kMaxOptionText);
  losses.CutText("the answer letters", question.answerLetters, 16);
  losses.CutText("the fill-in answer", question.answerText, kMaxFillInAnswer);
  losses.CutText("the essay answer", question.essayAnswer, kMaxEssayAnswer);
  losses.CutNumber("the kind", static_cast<int>(question.kind));
  CheckKind(losses, question);
  if (question.oralFlag != 0 && question.attachmentPaths[0].empty()) {
    losses.Add("the oral flag is not kept without an attached file");
  } else if (question.oralFlag != 0 && question.oralFlag != 1) {
    losses.Add("an oral flag that is not 1 is kept as 0");
  }
  CheckAttachments(losses, question.attachmentNames);
}

}  // namespace

std::vector<std::string> LossesOnSaving(const FrameSetExam& exam) {
  std::vector<std::string> lines;
  LossList losses(lines);
  losses.CutText("the title", exam.title, kMaxTitle);
  losses.CutNumber("the random mode", static_cast<int>(exam.randomMode));
  losses.CutNumber("the score mode", static_cast<int>(exam.scoreMode));
  losses.CutNumber("the boundary question", exam.boundaryQuestion);
  for (std::size_t i = 0; i < kScoreRanges; ++i) {
    losses.CutNumber("the start of a score range", exam.scoreFrom[i]);
    losses.CutNumber("the end of a score range", exam.scoreTo[i]);
    CheckScore(losses, exam.scoreValue[i]);
  }
  CheckAttachments(losses, exam.examAttachmentNames);
  for (int number = 1; number <= kMaxQuestions; ++number) {
    losses.In("question " + std::to_string(number) + ": ");
    if (number <= exam.questionCount) CheckQuestion(losses, exam.Question(number));
    if (number > exam.questionCount && HasAnything(exam.Question(number))) {
      losses.Add("is not stored: neither it nor a later question has a text, an option or a fill-in answer");
    }
  }
  return lines;
}

}  // namespace quorvantis::cli
