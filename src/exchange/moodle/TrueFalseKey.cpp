// SPDX-License-Identifier: MIT
#include "exchange/moodle/TrueFalseKey.h"

#include "exchange/form/QuestionParts.h"
#include "exchange/form/TrueFalseWords.h"
#include "exchange/markup/Markup.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>
#include <optional>
#include <string>

namespace quorvantis {
namespace {

/// What the answers say together about the statement; nothing if they say nothing or contradict each other.
struct SaidTruth {
  bool isSaid = false;
  std::optional<bool> isTrue{};
};

SaidTruth TruthIn(const std::vector<ExchangedOption>& answers) {
  SaidTruth said;
  for (const ExchangedOption& answer : answers) {
    const auto word = TruthOf(ExamTextToPlain(answer.text));
    if (!word) continue;
    const bool isTrue = *word == answer.isRight;
    if (said.isSaid && said.isTrue != isTrue) return {true, std::nullopt};
    said = {true, isTrue};
  }
  return said;
}

bool AreOptions(const std::vector<ExchangedOption>& answers) {
  const bool haveText = std::none_of(answers.begin(), answers.end(),
                                     [](const ExchangedOption& answer) { return answer.text.empty(); });
  return answers.size() == 2 && haveText && answers[0].isRight != answers[1].isRight;
}

}  // namespace

void TakeTrueFalse(const std::vector<ExchangedOption>& answers, const StringTable& strings,
                   ExchangedQuestion& question, ExchangeNotes& notes) {
  const SaidTruth said = TruthIn(answers);
  MakeTrueFalse(said.isTrue.value_or(false), strings, question);
  if (said.isTrue) return;
  if (!said.isSaid && AreOptions(answers)) {
    question.options = answers;
    return;
  }
  for (ExchangedOption& option : question.options) option.isRight = false;
  notes.Tell(text_id::kExchangeNoRightRead);
}

}  // namespace quorvantis
