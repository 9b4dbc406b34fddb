// SPDX-License-Identifier: MIT
#include "examfile/SavingLosses.h"

#include "examfile/ExamFileFields.h"
#include "examfile/ExamFileLayout.h"
#include "model/LongAnswerFlags.h"
#include "model/QuestionKinds.h"
#include "model/document/ExamServices.h"
#include "platform/texts/SavingTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <fstream>
#include <initializer_list>

namespace quorvantis {
namespace {

/// The name of a field in messages; 0 for one that is derived from others or belongs to attached files, and
/// is never lost by itself.
int TextOf(ExamFieldName field) {
  switch (field) {
    case ExamFieldName::Title:
      return text_id::kTheTitle;
    case ExamFieldName::RandomMode:
      return text_id::kTheRandomMode;
    case ExamFieldName::ScoreMode:
      return text_id::kTheScoreMode;
    case ExamFieldName::RangeStart:
      return text_id::kRangeStart;
    case ExamFieldName::RangeEnd:
      return text_id::kRangeEnd;
    case ExamFieldName::RangeScore:
      return text_id::kAScore;
    case ExamFieldName::BoundaryQuestion:
      return text_id::kBoundaryQuestion;
    case ExamFieldName::QuestionText:
      return text_id::kTheText;
    case ExamFieldName::Options:
      return text_id::kOptionText;
    case ExamFieldName::AnswerLetters:
      return text_id::kAnswerLetters;
    case ExamFieldName::FillInAnswer:
    case ExamFieldName::LongFillInAnswer:
      return text_id::kFillInAnswer;
    case ExamFieldName::EssayAnswer:
      return text_id::kEssayAnswer;
    case ExamFieldName::Kind:
      return text_id::kTheKind;
    case ExamFieldName::AttachmentName:
      return text_id::kAttachmentName;
    case ExamFieldName::QuestionCount:
    case ExamFieldName::AnswerMask:
    case ExamFieldName::OralFlag:
      break;
  }
  return 0;
}

std::size_t WidthOf(ExamFieldName field) {
  return kCurrentVersion.Width(field).units;
}

std::u16string Digits(std::size_t number) {
  return FormatInteger(static_cast<std::int64_t>(number));
}

/// Collects the losses of an exam.
class LossFinder {
 public:
  LossFinder(const FrameSetExam& exam, const LongAnswerFlags& flags)
      : exam_(exam), flags_(flags), strings_(exam.Services().strings) {}

  std::vector<SavingLoss> Find() {
    CheckExam();
    const int last = exam_.LastCountedQuestion();
    for (number_ = 1; number_ <= kMaxQuestions; ++number_) {
      const ExamQuestion& question = exam_.Question(number_);
      if (number_ <= last) CheckQuestion(question);
      if (number_ > last && HasAnything(question))
        losses_.push_back({number_,
                           strings_.Text(text_id::kQuestionNotStored),
                           true,
                           true,
                           {number_, ExamFieldName::QuestionText}});
    }
    return std::move(losses_);
  }

 private:
  std::u16string Filled(int text, std::initializer_list<std::u16string_view> values) const {
    return FillMessage(strings_.Text(text), values);
  }
  void Work(const TextPlace& place, int text, std::initializer_list<std::u16string_view> values) {
    losses_.push_back({number_, Filled(text, values), true, false, place});
  }
  void Detail(int text, std::initializer_list<std::u16string_view> values = {}) {
    losses_.push_back({number_, Filled(text, values)});
  }

