// SPDX-License-Identifier: MIT
#include "learn/rules/RuleFields.h"

#include "import/marking/RuleKeys.h"
#include "platform/texts/StudioTexts.h"
#include "regex/RegexPattern.h"
#include "text/AsciiCase.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr RuleField kFields[] = {
    {rule_key::kPreQuestion, text_id::kRulePreQuestion, &ImportSettings::m_strPreQuestion},
    {rule_key::kPreParenQuestion, text_id::kRulePreParenQuestion, &ImportSettings::m_strPreParenQuestion},
    {rule_key::kPattern, text_id::kRulePattern, &ImportSettings::m_strPattern},
    {rule_key::kPreAnswer, text_id::kRulePreAnswer, &ImportSettings::m_strPreAnswer},
    {rule_key::kPreAllAnswer, text_id::kRulePreAllAnswer, &ImportSettings::m_strPreAllAnswer},
    {rule_key::kTitle, text_id::kRuleTitle, &ImportSettings::m_strTitle},
    {rule_key::kBmp, text_id::kRuleBmp, &ImportSettings::m_strBmp},
    {rule_key::kChoiceBmp, text_id::kRuleChoiceBmp, &ImportSettings::m_strChoiceBmp},
    {rule_key::kChoiceAnswerPattern, text_id::kRuleChoiceKeys, &ImportSettings::m_strChoiceAnswerPattern},
    {rule_key::kChoiceAnswer, text_id::kRuleOneKey, &ImportSettings::m_strChoiceAnswer},
    {rule_key::kJudgementAnswerPattern, text_id::kRuleJudgementKeys,
     &ImportSettings::m_strJudgementAnswerPattern},
    {rule_key::kJudgementAnswer, text_id::kRuleOneKey, &ImportSettings::m_strJudgementAnswer},
    {rule_key::kQuestionKey, text_id::kRuleQuestionKey, &ImportSettings::m_strTableQuesKey, false},
    {rule_key::kAnswerKey, text_id::kRuleAnswerKey, &ImportSettings::m_strTableAnsKey, false},
};

}  // namespace

std::span<const RuleField> RuleFields() {
  return kFields;
}

int MatchesOf(std::u16string_view key, const PaperReading& reading) {
  const ReadPaper& paper = reading.paper;
  if (key == rule_key::kPattern) return static_cast<int>(paper.questions.size());
  if (key == rule_key::kChoiceAnswerPattern) return paper.hasChoiceBlock ? 1 : 0;
  if (key == rule_key::kJudgementAnswerPattern) return paper.hasJudgementBlock ? 1 : 0;
  if (key == rule_key::kChoiceAnswer) return static_cast<int>(paper.choiceAnswers);
  if (key == rule_key::kJudgementAnswer) return static_cast<int>(paper.judgementAnswers);
  const auto& counts = reading.marked.counts;
  const auto found =
      std::find_if(counts.begin(), counts.end(), [key](const auto& count) { return count.first == key; });
  return found == counts.end() ? 0 : found->second;
}

std::u16string RuleFault(const RuleField& field, std::u16string_view value, const StringTable& strings) {
  if (value.empty() || !field.isPattern) return {};
  const RegexPattern compiled(value, kRuleFlags);
  const auto& error = compiled.CompileError();
  if (!error) return {};
  const std::u16string reason(error->reason.begin(), error->reason.end());
  const auto position = static_cast<std::int64_t>(error->position) + 1;
  return FillMessage(strings.Text(text_id::kRuleInvalid), {FormatInteger(position), reason});
}

std::u16string RuleStateText(const RuleField& field, std::u16string_view value, const PaperReading& reading,
                             const StringTable& strings) {
  if (value.empty() || !field.isPattern) return {};
  std::u16string fault = RuleFault(field, value, strings);
  if (!fault.empty()) return fault;
  const int matches = MatchesOf(field.key, reading);
  return FillMessage(strings.Text(text_id::kRuleMatches), {FormatInteger(matches)});
}

std::vector<std::u16string> WithStep(const std::vector<std::u16string>& prepare, std::u16string_view step,
                                     bool isOn) {
  std::vector<std::u16string> names = prepare;
  std::erase_if(names, [step](const std::u16string& name) { return EqualsIgnoringAsciiCase(name, step); });
  if (isOn) names.emplace_back(step);
  return names;
}

bool HasStep(const std::vector<std::u16string>& prepare, std::u16string_view step) {
  return std::any_of(prepare.begin(), prepare.end(),
                     [step](const std::u16string& name) { return EqualsIgnoringAsciiCase(name, step); });
}

}  // namespace quorvantis
