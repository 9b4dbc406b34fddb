// SPDX-License-Identifier: MIT
#include "learn/ForeseenImport.h"

#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool HasContent(const ExamQuestion& question) {
  const bool hasOption = std::any_of(question.options.begin(), question.options.end(),
                                     [](const std::u16string& option) { return !option.empty(); });
  return hasOption || !question.text.empty() || !question.answerText.empty() ||
         !question.essayAnswer.empty() || !question.attachmentPaths.front().empty();
}

std::u16string NumberRange(int first, int last) {
  const std::u16string text = FormatInteger(first);
  return first == last ? text : text + u"\u2013" + FormatInteger(last);
}

}  // namespace

int LastWithContent(const ExamPaper& exam) {
  int last = kMaxQuestions;
  while (last > 0 && !HasContent(exam.Question(last))) --last;
  return last;
}

ForeseenImport ForeseeImport(const ExamPaper& exam, int questions, const ImportWish& wish) {
  ForeseenImport place;
  place.isNewExam = wish.where == ImportWish::Where::NewExam;
  const int last = place.isNewExam ? 0 : LastWithContent(exam);
  place.first = last + 1;
  if (wish.where == ImportWish::Where::From) place.first = std::clamp(wish.from, 1, last + 1);
  place.written = std::min(questions, kMaxQuestions - last);
  place.leftOut = questions - place.written;
  if (place.written > 0 && place.first <= last) place.lastMoved = last;
  return place;
}

std::u16string ForeseenImportText(const ForeseenImport& place, const StringTable& strings) {
  std::u16string text;
  const auto say = [&](int number, std::initializer_list<std::u16string_view> values) {
    text += (text.empty() ? u"" : u" ") + FillMessage(strings.Text(number), values);
  };
  if (place.written > 0) {
    const std::u16string range = NumberRange(place.first, place.first + place.written - 1);
    const std::u16string written = FormatInteger(place.written);
    if (place.isNewExam) {
      say(text_id::kPlaceNew, {range, written});
    } else if (place.lastMoved == 0) {
      say(text_id::kPlaceFree, {range, written});
    } else {
      const std::u16string moved = FormatInteger(place.lastMoved - place.first + 1);
      say(text_id::kPlaceInserts, {range, written, NumberRange(place.first, place.lastMoved), moved});
    }
  }
  if (place.leftOut > 0) say(text_id::kPlaceFull, {FormatInteger(place.leftOut)});
  return text;
}

}  // namespace quorvantis
