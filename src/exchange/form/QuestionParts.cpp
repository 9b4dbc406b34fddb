// SPDX-License-Identifier: MIT
#include "exchange/form/QuestionParts.h"

#include "exchange/form/Blanks.h"
#include "platform/texts/ExchangeTexts.h"

#include <algorithm>
#include <cmath>

namespace quorvantis {

namespace {

constexpr double kLeastFraction = 0.001;  // more than nothing
constexpr double kShareTolerance = 1.5;   // people write 33 for a third

bool IsAbout(double fraction, double expected) {
  return std::abs(fraction - expected) < kShareTolerance;
}

/// Whether several options, none of them right by itself, are worth the whole score together.
bool ShareTheScore(const std::vector<double>& fractions) {
  double sum = 0;
  for (const double fraction : fractions) sum += std::max(fraction, 0.0);
  return IsAbout(sum, 100);
}

/// Whether all that counts for something or against it counts alike, as in an exam.
bool CountAlike(const std::vector<double>& fractions) {
  const double most = fractions.empty() ? 0 : *std::ranges::max_element(fractions);
  return std::ranges::all_of(fractions, [most](double fraction) {
    return fraction == 0 || IsAbout(fraction, fraction > 0 ? most : -100);
  });
}

void TellFullyRight(const std::vector<double>& fractions, ExchangeNotes& notes) {
  const auto isFull = [](double fraction) { return fraction >= kFullFraction; };
  if (std::ranges::count_if(fractions, isFull) > 1) notes.Tell(text_id::kExchangeSeveralFullyRight);
}

}  // namespace

void DecideRights(const std::vector<double>& fractions, std::vector<ExchangedOption>& options,
                  ExchangeNotes& notes) {
  const bool oneIsAll =
      std::ranges::any_of(fractions, [](double fraction) { return fraction >= kFullFraction; });
  const bool isShared = !oneIsAll && ShareTheScore(fractions);
  bool hasRight = false;
  for (std::size_t i = 0; i < options.size() && i < fractions.size(); ++i) {
    options[i].isRight = fractions[i] >= (oneIsAll ? kFullFraction : kLeastFraction);
    hasRight = hasRight || options[i].isRight;
    if (oneIsAll && !options[i].isRight && fractions[i] > 0)
      notes.Tell(text_id::kExchangePartlyRight, {Excerpt(options[i].text)});
    if (!oneIsAll && !isShared && options[i].isRight)
      notes.Tell(text_id::kExchangePartlyRightCounts, {Excerpt(options[i].text)});
  }
  if (!hasRight && !options.empty()) notes.Tell(text_id::kExchangeNoRightRead);
  const bool costs = std::ranges::any_of(fractions, [](double fraction) { return fraction < 0; });
  if ((isShared || costs) && !CountAlike(fractions)) notes.Tell(text_id::kExchangeOwnScoring);
  TellFullyRight(fractions, notes);
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
    question.blanks.push_back(right.empty() ? BlankAnswers() : BlankAnswers{right});
  }
}

void MakeTrueFalse(bool isTrue, const StringTable& strings, ExchangedQuestion& question) {
  question.kind = QuestionKind::Choice;
  question.options = {{strings.Text(text_id::kExchangeTrue), isTrue},
                      {strings.Text(text_id::kExchangeFalse), !isTrue}};
}

}  // namespace quorvantis
