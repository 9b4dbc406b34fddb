// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeNotes.h"

#include "platform/texts/ExchangeTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kExcerptUnits = 40;
constexpr std::size_t kMostNotesOfAQuestion = 100;

}  // namespace

void ExchangeNotes::Tell(int text, std::vector<std::u16string> values) {
  ExchangeNote note{question_, text, std::move(values)};
  // The notes of a question stand together. A file that earns more of them than anybody reads is told of
  // less.
  std::size_t count = 0;
  for (auto last = notes_.rbegin(); last != notes_.rend() && last->question == question_; ++last) {
    if (*last == note || ++count == kMostNotesOfAQuestion) return;
  }
  notes_.push_back(std::move(note));
}

std::u16string NoteText(const ExchangeNote& note, const StringTable& strings) {
  std::vector<std::u16string> values = note.values;
  values.resize(2);
  return FillMessage(strings.Text(note.text), {values[0], values[1]});
}

std::u16string NoteLine(const ExchangeNote& note, const StringTable& strings) {
  const std::u16string what = NoteText(note, strings);
  if (note.question == 0) return what;
  return FillMessage(strings.Text(text_id::kExchangeQuestion), {FormatInteger(note.question), what});
}

std::u16string Excerpt(std::u16string_view text) {
  std::size_t length = std::min(text.size(), kExcerptUnits);
  if (length < text.size() && length > 0 && IsHighSurrogate(text[length - 1])) --length;
  std::u16string line(text.substr(0, length));
  for (char16_t& unit : line) {
    if (unit < u' ') unit = u' ';
  }
  return length < text.size() ? line + u"\u2026" : line;
}

}  // namespace quorvantis
