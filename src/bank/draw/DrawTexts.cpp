// SPDX-License-Identifier: MIT
#include "bank/draw/DrawTexts.h"

#include "platform/StringTable.h"
#include "platform/texts/DrawTexts.h"
#include "text/DayText.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

int TextOf(DrawObstacle obstacle) {
  switch (obstacle) {
    case DrawObstacle::NotOffered:
      return text_id::kDrawOtherFolder;
    case DrawObstacle::Kind:
      return text_id::kDrawOtherKind;
    case DrawObstacle::Tags:
      return text_id::kDrawOtherTags;
    case DrawObstacle::UsedSince:
      return text_id::kDrawUsedSince;
    case DrawObstacle::Rejected:
      return text_id::kDrawRejected;
    case DrawObstacle::InOpenExam:
      return text_id::kDrawInOpenExam;
    case DrawObstacle::NearlyDrawn:
      return text_id::kDrawNearlyDrawn;
    case DrawObstacle::OtherWish:
      break;
  }
  return text_id::kDrawOtherWish;
}

constexpr std::u16string_view kBetweenReasons = u"; ";

}  // namespace

std::u16string ReasonText(const DrawnQuestion& question, std::u16string_view lastExam,
                          const StringTable& strings) {
  std::u16string text = FillMessage(strings.Text(text_id::kDrawnAmong), {FormatCount(question.among)});
  text += kBetweenReasons;
  if (question.lastUsed) {
    const int number = lastExam.empty() ? text_id::kDrawnLastUsed : text_id::kDrawnLastUsedIn;
    text += FillMessage(strings.Text(number), {DayText(*question.lastUsed), std::u16string(lastExam)});
  } else {
    text += strings.Text(text_id::kDrawnNeverUsed);
  }
  text += kBetweenReasons;
  return text + FillMessage(strings.Text(text_id::kDrawnInExams), {FormatCount(question.exams)});
}

std::u16string WishText(const DrawWish& wish, const WishOutcome& outcome, const StringTable& strings) {
  std::u16string text =
      FillMessage(strings.Text(text_id::kDrawFound), {FormatCount(outcome.drawn), FormatCount(wish.count)});
  for (const auto& [obstacle, count] : outcome.excluded) {
    text += kBetweenReasons;
    text += FillMessage(strings.Text(TextOf(obstacle)), {FormatCount(count)});
  }
  return text;
}

}  // namespace quorvantis
