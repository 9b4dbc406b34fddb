// SPDX-License-Identifier: MIT
#include "check/OptionRules.h"

#include <algorithm>

namespace quorvantis {
namespace {

TextPlace OptionOf(const CheckedQuestion& question, std::size_t option) {
  return {question.number, ExamFieldName::Options, static_cast<unsigned>(option)};
}

std::u16string LetterOf(std::size_t option) {
  return std::u16string(1, OptionLetter(option));
}

bool IsBlankInOption(char16_t unit) {
  return unit <= u' ' || unit == u'\u00A0' || unit == u'\u3000';
}

std::u16string WithoutInnerBlanks(std::u16string_view text) {
  std::u16string dense;
  for (const char16_t unit : text) {
    if (!IsBlankInOption(unit)) {
      dense.push_back(unit);
    } else if (!dense.empty() && dense.back() != u' ') {
      dense.push_back(u' ');
    }
  }
  return dense;
}

}  // namespace

void ChoiceWithoutKey::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (question.answer.options && question.keys == 0)
    findings.Add({question.number, ExamFieldName::AnswerLetters});
}

void KeyOnEmptyOption::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (question.isKey[i] && question.options[i].empty()) findings.Add(OptionOf(question, i), {LetterOf(i)});
  }
}

void TooFewOptions::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (question.answer.options && question.writtenOptions < 2)
    findings.Add(OptionOf(question, question.writtenOptions == 1 && question.optionsEnd == 1 ? 1 : 0));
}

void OptionGap::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  if (question.writtenOptions < 2) return;  // the rule above says so
  for (std::size_t i = 0; i < question.optionsEnd; ++i) {
    if (question.options[i].empty() && !question.isKey[i]) findings.Add(OptionOf(question, i), {LetterOf(i)});
  }
}

void EqualOptions::CheckQuestion(const CheckedQuestion& question, FindingList& findings) const {
  std::array<std::u16string, kOptionCount> dense;
  std::ranges::transform(question.options, dense.begin(), WithoutInnerBlanks);
  for (std::size_t i = 1; i < kOptionCount; ++i) {
    if (dense[i].empty()) continue;
    const auto equal = std::find(dense.begin(), dense.begin() + static_cast<std::ptrdiff_t>(i), dense[i]);
    const auto first = static_cast<std::size_t>(equal - dense.begin());
    if (first < i) findings.Add(OptionOf(question, i), {LetterOf(first), LetterOf(i)});
  }
}

}  // namespace quorvantis
