// SPDX-License-Identifier: MIT
#include "learn/patterns/RuleDraft.h"

#include "import/marking/RuleKeys.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/PreparationSteps.h"
#include "import/prepare/StepNames.h"
#include "learn/patterns/PatternText.h"
#include "model/AnswerLetters.h"
#include "model/ExamLimits.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestRule = 1'023;

/// Keeps a pattern for numbers, which begins at the beginning of a line, from some lines.
std::u16string WithoutLines(std::u16string pattern, const std::set<std::u16string>& lines) {
  const std::size_t place = pattern.find(u'^');
  if (!lines.empty() && place != pattern.npos) pattern.insert(place + 1, u"(?!" + OneOfPattern(lines) + u")");
  return pattern;
}

std::u16string PreQuestion(const RuleDraft& draft) {
  const std::u16string prepared = u"(?<!!)\\s*^" + std::u16string(kPreparedNumberPattern) + u"[ ]*";
  std::vector<std::u16string> ways;
  if (!draft.numbers.empty())
    ways.push_back(WithoutLines(draft.numbers.front().Pattern(), draft.noQuestions));
  if (draft.numbers.empty() || draft.HasStep(step_name::kTableOptions) ||
      draft.HasStep(step_name::kForgottenNumbers))
    ways.push_back(prepared);
  ways.insert(ways.end(), draft.questionBegins.begin(), draft.questionBegins.end());
  if (ways.size() == 1) return ways.front();
  std::u16string pattern;
  for (const std::u16string& way : ways) pattern += (pattern.empty() ? u"(?:" : u"|") + way;
  return pattern + u")";
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

std::u16string OptionPattern(const RuleDraft& draft, std::size_t index) {
  const std::u16string pattern = draft.options.LabelPattern(index, draft.optionPlaces);
  const auto marked = draft.optionBegins.find(index);
  if (marked == draft.optionBegins.end()) return pattern;
  return u"(?:" + pattern + u"|" + OneOfPattern(marked->second) + u")";
}

/// Each further option may be missing, and then those after it are, too.
std::u16string ChoicePattern(const RuleDraft& draft) {
  std::u16string pattern = u"(?<Q1>.+?)";
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    const std::u16string label = u"\\s*" + OptionPattern(draft, i) + u"\\s*";
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
                          draft.HasStep(step_name::kTableOptions) || draft.HasStep(step_name::kJudgement) ||
                          !draft.optionBegins.empty();
  return hasOptions ? ChoicePattern(draft) + u"|" + other : other;
}

std::u16string Title(const RuleDraft& draft) {
  return draft.headings.empty() ? std::u16string() : u"^[ \\t\u3000]*" + OneOfPattern(draft.headings);
}

}  // namespace

ImportSettings RulesOf(const RuleDraft& draft) {
  ImportSettings rules;
  rules.m_strPreQuestion = PreQuestion(draft);
  if (draft.numbers.size() > 1)
    rules.m_strPreParenQuestion = WithoutLines(draft.numbers[1].Pattern(), draft.noQuestions);
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
