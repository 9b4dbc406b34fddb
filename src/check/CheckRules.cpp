// SPDX-License-Identifier: MIT
#include "check/CheckRules.h"

#include "check/AnswerRules.h"
#include "check/FileRules.h"
#include "check/KeyRules.h"
#include "check/OptionRules.h"
#include "check/QuestionRules.h"
#include "check/ScoreRules.h"
#include "check/SimilarQuestions.h"
#include "check/TextRules.h"
#include "check/WordingRules.h"
#include "platform/texts/CheckTexts.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The only instance of a rule.
template <class Rule>
const Rule kRule{};

// clang-format off
const CheckRuleRow kRows[] = {
    {"empty-question",          Severity::Wrong,    text_id::kCheckEmptyQuestion,     kRule<EmptyQuestion>},
    {"question-without-text",   Severity::Wrong,    text_id::kCheckNoText,            kRule<QuestionWithoutText>},
    {"choice-without-key",      Severity::Wrong,    text_id::kCheckNoKey,             kRule<ChoiceWithoutKey>},
    {"key-on-empty-option",     Severity::Wrong,    text_id::kCheckKeyOnEmpty,        kRule<KeyOnEmptyOption>},
    {"too-few-options",         Severity::Wrong,    text_id::kCheckFewOptions,        kRule<TooFewOptions>},
    {"option-gap",              Severity::Wrong,    text_id::kCheckOptionGap,         kRule<OptionGap>},
    {"equal-options",           Severity::Wrong,    text_id::kCheckEqualOptions,      kRule<EqualOptions>},
    {"fill-in-without-answer",  Severity::Wrong,    text_id::kCheckNoAnswer,          kRule<FillInWithoutAnswer>},
    {"essay-without-answer",    Severity::Hint,     text_id::kCheckNoModelAnswer,     kRule<EssayWithoutAnswer>},
    {"blanks-and-answers",      Severity::Doubtful, text_id::kCheckBlanks,            kRule<BlanksAndAnswers>},
    {"saving-loss",             Severity::Wrong,    text_id::kCheckSavingLoss,        kRule<SavingLosesWork>},
    {"text-near-limit",         Severity::Hint,     text_id::kCheckNearLimit,         kRule<TextNearLimit>},
    {"score-ranges-overlap",    Severity::Wrong,    text_id::kCheckScoreOverlap,      kRule<ScoreRangesOverlap>},
    {"questions-without-score", Severity::Wrong,    text_id::kCheckNoScore,           kRule<QuestionsWithoutScore>},
    {"score-of-zero",           Severity::Doubtful, text_id::kCheckZeroScore,         kRule<ScoreOfZero>},
    {"odd-score-sum",           Severity::Hint,     text_id::kCheckScoreSum,          kRule<OddScoreSum>},
    {"shuffled-option",         Severity::Doubtful, text_id::kCheckShuffledOption,    kRule<ShuffledOptionReference>},
    {"shuffled-question",       Severity::Doubtful, text_id::kCheckShuffledQuestion,  kRule<ShuffledQuestionReference>},
    {"skewed-keys",             Severity::Doubtful, text_id::kCheckSkewedKeys,        kRule<SkewedKeys>},
    {"longest-is-right",        Severity::Hint,     text_id::kCheckLongestIsRight,    kRule<LongestIsRight>},
    {"nearly-equal-questions",  Severity::Doubtful, text_id::kCheckNearlyEqual,       kRule<NearlyEqualQuestions>},
    {"picture-without-file",    Severity::Doubtful, text_id::kCheckPictureMentioned,  kRule<PictureWithoutFile>},
    {"file-missing",            Severity::Wrong,    text_id::kCheckFileMissing,       kRule<FileMissing>},
    {"file-empty",              Severity::Wrong,    text_id::kCheckFileEmpty,         kRule<FileEmpty>},
    {"file-damaged",            Severity::Wrong,    text_id::kCheckFileDamaged,       kRule<FileDamaged>},
    {"file-misnamed",           Severity::Doubtful, text_id::kCheckFileMisnamed,      kRule<FileMisnamed>},
    {"file-not-shown",          Severity::Doubtful, text_id::kCheckFileNotShown,      kRule<FileNotShown>},
    {"file-too-large",          Severity::Doubtful, text_id::kCheckFileTooLarge,      kRule<FileTooLarge>},
    {"picture-without-words",   Severity::Hint,     text_id::kCheckPictureUntold,     kRule<PictureWithoutWords>},
    {"unbalanced-markup",       Severity::Doubtful, text_id::kCheckUnbalancedMarkup,  kRule<UnbalancedMarkup>},
    {"taken-for-markup",        Severity::Doubtful, text_id::kCheckTakenForMarkup,    kRule<TakenForMarkup>},
    {"page-markup",             Severity::Wrong,    text_id::kCheckPageMarkup,        kRule<PageMarkup>},
    {"swallowing-markup",       Severity::Wrong,    text_id::kCheckSwallowingMarkup,  kRule<SwallowingMarkup>},
    {"lost-character",          Severity::Wrong,    text_id::kCheckLostCharacter,     kRule<LostCharacter>},
    {"mixed-scripts",           Severity::Doubtful, text_id::kCheckMixedScripts,      kRule<MixedScripts>},
    {"plain-negation",          Severity::Hint,     text_id::kCheckPlainNegation,     kRule<PlainNegation>},
};
// clang-format on

}  // namespace

std::span<const CheckRuleRow> CheckRules() {
  return kRows;
}

const CheckRuleRow* FindCheckRule(std::string_view id) {
  const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                 [id](const CheckRuleRow& each) { return each.id == id; });
  return row != std::end(kRows) ? row : nullptr;
}

}  // namespace quorvantis
