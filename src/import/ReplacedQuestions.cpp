// SPDX-License-Identifier: MIT
#include "import/ReplacedQuestions.h"

#include <algorithm>
#include <tuple>

namespace quorvantis {
namespace {

auto ContentOf(const ExamQuestion& question) {
  return std::tie(question.text, question.options, question.answerText, question.essayAnswer);
}

bool IsSame(const ExamQuestion& a, const ExamQuestion& b) {
  return ContentOf(a) == ContentOf(b);
}

}  // namespace

std::vector<int> MissingQuestions(const ExamPaper& before, const ExamPaper& after) {
  std::vector<int> missing;
  for (int n = 1; n <= kMaxQuestions; ++n) {
    const ExamQuestion& question = before.Question(n);
    if (IsSame(question, ExamQuestion()) || IsSame(question, after.Question(n))) continue;
    const auto isSame = [&](const ExamQuestion& other) { return IsSame(question, other); };
    if (std::ranges::none_of(after.questions, isSame)) missing.push_back(n);
  }
  return missing;
}

std::vector<int> QuestionsWithEarlierFiles(const ExamPaper& before, const ExamPaper& after, int first,
                                           int last) {
  std::vector<int> numbers;
  for (int n = first; n <= last; ++n) {
    const std::u16string& file = after.Question(n).attachmentPaths.front();
    if (!file.empty() && file == before.Question(n).attachmentPaths.front()) numbers.push_back(n);
  }
  return numbers;
}

}  // namespace quorvantis
