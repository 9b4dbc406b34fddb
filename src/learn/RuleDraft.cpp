// SPDX-License-Identifier: MIT
#include "learn/RuleDraft.h"

#include "import/marking/RuleKeys.h"
#include "import/prepare/PreparationSteps.h"
#include "import/prepare/PreparedLabels.h"
#include "import/prepare/StepNames.h"
#include "learn/PatternText.h"
#include "model/AnswerLetters.h"
#include "model/ExamLimits.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestRule = 1'023;

std::u16string PreQuestion(const RuleDraft& draft) {
  const std::u16string prepared = u"(?<!!)\\s*^" + std::u16string(kPreparedNumberPattern) + u"[ ]*";
  if (draft.numbers.empty()) return prepared;
  const std::u16string pattern = draft.numbers.front().Pattern();
  return draft.HasStep(step_name::kTableOptions) ? u"(?:" + pattern + u"|" + prepared + u")" : pattern;
}

/// "Answer 1:" finds those of all questions.
std::u16string NumberedPattern(std::u16string_view label) {
  constexpr std::u16string_view kDigits = u"0123456789";
  const std::size_t begin = std::min(label.find_first_of(kDigits), label.size());
  const std::size_t end = std::min(label.find_first_not_of(kDigits, begin), label.size());
  std::u16string pattern = LiteralPattern(label.substr(0, begin));
  if (end > begin) pattern += NumeralPattern(NumeralKind::Decimal, kLongNumberDigits);
  return pattern + LiteralPattern(label.substr(end));
}

std::u16string PreAnswer(const RuleDraft& draft) {
  std::u16string pattern = u"\\s*(?:^" + std::u16string(kPreparedKeyPattern);
  if (!draft.answerLabels.empty()) {
    std::set<std::u16string> labels;
    for (const std::u16string& label : draft.answerLabels) labels.insert(NumberedPattern(label));
    pattern += draft.labelsWithinLines ? u"|" : u"|^[ \\t\u3000]*";
    pattern += u"(?i:" + OneOfPattern(labels) + u")";
  }
  return pattern + u")[ \\t\u3000]*";
}

/// Each further option may be missing, and then those after it are, too.
std::u16string ChoicePattern(const RuleDraft& draft) {
  std::u16string pattern = u"(?<Q1>.+?)";
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    const std::u16string label = u"\\s*" + draft.options.LabelPattern(i, draft.optionsAtLineStarts) + u"\\s*";
    const std::u16string name(1, OptionLetter(i));
    if (i < 2) {
      pattern += label + u"(?<" + name + u">.*?)";
    } else {
      pattern += u"(?:" + label + u"(?<" + name + u">.*?))?";
    }
  }
  return pattern + u"\\s*\\z";
}

std::u16string Pattern(const RuleDraft& draft) {
  const std::u16string other = u"(?<Q2>.*\\S)";
  const bool hasOptions = !draft.options.IsEmpty() || draft.HasStep(step_name::kPlainOptions) ||
                          draft.HasStep(step_name::kTableOptions) || draft.HasStep(step_name::kJudgement);
  return hasOptions ? ChoicePattern(draft) + u"|" + other : other;
}

std::u16string Title(const RuleDraft& draft) {
  return draft.headings.empty() ? std::u16string() : u"^[ \\t\u3000]*" + OneOfPattern(draft.headings);
}

}  // namespace

ImportSettings RulesOf(const RuleDraft& draft) {
  ImportSettings rules;
  rules.m_strPreQuestion = PreQuestion(draft);
  if (draft.numbers.size() > 1) rules.m_strPreParenQuestion = draft.numbers[1].Pattern();
  rules.m_strPreAnswer = PreAnswer(draft);
  rules.m_strPattern = Pattern(draft);
  rules.m_strTitle = Title(draft);
  if (!draft.answersFrom.empty()) rules.m_strPreAllAnswer = u"\\s*^[ \\t\u3000]*" + draft.answersFrom;
  rules.listLabels = true;
  for (const PreparationStep& step : PreparationSteps()) {
    if (draft.HasStep(step.name)) rules.prepare.emplace_back(step.name);
  }
  return rules;
}

bool FitsFile(const ImportSettings& rules) {
  return std::ranges::all_of(
      kPatternRules, [&](const PatternRule& rule) { return (rules.*rule.pattern).size() <= kLongestRule; });
}

}  // namespace quorvantis
