// SPDX-License-Identifier: MIT
#include "examfile/SavingLosses.h"

#include "examfile/ExamFileFields.h"
#include "model/LongAnswerFlags.h"
#include "platform/ExamServices.h"
#include "platform/Texts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <fstream>
#include <initializer_list>

namespace quorvantis {
namespace {

bool HasOptions(const ExamQuestion& question) {
  return std::ranges::any_of(question.options, [](const auto& option) { return !option.empty(); });
}

bool HasAnything(const ExamQuestion& question) {
  return !question.text.empty() || HasOptions(question) || !question.answerLetters.empty() ||
         !question.answerText.empty() || !question.essayAnswer.empty() ||
         !question.attachmentPaths[0].empty();
}

bool IsCutForItsForm(const FrameSetExam& exam, int number) {
  const std::u16string& answer = exam.Question(number).answerText;
  return answer.size() > kMaxShortAnswer && answer != kLongAnswerMarker &&
         !exam.Services().longAnswerFlags.IsSet(number);
}

std::u16string Digits(std::size_t number) {
  return FormatInteger(static_cast<std::int64_t>(number));
}

/// Gathers the losses of an exam.
class LossFinder {
 public:
  explicit LossFinder(const FrameSetExam& exam) : exam_(exam), strings_(exam.Services().strings) {}

  std::vector<SavingLoss> Find() {
    CheckExam();
    const int last = exam_.LastCountedQuestion();
    for (number_ = 1; number_ <= kMaxQuestions; ++number_) {
      const ExamQuestion& question = exam_.Question(number_);
      if (number_ <= last) CheckQuestion(question);
      if (number_ > last && HasAnything(question))
        losses_.push_back({number_, strings_.Text(text_id::kQuestionNotStored), true, true});
    }
    return std::move(losses_);
  }

 private:
  std::u16string Filled(int text, std::initializer_list<std::u16string_view> values) const {
    return FillMessage(strings_.Text(text), values);
  }
  void Work(int text, std::initializer_list<std::u16string_view> values) {
    losses_.push_back({number_, Filled(text, values), true, false});
  }
  void Detail(int text, std::initializer_list<std::u16string_view> values = {}) {
    losses_.push_back({number_, Filled(text, values), false, false});
  }

  void CheckText(int what, std::u16string_view text, std::size_t units) {
    if (text.size() > units) {
      Work(text_id::kTextCut, {strings_.Text(what), Digits(text.size()), Digits(units)});
    } else if (text.find(u'\0') != text.npos) {
      Work(text_id::kTextEndsAtNul, {strings_.Text(what)});
    }
  }
  void CheckNumber(int what, std::int64_t number) {
    const std::u16string digits = FormatInteger(number);
    if (digits.size() > 4) Detail(text_id::kNumberCut, {strings_.Text(what), digits});
  }
  void CheckScore(float score) {
    const std::u16string text = FormatScore(score);
    CheckText(text_id::kAScore, text, 7);
    if (ParseScoreText(text) != score) Detail(text_id::kScoreRounded, {text});
  }

  void CheckFiles(const AttachmentList& paths, const AttachmentList& names) {
    for (std::size_t i = 0; i < kMaxAttachments; ++i) {
      CheckText(text_id::kAttachmentName, names[i], 128);
      if (!paths[i].empty() && !std::ifstream(TextToPath(paths[i])).is_open())
        Work(text_id::kFileStoredEmpty, {names[i]});
    }
  }

  void CheckExam() {
    CheckText(text_id::kTheTitle, exam_.title, kMaxTitle);
    CheckNumber(text_id::kTheRandomMode, static_cast<int>(exam_.randomMode));
    CheckNumber(text_id::kTheScoreMode, static_cast<int>(exam_.scoreMode));
    CheckNumber(text_id::kBoundaryQuestion, exam_.boundaryQuestion);
    for (std::size_t i = 0; i < kScoreRanges; ++i) {
      CheckNumber(text_id::kRangeStart, exam_.scoreFrom[i]);
      CheckNumber(text_id::kRangeEnd, exam_.scoreTo[i]);
      CheckScore(exam_.scoreValue[i]);
    }
    CheckFiles(exam_.examAttachmentPaths, exam_.examAttachmentNames);
  }

  void CheckQuestion(const ExamQuestion& question) {
    CheckText(text_id::kTheText, question.text, kMaxQuestionText);
    for (const auto& option : question.options) CheckText(text_id::kOptionText, option, kMaxOptionText);
    CheckText(text_id::kAnswerLetters, question.answerLetters, 16);
    CheckFillInAnswer(question.answerText);
    CheckText(text_id::kEssayAnswer, question.essayAnswer, kMaxEssayAnswer);
    CheckNumber(text_id::kTheKind, static_cast<int>(question.kind));
    CheckKind(question);
    if (question.oralFlag != 0 && question.attachmentPaths[0].empty()) {
      Detail(text_id::kOralFlagLost);
    } else if (question.oralFlag != 0 && question.oralFlag != 1) {
      Detail(text_id::kOralFlagChanged);
    }
    CheckFiles(question.attachmentPaths, question.attachmentNames);
  }

  /// The form of the answer tells where it is cut.
  void CheckFillInAnswer(const std::u16string& answer) {
    if (!IsCutForItsForm(exam_, number_)) return CheckText(text_id::kFillInAnswer, answer, kMaxFillInAnswer);
    const std::u16string cut = Filled(text_id::kTextCut, {strings_.Text(text_id::kFillInAnswer),
                                                          Digits(answer.size()), Digits(kMaxShortAnswer)});
    losses_.push_back({number_, cut, true, true});
  }

  void CheckKind(const ExamQuestion& question) {
    const QuestionKind kind = question.kind;
    if (kind < QuestionKind::Choice || kind > QuestionKind::Oral) return;
    const auto check = [this](int what, bool isThere) {
      if (isThere) Detail(text_id::kNotForKind, {strings_.Text(what)});
    };
    check(text_id::kOptionText, kind != QuestionKind::Choice && HasOptions(question));
    check(text_id::kFillInAnswer, kind != QuestionKind::FillIn && !question.answerText.empty());
    check(text_id::kEssayAnswer, kind != QuestionKind::Essay && !question.essayAnswer.empty());
  }

  const FrameSetExam& exam_;
  const StringTable& strings_;
  int number_ = 0;
  std::vector<SavingLoss> losses_;
};

}  // namespace

std::vector<SavingLoss> FindSavingLosses(const FrameSetExam& exam) {
  return LossFinder(exam).Find();
}

std::u16string LossLine(const SavingLoss& loss, const StringTable& strings) {
  if (loss.question == 0) return loss.what;
  return FillMessage(strings.Text(text_id::kOfQuestion), {FormatInteger(loss.question), loss.what});
}

void StoreWhole(FrameSetExam& exam) {
  const ExamServices& services = exam.Services();
  const int last = exam.LastCountedQuestion();
  for (int number = 1; number <= kMaxQuestions; ++number) {
    ExamQuestion& question = exam.Question(number);
    if (number > last && HasAnything(question))
      question.text = services.strings.Text(text_id::kPlaceholderText);
    if (question.answerText.size() > kMaxShortAnswer) services.longAnswerFlags.Set(number);
  }
}

}  // namespace quorvantis
