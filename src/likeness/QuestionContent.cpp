// SPDX-License-Identifier: MIT
#include "likeness/QuestionContent.h"

#include "model/AnswerLetters.h"
#include "model/FillInAnswers.h"
#include "model/QuestionKinds.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

bool IsBlankText(const std::u16string& text) {
  return text.find_first_not_of(u" \t\r\n\v\f\u00A0\u3000") == text.npos;
}

void AddOptions(const ExamQuestion& question, QuestionContent& content) {
  for (const std::u16string& option : question.options) {
    if (!IsBlankText(option)) content.options.push_back(option);
  }
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    const auto isIt = [i](char16_t letter) { return OptionIndex(letter) == i; };
    const bool isRight = std::ranges::any_of(question.answerLetters, isIt);
    if (isRight && !IsBlankText(question.options[i])) content.answers.push_back(question.options[i]);
  }
}

void AddFillIns(const std::u16string& line, QuestionContent& content) {
  for (const TextSpan& answer : FillInAnswersIn(line)) {
    content.answers.emplace_back(answer.Of(line));
    if (IsBlankText(content.answers.back())) content.answers.pop_back();
  }
}

}  // namespace

QuestionContent ContentOf(const ExamQuestion& question, std::vector<std::u16string> files) {
  QuestionContent content{question.kind, question.text, {}, {}, std::move(files)};
  const AnswerParts parts = AnswerOf(question.kind);
  if (parts.options) AddOptions(question, content);
  if (parts.fillIn) AddFillIns(question.answerText, content);
  if (parts.essay && !IsBlankText(question.essayAnswer)) content.answers.push_back(question.essayAnswer);
  return content;
}

}  // namespace quorvantis
