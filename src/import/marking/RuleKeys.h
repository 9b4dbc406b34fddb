// SPDX-License-Identifier: MIT
// The keys of "ImportExam.ini", as users know them, and the patterns that they give.
#pragma once

#include "import/marking/ImportSettings.h"

#include <string_view>

namespace quorvantis::rule_key {

inline constexpr std::u16string_view kPattern = u"Pattern";
inline constexpr std::u16string_view kPreQuestion = u"PreQuestion";
inline constexpr std::u16string_view kPreParenQuestion = u"PreParenQuestion";
inline constexpr std::u16string_view kPreAnswer = u"PreAnswer";
inline constexpr std::u16string_view kPreAllAnswer = u"PreAllAnswer";
inline constexpr std::u16string_view kTitle = u"Title";
inline constexpr std::u16string_view kBmp = u"Bmp";
inline constexpr std::u16string_view kChoiceBmp = u"ChoiceBmp";
inline constexpr std::u16string_view kChoiceAnswerPattern = u"ChoiceAnswerPattern";
inline constexpr std::u16string_view kChoiceAnswer = u"ChoiceAnswer";
inline constexpr std::u16string_view kJudgementAnswerPattern = u"JudgementAnswerPattern";
inline constexpr std::u16string_view kJudgementAnswer = u"JudgementAnswer";
inline constexpr std::u16string_view kPreTable = u"PreTable";
inline constexpr std::u16string_view kPrepare = u"Prepare";
inline constexpr std::u16string_view kListLabels = u"ListLabels";
inline constexpr std::u16string_view kTable = u"Table";
inline constexpr std::u16string_view kQuestionKey = u"QuestionKey";
inline constexpr std::u16string_view kAnswerKey = u"AnswerKey";

}  // namespace quorvantis::rule_key

namespace quorvantis {

struct PatternRule {
  std::u16string_view key;
  std::u16string ImportSettings::*pattern;
};

/// The rules that are patterns, in the order in which users are told about them.
inline constexpr PatternRule kPatternRules[] = {
    {rule_key::kPattern, &ImportSettings::m_strPattern},
    {rule_key::kPreQuestion, &ImportSettings::m_strPreQuestion},
    {rule_key::kPreParenQuestion, &ImportSettings::m_strPreParenQuestion},
    {rule_key::kPreAnswer, &ImportSettings::m_strPreAnswer},
    {rule_key::kPreAllAnswer, &ImportSettings::m_strPreAllAnswer},
    {rule_key::kTitle, &ImportSettings::m_strTitle},
    {rule_key::kBmp, &ImportSettings::m_strBmp},
    {rule_key::kChoiceBmp, &ImportSettings::m_strChoiceBmp},
    {rule_key::kChoiceAnswerPattern, &ImportSettings::m_strChoiceAnswerPattern},
    {rule_key::kChoiceAnswer, &ImportSettings::m_strChoiceAnswer},
    {rule_key::kJudgementAnswerPattern, &ImportSettings::m_strJudgementAnswerPattern},
    {rule_key::kJudgementAnswer, &ImportSettings::m_strJudgementAnswer},
};

}  // namespace quorvantis
