// SPDX-License-Identifier: MIT
#include "exchange/form/NoteGroups.h"

#include "platform/texts/ExchangeTexts.h"
#include "text/MessageText.h"
#include "text/NumberRanges.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quorvantis {

std::vector<NoteGroup> GroupNotes(const std::vector<ExchangeNote>& notes, const StringTable& strings) {
  std::vector<ExchangeNote> sorted = notes;
  std::ranges::stable_sort(sorted, {}, &ExchangeNote::question);
  std::vector<NoteGroup> groups;
  std::map<std::pair<bool, std::u16string>, std::size_t> places;
  for (const ExchangeNote& note : sorted) {
    const bool isAboutAll = note.question == 0;
    const std::u16string text = NoteText(note, strings);
    const auto [place, isNew] = places.try_emplace({isAboutAll, text}, groups.size());
    if (isNew) groups.push_back({text});
    std::vector<int>& questions = groups[place->second].questions;
    if (!isAboutAll && (questions.empty() || questions.back() != note.question))
      questions.push_back(note.question);
  }
  return groups;
}

std::u16string GroupLine(const NoteGroup& group, const StringTable& strings) {
  if (group.questions.empty()) return group.text;
  const int text = group.questions.size() == 1 ? text_id::kExchangeQuestion : text_id::kExchangeQuestions;
  return FillMessage(strings.Text(text), {NumberRanges(group.questions), group.text});
}

}  // namespace quorvantis
