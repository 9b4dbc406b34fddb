// SPDX-License-Identifier: MIT
#include "exchange/moodle/ClozeAnswers.h"

#include "exchange/form/MoodleConventions.h"
#include "exchange/form/QuestionParts.h"
#include "exchange/markup/Markup.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool IsFull(const ClozeAnswer& answer) {
  return answer.fraction >= kFullFraction;
}

bool IsPartly(const ClozeAnswer& answer) {
  return answer.fraction > 0 && !IsFull(answer);
}

/// Those that are fully right come first, as a blank among several keeps one only.
BlankAnswers RightWords(ClozeKind kind, const std::vector<ClozeAnswer>& answers, ExchangeNotes& notes) {
  BlankAnswers rights;
  const auto add = [&](const ClozeAnswer& answer) {
    rights.push_back(
        PlainToExamText(kind == ClozeKind::Words ? WithoutProtectedStars(answer.text, notes) : answer.text));
  };
  for (const ClozeAnswer& answer : answers) {
    if (IsFull(answer)) add(answer);
  }
  for (const ClozeAnswer& answer : answers) {
    if (!IsPartly(answer)) continue;
    notes.Tell(text_id::kExchangePartlyRightAnswer, {Excerpt(answer.text)});
    add(answer);
  }
  return rights;
}

BlankAnswers RightOptions(const std::vector<ClozeAnswer>& answers, ExchangeNotes& notes) {
  const bool hasFull = std::any_of(answers.begin(), answers.end(), IsFull);
  const auto best = std::ranges::max_element(answers, {}, &ClozeAnswer::fraction);
  BlankAnswers rights;
  for (const ClozeAnswer& answer : answers) {
    const bool isBest = !hasFull && answer.fraction > 0 && &answer == &*best;
    if (isBest) notes.Tell(text_id::kExchangeBestOption, {Excerpt(answer.text)});
    if (IsFull(answer) || isBest) {
      rights.push_back(PlainToExamText(answer.text));
    } else if (IsPartly(answer)) {
      notes.Tell(text_id::kExchangePartlyRight, {Excerpt(answer.text)});
    }
  }
  return rights;
}

BlankAnswers AllRightOptions(const std::vector<ClozeAnswer>& answers, ExchangeNotes& notes) {
  std::u16string all;
  std::size_t count = 0;
  for (const ClozeAnswer& answer : answers) {
    if (answer.fraction <= 0) continue;
    all.append(count++ == 0 ? u"" : u", ").append(answer.text);
  }
  if (count > 1) notes.Tell(text_id::kExchangeAllToChoose, {Excerpt(all)});
  return count > 0 ? BlankAnswers{PlainToExamText(all)} : BlankAnswers{};
}

}  // namespace

bool CaseMattersIn(std::u16string_view name) {
  const std::u16string upper = AsciiUpper(name);
  return upper == u"SHORTANSWER_C" || upper == u"SAC" || upper == u"MWC";
}

std::optional<ClozeKind> ClozeKindOf(std::u16string_view name) {
  const std::u16string upper = AsciiUpper(name);
  const auto begins = [&upper](std::u16string_view prefix) { return upper.starts_with(prefix); };
  if (begins(u"SHORTANSWER") || upper == u"SA" || begins(u"MW") || upper == u"SAC") return ClozeKind::Words;
  if (upper == u"NUMERICAL" || upper == u"NM") return ClozeKind::Number;
  if (begins(u"MULTICHOICE") || begins(u"MC")) return ClozeKind::Choice;
  if (begins(u"MULTIRESPONSE") || begins(u"MR")) return ClozeKind::Choices;
  return std::nullopt;
}

BlankAnswers RightAnswers(ClozeKind kind, const std::vector<ClozeAnswer>& answers, ExchangeNotes& notes) {
  BlankAnswers rights;
  switch (kind) {
    case ClozeKind::Words:
    case ClozeKind::Number:
      rights = RightWords(kind, answers, notes);
      break;
    case ClozeKind::Choice:
      rights = RightOptions(answers, notes);
      break;
    case ClozeKind::Choices:
      rights = AllRightOptions(answers, notes);
      break;
  }
  if (rights.empty()) notes.Tell(text_id::kExchangeBlankNoRight);
  return rights;
}

}  // namespace quorvantis
