// SPDX-License-Identifier: MIT
#include "exchange/form/Blanks.h"

#include "model/FillInAnswers.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kShortestBlank = 3;

constexpr int kLongestBlank = 400;

}  // namespace

std::u16string BlankOfClass(std::u16string_view className) {
  if (!className.starts_with(kBlankClass)) return std::u16string(kBlank);
  const int length = ParseInteger(className.substr(kBlankClass.size()));
  return std::u16string(
      static_cast<std::size_t>(std::clamp(length, static_cast<int>(kShortestBlank), kLongestBlank)), u'_');
}

std::vector<TextSpan> BlanksIn(std::u16string_view text) {
  std::vector<TextSpan> blanks;
  for (std::size_t at = text.find(u'_'); at != text.npos; at = text.find(u'_', at)) {
    const std::size_t end = std::min(text.find_first_not_of(u'_', at), text.size());
    if (end - at >= kShortestBlank) blanks.push_back({at, end});
    at = end;
  }
  return blanks;
}

std::vector<BlankAnswers> ByBlank(std::u16string_view text, const BlankAnswers& answers) {
  BlankAnswers given = answers;
  std::erase(given, std::u16string());
  if (given.empty()) return {};
  if (answers.size() < 2 || BlanksIn(text).size() != answers.size()) {
    if (given.size() < answers.size()) return ByBlank(text, given);
    return {given};
  }
  std::vector<BlankAnswers> blanks;
  for (const std::u16string& answer : answers)
    blanks.push_back(answer.empty() ? BlankAnswers() : BlankAnswers{answer});
  return blanks;
}

BlankAnswers SplitAnswers(std::u16string_view line) {
  BlankAnswers answers;
  for (const TextSpan& answer : FillInAnswersIn(line)) answers.emplace_back(answer.Of(line));
  return answers;
}

}  // namespace quorvantis
