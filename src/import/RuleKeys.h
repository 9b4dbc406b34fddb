// SPDX-License-Identifier: MIT
// The keys of "ImportExam.ini", as users know them.
#pragma once

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
inline constexpr std::u16string_view kListLabels = u"ListLabels";
inline constexpr std::u16string_view kTable = u"Table";
inline constexpr std::u16string_view kQuestionKey = u"QuestionKey";
inline constexpr std::u16string_view kAnswerKey = u"AnswerKey";

}  // namespace quorvantis::rule_key
