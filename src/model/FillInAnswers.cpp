// SPDX-License-Identifier: MIT
#include "model/FillInAnswers.h"

#include "model/ExamQuestion.h"

#include <algorithm>

namespace quorvantis {

std::vector<TextSpan> FillInAnswersIn(std::u16string_view line) {
  std::vector<TextSpan> answers;
  for (std::size_t begin = 0; begin <= line.size();) {
    const std::size_t end = std::min(line.find(kListSeparator, begin), line.size());
    answers.push_back({begin, end});
    begin = end == line.size() ? end + 1 : end + kListSeparator.size();
  }
  return answers;
}

std::u16string FillInAnswersJoined(std::u16string_view line, std::u16string_view between) {
  std::u16string text;
  for (const TextSpan& answer : FillInAnswersIn(line)) {
    if (answer.begin > 0) text.append(between);
    text.append(answer.Of(line));
  }
  return text;
}

}  // namespace quorvantis
