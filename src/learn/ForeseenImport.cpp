// SPDX-License-Identifier: MIT
#include "learn/ForeseenImport.h"

#include "platform/TextNumbers.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool HasContent(const ExamQuestion& question) {
  const bool hasOption = std::any_of(question.options.begin(), question.options.end(),
                                     [](const std::u16string& option) { return !option.empty(); });
  return hasOption || !question.text.empty() || !question.answerText.empty() || !question.essayAnswer.empty();
}

int LastWithContent(const ExamPaper& exam) {
  int last = kMaxQuestions;
  while (last > 0 && !HasContent(exam.Question(last))) --last;
  return last;
}

std::u16string NumberRange(int first, int last) {
  const std::u16string text = FormatInteger(first);
  return first == last ? text : text + u"\u2013" + FormatInteger(last);
}

/// "3, 7–9".
std::u16string NumberList(const std::vector<int>& numbers) {
  std::u16string text;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t next = i + 1;
    while (next < numbers.size() && numbers[next] == numbers[next - 1] + 1) ++next;
    text += (text.empty() ? u"" : u", ") + NumberRange(numbers[i], numbers[next - 1]);
    i = next;
  }
  return text;
}

}  // namespace

ForeseenImport ForeseeImport(const ExamPaper& exam, int questions, const ImportWish& wish) {
  ForeseenImport place;
  place.isNewExam = wish.where == ImportWish::Where::NewExam;
  if (wish.where == ImportWish::Where::BehindLast) place.first = LastWithContent(exam) + 1;
  if (wish.where == ImportWish::Where::From) place.first = std::clamp(wish.from, 1, kMaxQuestions);
  place.written = std::min(questions, kMaxQuestions + 1 - place.first);
  place.leftOut = questions - place.written;
  if (place.isNewExam || place.written == 0) return place;
  for (int n = place.first; n < place.first + place.written; ++n) {
    if (HasContent(exam.Question(n))) place.replaced.push_back(n);
  }
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
    const std::u16string replaced = FormatInteger(static_cast<std::int64_t>(place.replaced.size()));
    if (place.isNewExam) {
      say(text_id::kPlaceNew, {range, written});
    } else if (place.replaced.empty()) {
      say(text_id::kPlaceFree, {range, written});
    } else {
      say(text_id::kPlaceReplaces, {range, replaced, NumberList(place.replaced), written});
    }
  }
  if (place.leftOut > 0) say(text_id::kPlaceFull, {FormatInteger(place.leftOut)});
  return text;
}

}  // namespace quorvantis
