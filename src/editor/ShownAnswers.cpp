// SPDX-License-Identifier: MIT
#include "editor/ShownAnswers.h"

#include "editor/QuestionForm.h"
#include "model/QuestionKinds.h"

namespace quorvantis {

ExamQuestion AnswersAsShown(const ExamQuestion& question) {
  ExamQuestion answers;
  answers.answerText = question.answerText;
  answers.answerMask = question.answerMask;
  QuestionForm form;
  LoadForm(answers, form);
  StoreForm(form, question.kind, answers);
  answers.oralFlag = AnswerOf(question.kind).oral && question.oralFlag == 1 ? 1 : 0;
  return answers;
}

bool HasAnswers(const ExamQuestion& question, const ExamQuestion& answers) {
  return question.answerText == answers.answerText && question.answerLetters == answers.answerLetters &&
         question.answerMask == answers.answerMask && question.oralFlag == answers.oralFlag;
}

ExamQuestion WithAnswers(ExamQuestion question, const ExamQuestion& answers) {
  question.answerText = answers.answerText;
  question.answerLetters = answers.answerLetters;
  question.answerMask = answers.answerMask;
  question.oralFlag = answers.oralFlag;
  return question;
}

}  // namespace quorvantis
