// SPDX-License-Identifier: MIT
#include "search/SearchTexts.h"

#include "model/AnswerLetters.h"
#include "platform/StringTable.h"
#include "platform/texts/SearchTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

namespace quorvantis {

std::u16string FieldName(const TextPlace& place, const StringTable& strings) {
  switch (place.field) {
    case ExamFieldName::Title:
      return strings.Text(text_id::kPlaceTitle);
    case ExamFieldName::QuestionText:
      return strings.Text(text_id::kPlaceText);
    case ExamFieldName::Options: {
      const std::u16string letter(1, OptionLetter(place.index));
      return FillMessage(strings.Text(text_id::kPlaceOption), {letter});
    }
    case ExamFieldName::FillInAnswer:
      return strings.Text(text_id::kPlaceAnswer);
    case ExamFieldName::EssayAnswer:
      return strings.Text(text_id::kPlaceModelAnswer);
    case ExamFieldName::AttachmentName:
      return strings.Text(text_id::kPlaceFile);
    default:
      return {};
  }
}

std::u16string PlaceName(const TextPlace& place, const StringTable& strings) {
  const std::u16string field = FieldName(place, strings);
  if (place.question == 0) return field;
  return FillMessage(strings.Text(text_id::kPlaceInQuestion), {FormatInteger(place.question), field});
}

std::u16string ObstacleText(ReplacementObstacle obstacle, const TextPlace& place,
                            const StringTable& strings) {
  switch (obstacle) {
    case ReplacementObstacle::FileName:
      return strings.Text(text_id::kFileNamesStay);
    case ReplacementObstacle::TooLong: {
      const auto limit = static_cast<std::int64_t>(FieldNamed(place.field).limit);
      return FillMessage(strings.Text(text_id::kResultTooLong), {FormatInteger(limit)});
    }
    case ReplacementObstacle::EmptyAnswer:
      return strings.Text(text_id::kAnswerGetsEmpty);
    case ReplacementObstacle::OtherAnswers:
      return strings.Text(text_id::kAnswersGetMore);
  }
  return {};
}

std::u16string QueryProblem(const TextSearch& search, const StringTable& strings) {
  const std::optional<RegexError>& error = search.PatternError();
  if (!error) return {};
  const std::u16string character = FormatInteger(static_cast<std::int64_t>(error->position) + 1);
  return FillMessage(strings.Text(text_id::kBadPattern), {Utf8ToUtf16(error->reason), character});
}

std::u16string ReplacementProblem(const ReplacementText& replacement, const TextSearch& search,
                                  const StringTable& strings) {
  const std::optional<int> group = replacement.UnknownGroup(search);
  return group ? FillMessage(strings.Text(text_id::kNoSuchGroup), {FormatInteger(*group)}) : std::u16string();
}

std::u16string NothingToReplaceText(const ReplacementPlan& plan, const StringTable& strings) {
  return strings.Text(plan.leftSame ? text_id::kReplacementIsSame : text_id::kNothingToReplace);
}

std::u16string SearchProblem(SearchEnd end, const TextPlace& stoppedAt, const StringTable& strings) {
  switch (end) {
    case SearchEnd::Done:
      return {};
    case SearchEnd::Cancelled:
      return strings.Text(text_id::kSearchCancelled);
    case SearchEnd::TooLarge:
      return FillMessage(strings.Text(text_id::kPatternTooLarge), {PlaceName(stoppedAt, strings)});
  }
  return {};
}

}  // namespace quorvantis
