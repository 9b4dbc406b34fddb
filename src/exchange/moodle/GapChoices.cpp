// SPDX-License-Identifier: MIT
#include "exchange/moodle/GapChoices.h"

#include "exchange/form/Blanks.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// The choice of a place; none if there is none of that number, which is told.
BlankAnswers ChoiceAt(std::u16string_view place, const std::vector<std::u16string>& choices,
                      ExchangeNotes& notes) {
  const int number = ParseInteger(place);
  if (number >= 1 && static_cast<std::size_t>(number) <= choices.size())
    return {choices[static_cast<std::size_t>(number) - 1]};
  notes.Tell(text_id::kExchangeBlankNoRight);
  return {};
}

}  // namespace

void TakeGaps(const std::vector<std::u16string>& choices, ExchangedQuestion& question, ExchangeNotes& notes) {
  question.kind = QuestionKind::FillIn;
  const std::u16string source = std::exchange(question.text, {});
  for (std::size_t at = 0; at < source.size();) {
    const std::size_t begin = std::min(source.find(u"[[", at), source.size());
    const std::size_t end = source.find(u"]]", begin);
    question.text.append(source, at, begin - at);
    if (end == source.npos) {
      question.text.append(source, begin);
      break;
    }
    const std::u16string_view place = std::u16string_view(source).substr(begin + 2, end - begin - 2);
    question.text += kBlank;
    question.blanks.push_back(ChoiceAt(place, choices, notes));
    at = end + 2;
  }
  for (std::size_t i = 0; i < choices.size(); ++i)
    question.text.append(i == 0 ? u"\r\n(" : u" / ").append(choices[i]);
  if (!choices.empty()) question.text += u")";
  notes.Tell(text_id::kExchangeInlineChoices);
}

}  // namespace quorvantis
