// SPDX-License-Identifier: MIT
#include "exchange/form/QuestionParts.h"

#include "exchange/form/Blanks.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>

namespace quorvantis {

void DecideRights(const std::vector<double>& fractions, std::vector<ExchangedOption>& options,
                  ExchangeNotes& notes) {
  const bool oneIsAll =
      std::ranges::any_of(fractions, [](double fraction) { return fraction >= kFullFraction; });
  bool hasRight = false;
  for (std::size_t i = 0; i < options.size() && i < fractions.size(); ++i) {
    options[i].isRight = fractions[i] >= (oneIsAll ? kFullFraction : 0.001);
    hasRight = hasRight || options[i].isRight;
    if (oneIsAll && !options[i].isRight && fractions[i] > 0)
      notes.Tell(text_id::kExchangePartlyRight, {Excerpt(options[i].text)});
  }
  if (!hasRight && !options.empty()) notes.Tell(text_id::kExchangeNoRightRead);
}

void MakeMatching(const std::vector<std::pair<std::u16string, std::u16string>>& pairs,
                  ExchangedQuestion& question, ExchangeNotes& notes) {
  notes.Tell(text_id::kExchangeMatching);
  question.kind = QuestionKind::FillIn;
  std::vector<std::u16string> rights;
  for (const auto& [left, right] : pairs) {
    if (!right.empty()) rights.push_back(right);
  }
  std::ranges::sort(rights);
  rights.erase(std::unique(rights.begin(), rights.end()), rights.end());
  for (std::size_t i = 0; i < rights.size(); ++i) question.text += (i == 0 ? u"\r\n(" : u" / ") + rights[i];
  if (!rights.empty()) question.text += u")";
  for (const auto& [left, right] : pairs) {
    if (left.empty()) continue;  // a wrong right side
    question.text.append(u"\r\n").append(left).append(u" ").append(kBlank);
    question.blanks.push_back({right});
  }
}

void MakeTrueFalse(bool isTrue, const StringTable& strings, ExchangedQuestion& question) {
  question.kind = QuestionKind::Choice;
  question.options = {{strings.Text(text_id::kExchangeTrue), isTrue},
                      {strings.Text(text_id::kExchangeFalse), !isTrue}};
}

}  // namespace quorvantis
