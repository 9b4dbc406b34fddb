// SPDX-License-Identifier: MIT
#include "exchange/qti/ItemParts.h"

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/QuestionParts.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool HasNoAnswer(const BlankAnswers& blank) {
  return std::ranges::all_of(blank, [](const std::u16string& answer) { return answer.empty(); });
}

}  // namespace

void DecideByScores(const std::vector<double>& scores, bool addUp, std::vector<ExchangedOption>& options,
                    ExchangeNotes& notes) {
  const double best = scores.empty() ? 0 : *std::ranges::max_element(scores);
  for (std::size_t i = 0; i < options.size() && i < scores.size(); ++i) {
    if (scores[i] <= 0) continue;
    options[i].isRight = addUp || scores[i] * 100 >= best * kFullFraction;
    if (!options[i].isRight) notes.Tell(text_id::kExchangePartlyRight, {Excerpt(options[i].text)});
  }
  if (best <= 0 && !options.empty()) notes.Tell(text_id::kExchangeNoRightRead);
}

void KeepPlacesOfBlanks(ExchangedQuestion& question, ExchangeNotes& notes) {
  if (std::ranges::all_of(question.blanks, HasNoAnswer)) return question.blanks.clear();
  for (BlankAnswers& blank : question.blanks) {
    if (!HasNoAnswer(blank)) continue;
    blank.clear();
    notes.Tell(text_id::kExchangeBlankNoRight);
  }
}

void PutInFront(std::u16string_view passage, ExchangedQuestion& question, ExchangeNotes& notes) {
  if (passage.empty()) return;
  notes.Tell(text_id::kExchangePassage, {Excerpt(passage)});
  if (!question.text.empty()) question.text.insert(0, u"\r\n");
  question.text.insert(0, passage);
}

}  // namespace quorvantis
