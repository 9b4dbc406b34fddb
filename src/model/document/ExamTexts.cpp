// SPDX-License-Identifier: MIT
#include "model/document/ExamTexts.h"

#include "model/QuestionKinds.h"
#include "model/document/FrameSetExam.h"

namespace quorvantis {
namespace {

using TextVisitor = std::function<void(const TextPlace& place, const std::u16string& text)>;

template <class Texts>
void VisitList(const TextPlace& place, const Texts& texts, const TextVisitor& visit) {
  for (unsigned index = 0; index < texts.size(); ++index) {
    if (!texts[index].empty()) visit({place.question, place.field, index}, texts[index]);
  }
}

void VisitQuestion(int number, const ExamQuestion& question, const TextVisitor& visit) {
  const AnswerParts answer = AnswerOf(question.kind);
  const auto visitOne = [&](ExamFieldName field, const std::u16string& text) {
    if (!text.empty()) visit({number, field}, text);
  };
  visitOne(ExamFieldName::QuestionText, question.text);
  if (answer.options) VisitList({number, ExamFieldName::Options}, question.options, visit);
  if (answer.fillIn) visitOne(ExamFieldName::FillInAnswer, question.answerText);
  if (answer.essay) visitOne(ExamFieldName::EssayAnswer, question.essayAnswer);
  VisitList({number, ExamFieldName::AttachmentName}, question.attachmentNames, visit);
}

template <class Texts>
auto* EntryAt(Texts& texts, std::size_t index) {
  return index < texts.size() ? &texts[index] : nullptr;
}

/// For an exam and a const exam alike.
template <class Text, class Exam>
Text* FindText(Exam& exam, const TextPlace& place) {
  const bool isOfExam = place.question == 0;
  if (!isOfExam && !IsQuestionNumber(place.question)) return nullptr;
  auto& question = exam.Question(place.question);
  switch (place.field) {
    case ExamFieldName::Title:
      return isOfExam ? &exam.title : nullptr;
    case ExamFieldName::AttachmentName:
      return EntryAt(isOfExam ? exam.examAttachmentNames : question.attachmentNames, place.index);
    case ExamFieldName::QuestionText:
      return isOfExam ? nullptr : &question.text;
    case ExamFieldName::Options:
      return isOfExam ? nullptr : EntryAt(question.options, place.index);
    case ExamFieldName::FillInAnswer:
      return isOfExam ? nullptr : &question.answerText;
    case ExamFieldName::EssayAnswer:
      return isOfExam ? nullptr : &question.essayAnswer;
    default:
      return nullptr;
  }
}

}  // namespace

void VisitTexts(const FrameSetExam& exam, const TextVisitor& visit) {
  if (!exam.title.empty()) visit({}, exam.title);
  VisitList({0, ExamFieldName::AttachmentName}, exam.examAttachmentNames, visit);
  for (int number = 1; number <= kMaxQuestions; ++number) VisitQuestion(number, exam.Question(number), visit);
}

const std::u16string* TextAt(const FrameSetExam& exam, const TextPlace& place) {
  return FindText<const std::u16string>(exam, place);
}

std::u16string* TextAt(FrameSetExam& exam, const TextPlace& place) {
  return FindText<std::u16string>(exam, place);
}

}  // namespace quorvantis
