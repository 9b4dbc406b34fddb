// SPDX-License-Identifier: MIT
#pragma once

#include "learn/reading/PaperReading.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Something about a reading that a teacher should look at.
struct ReadingWarning {
  enum class Kind {
    NoKey,             ///< a choice question without a right option, though others have one
    OptionCount,       ///< another number of options than most choice questions; `number` of them
    OneOption,         ///< a choice question with a single option
    EmptyOption,       ///< between others
    TooManyOptions,    ///< options beyond the fifth stand in the text or in an option; `number` of them
    AnswerPictures,    ///< `number` pictures in options or an answer, where an exam has none
    MorePictures,      ///< `number` pictures in the text, of which an exam keeps the first
    Formulas,          ///< `number` formulas, which an exam cannot hold
    NumberMissing,     ///< between this question and the one before it; `number` is the first that is missing
    NumberAgain,       ///< the same number twice in a row
    KeyNotAnOption,    ///< the paper's key names no option that there is; `text` is the key
    KeyUnclear,        ///< the key says more than letters; `text` is the key
    KeyVisible,        ///< what looks like the key stands in a text that pupils see; `text` is the place
    TooLongText,       ///< a text is longer than its field
    TwoAnswers,        ///< an own answer and one at the end that differ; `text` names both
    NotRead,           ///< a part of the paper became no question; `text` is its beginning
    KeyUnmatched,      ///< the answers at the end belong to no questions by their numbers; about the paper
    KeyMiscounted,     ///< a part of the key is left out: `number` letters for `questions` questions; paper
    KeyVersions,       ///< the key is left out: it is for versions, and the paper names none; about the paper
    KeyLeftOut,        ///< the key is left out: like KeyUnmatched; about the paper
    KeyNotPlaced,      ///< a part of the key is left out: no question has its number; about the paper
    KeyExplanations,   ///< explanations in the key are left out; about the paper
    TooManyQuestions,  ///< `number` questions; an exam takes 500
  };
  Kind kind = Kind::NoKey;
  int question = -1;  ///< index in ReadPaper::questions; -1 if it is about the whole paper
  int number = 0;
  std::u16string text{};
  int questions = 0;  ///< see KeyMiscounted
};

/// All warnings, those about the whole paper first, then by question.
std::vector<ReadingWarning> WarningsOf(const Paper& paper, const ImportSettings& rules,
                                       const PaperReading& reading);

/// One line for the user. The import gives the first question the number `first`.
std::u16string WarningText(const ReadingWarning& warning, const StringTable& strings, int first = 1);

}  // namespace quorvantis
