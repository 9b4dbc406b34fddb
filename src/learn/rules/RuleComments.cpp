// SPDX-License-Identifier: MIT
#include "learn/rules/RuleComments.h"

#include "import/marking/RuleKeys.h"
#include "import/prepare/PreparationSteps.h"
#include "learn/rules/RuleFields.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

using Words = std::pair<std::u16string_view, std::u16string_view>;

constexpr Words kKeyComments[] = {
    {rule_key::kListLabels, u"The numbers that the word processor puts in are part of the text."},
    {rule_key::kPreQuestion, u"The number of a question"},
    {rule_key::kPreParenQuestion, u"Another way of numbering questions"},
    {rule_key::kPreAnswer, u"What stands before an answer"},
    {rule_key::kPreAllAnswer, u"The heading of the answers at the end."},
    {rule_key::kTitle, u"Headings, which are left out."},
    {rule_key::kBmp, u"The picture of a question."},
    {rule_key::kChoiceBmp, u"A picture among the options."},
    {rule_key::kChoiceAnswerPattern, u"The place with the answers of all choice questions."},
    {rule_key::kChoiceAnswer, u"One answer in that place."},
    {rule_key::kJudgementAnswerPattern, u"The place with the answers of all true/false questions."},
    {rule_key::kJudgementAnswer, u"One answer in that place."},
    {rule_key::kTable, u"The paper is a table with a question in each row."},
    {rule_key::kQuestionKey, u"The word in the first row above the questions."},
    {rule_key::kAnswerKey, u"The word in the first row above the answers."},
};

/// What a part of a pattern for numbers says about them.
constexpr Words kNumberFeatures[] = {
    {u"\\d", u"digits"},
    {u"[0-9]", u"digits"},
    {u"0-9\uFF10-\uFF19", u"digits of any width"},
    {u"\uFF10-\uFF19", u"wide digits"},
    {u"\u0660", u"Arabic digits"},
    {u"\u06F0", u"Persian digits"},
    {u"\u0966", u"Devanagari digits"},
    {u"\u09E6", u"Bengali digits"},
    {u"\u0E50", u"Thai digits"},
    {u"\u2460", u"digits in circles"},
    {u"\u2474", u"digits in brackets"},
    {u"\u2488", u"digits with dots"},
    {u"IVX", u"Roman numerals"},
    {u"ivx", u"small Roman numerals"},
    {u"\u4E00", u"Chinese numerals"},
    {u"\u27E6", u"numbers that a step has put in"},
};

constexpr Words kAnswerFeatures[] = {
    {u"\u27E6", u"the sign that a step has put in"},
};

template <std::size_t N>
std::u16string FeatureList(const Words (&features)[N], std::u16string_view value) {
  std::u16string list;
  for (const auto& [sign, words] : features) {
    const bool isNew = value.find(sign) != value.npos && list.find(words) == list.npos;
    if (isNew) list.append(list.empty() ? u"" : u", ").append(words);
  }
  return list;
}

std::u16string PartsComment(std::u16string_view value) {
  char16_t last = 0;
  for (char16_t letter = u'A'; letter <= u'E'; ++letter) {
    if (value.find(std::u16string(u"(?<") + letter + u'>') != value.npos) last = letter;
  }
  std::u16string comment = u"A question: its text";
  if (last != 0) comment.append(u" and options A to ").append(1, last);
  if (last != 0 && value.find(u"(?<Q2>") != value.npos) comment += u", or its text alone";
  return comment + u".";
}

std::u16string StepList(std::u16string_view value) {
  std::u16string comment = u"Before the rules are applied";
  const std::vector<std::u16string> named = ReadPrepareList(value);
  for (const PreparationStep& step : PreparationSteps()) {
    if (!HasStep(named, step.name)) continue;
    comment.append(comment.find(u':') == comment.npos ? u": " : u"; ").append(step.comment);
  }
  return comment + u".";
}

std::u16string WithFeatures(std::u16string_view comment, const std::u16string& features) {
  std::u16string text(comment);
  if (!features.empty()) text.append(u": ").append(features);
  return text + u".";
}

}  // namespace

std::u16string RuleComment(std::u16string_view key, std::u16string_view value) {
  if (key == rule_key::kPattern) return PartsComment(value);
  if (key == rule_key::kPrepare) return StepList(value);
  const auto* found = std::ranges::find(kKeyComments, key, &Words::first);
  const std::u16string_view words = found == std::end(kKeyComments) ? std::u16string_view() : found->second;
  if (key == rule_key::kPreQuestion || key == rule_key::kPreParenQuestion)
    return WithFeatures(words, FeatureList(kNumberFeatures, value));
  if (key == rule_key::kPreAnswer) {
    const std::u16string features = FeatureList(kAnswerFeatures, value);
    return WithFeatures(words, features.empty() ? features : u"its label, or " + features);
  }
  return std::u16string(words);
}

}  // namespace quorvantis
