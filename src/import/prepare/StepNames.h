// SPDX-License-Identifier: MIT
// The names of the steps in "ImportExam.ini", for those who switch a step on or ask for it.
// PreparationSteps.cpp has the table of all steps.
#pragma once

#include <string_view>

namespace quorvantis::step_name {

inline constexpr std::u16string_view kSoftBreaks = u"SoftBreaks";
inline constexpr std::u16string_view kPlainSpaces = u"PlainSpaces";
inline constexpr std::u16string_view kTableOptions = u"TableOptions";
inline constexpr std::u16string_view kMixedLetters = u"MixedLetters";
inline constexpr std::u16string_view kAnswerSlips = u"AnswerSlips";
inline constexpr std::u16string_view kOptionColumns = u"OptionColumns";
inline constexpr std::u16string_view kNumberedOptions = u"NumberedOptions";
inline constexpr std::u16string_view kForgottenNumbers = u"ForgottenNumbers";
inline constexpr std::u16string_view kUnnumbered = u"Unnumbered";
inline constexpr std::u16string_view kPlainOptions = u"PlainOptions";
inline constexpr std::u16string_view kClozeStems = u"ClozeStems";
inline constexpr std::u16string_view kKeyAtEnd = u"KeyAtEnd";
inline constexpr std::u16string_view kNoise = u"Noise";
inline constexpr std::u16string_view kPassages = u"Passages";
inline constexpr std::u16string_view kSignedKey = u"SignedKey";
inline constexpr std::u16string_view kEmphasisedKey = u"EmphasisedKey";
inline constexpr std::u16string_view kKeyInStem = u"KeyInStem";
inline constexpr std::u16string_view kKeyLetters = u"KeyLetters";
inline constexpr std::u16string_view kJudgement = u"Judgement";
inline constexpr std::u16string_view kBlankForms = u"BlankForms";
inline constexpr std::u16string_view kOpenAnswers = u"OpenAnswers";

}  // namespace quorvantis::step_name