  /// What would be lost of a field when it is written with its width.
  void Check(ExamFieldName field, const std::u16string& text, unsigned index = 0) {
    const TextPlace place{number_, field, index};
    const bool takesLongForm = field == ExamFieldName::FillInAnswer && flags_.IsSet(number_);
    const std::size_t width = WidthOf(takesLongForm ? ExamFieldName::LongFillInAnswer : field);
    const std::u16string what = strings_.Text(TextOf(field));
    if (text.size() > width) {
      Work(place, text_id::kTextCut, {what, Digits(text.size()), Digits(width)});
      losses_.back().canBeStored = field == ExamFieldName::FillInAnswer && !takesLongForm;
    } else if (text.find(u'\0') != text.npos) {
      Work(place, text_id::kTextEndsAtNul, {what});
    }
  }
  void Check(ExamFieldName field, const OptionTexts& options) {
    for (unsigned i = 0; i < options.size(); ++i) Check(field, options[i], i);
  }
  void Check(ExamFieldName field, float score) {
    const std::u16string text = FormatScore(score);
    Check(field, text);
    if (ParseScoreText(text) != score) Detail(text_id::kScoreRounded, {text});
  }
  template <class Integer>
  void Check(ExamFieldName field, Integer number) {
    const std::u16string digits = FormatInteger(static_cast<std::int64_t>(number));
    if (TextOf(field) != 0 && digits.size() > WidthOf(field))
      Detail(text_id::kNumberCut, {strings_.Text(TextOf(field)), digits});
  }

  /// A visitor of fields.
  auto Checker() {
    return [this](const FieldRow& field, const auto& value) { Check(field.name, value); };
  }

  bool CanBePacked(const std::u16string& path) const {
    return exam_.IsPath(path) && std::ifstream(TextToPath(path)).is_open();
  }
  void CheckFiles(const AttachmentList& paths, const AttachmentList& names) {
    for (unsigned i = 0; i < kMaxAttachments; ++i) {
      Check(ExamFieldName::AttachmentName, names[i], i);
      const bool hasContent = !paths[i].empty() && !exam_.pathsWithoutContent.contains(paths[i]);
      if (!hasContent || CanBePacked(paths[i])) continue;
      Work({number_, ExamFieldName::AttachmentName, i}, text_id::kFileStoredEmpty, {names[i]});
      losses_.back().isContentOfFile = true;
    }
  }

  void CheckExam() {
    VisitPaperFields(Checker(), exam_);
    VisitDocumentFields(Checker(), exam_);
    for (std::size_t i = 0; i < kScoreRanges; ++i) VisitScoreRange(i, Checker(), exam_);
    CheckFiles(exam_.examAttachmentPaths, exam_.examAttachmentNames);
  }

  void CheckQuestion(const ExamQuestion& question) {
    VisitQuestionFields(Checker(), question);
    CheckKind(question);
    if (question.oralFlag != 0 && question.attachmentPaths[0].empty()) {
      Detail(text_id::kOralFlagLost);
    } else if (question.oralFlag != 0 && question.oralFlag != 1) {
      Detail(text_id::kOralFlagChanged);
    }
    CheckFiles(question.attachmentPaths, question.attachmentNames);
  }

  void CheckKind(const ExamQuestion& question) {
    const KindRow* kind = FindKind(question.kind);
    if (kind == nullptr) return;
    const auto check = [this, kind](const FieldRow& field, const auto& value) {
      if (!kind->Keeps(field.name) && HoldsText(value))
        Detail(text_id::kNotForKind, {strings_.Text(TextOf(field.name))});
    };
    VisitQuestionFields(check, question);
  }

  const FrameSetExam& exam_;
  const LongAnswerFlags& flags_;
  const StringTable& strings_;
  int number_ = 0;
  std::vector<SavingLoss> losses_;
};

}  // namespace

bool HasAnything(const ExamQuestion& question) {
  bool hasAnything = HoldsText(question.attachmentPaths[0]);
  const auto look = [&hasAnything](const FieldRow&, const auto& value) {
    hasAnything = hasAnything || HoldsText(value);
  };
  VisitQuestionFields(look, question);
  return hasAnything;
}

std::vector<SavingLoss> FindSavingLosses(const FrameSetExam& exam, const LongAnswerFlags& flags) {
  return LossFinder(exam, flags).Find();
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
  }
  services.longAnswerFlags.SetWhereNeeded(exam);
}

}  // namespace quorvantis
