// SPDX-License-Identifier: MIT
#include "bank/draw/DrawTexts.h"

#include "platform/StringTable.h"
#include "platform/TextNumbers.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

std::u16string Count(std::size_t count) {
  return FormatInteger(static_cast<std::int64_t>(count));
}

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

std::u16string DayText(std::chrono::sys_days day) {
  const std::chrono::year_month_day date(day);
  const auto twoDigits = [](unsigned number) { return (number < 10 ? u"0" : u"") + FormatInteger(number); };
  return FormatInteger(static_cast<int>(date.year())) + u"-" +
         twoDigits(static_cast<unsigned>(date.month())) + u"-" + twoDigits(static_cast<unsigned>(date.day()));
}

std::u16string ReasonText(const DrawnQuestion& question, std::u16string_view lastExam,
                          const StringTable& strings) {
  std::u16string text = FillMessage(strings.Text(text_id::kDrawnAmong), {Count(question.among)});
  text += kBetweenReasons;
  if (question.lastUsed) {
    const int number = lastExam.empty() ? text_id::kDrawnLastUsed : text_id::kDrawnLastUsedIn;
    text += FillMessage(strings.Text(number), {DayText(*question.lastUsed), std::u16string(lastExam)});
  } else {
    text += strings.Text(text_id::kDrawnNeverUsed);
  }
  text += kBetweenReasons;
  return text + FillMessage(strings.Text(text_id::kDrawnInExams), {Count(question.exams)});
}

std::u16string WishText(const DrawWish& wish, const WishOutcome& outcome, const StringTable& strings) {
  std::u16string text =
      FillMessage(strings.Text(text_id::kDrawFound), {Count(outcome.drawn), Count(wish.count)});
  for (const auto& [obstacle, count] : outcome.excluded) {
    text += kBetweenReasons;
    text += FillMessage(strings.Text(TextOf(obstacle)), {Count(count)});
  }
  return text;
}

}  // namespace quorvantis
