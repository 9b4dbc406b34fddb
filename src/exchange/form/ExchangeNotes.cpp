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
constexpr int kMostNotesOfAQuestion = 100;
constexpr int kMostNotesOfAKind = 1000;

}  // namespace

void ExchangeNotes::Tell(int text, std::vector<std::u16string> values) {
  ExchangeNote note{question_, text, std::move(values)};
  const Place place = PlaceFor(note);
  if (place == Place::There) return;
  if (place == Place::TooMany) return CountOneMore(std::move(note));
  ++ofEachKind_[text];
  notes_.push_back(std::move(note));
}

/// The notes of a question stand together, at the end.
ExchangeNotes::Place ExchangeNotes::PlaceFor(const ExchangeNote& note) const {
  int count = 0;
  for (auto last = notes_.rbegin(); last != notes_.rend() && last->question == question_; ++last) {
    if (*last == note) return Place::There;
    if (++count == kMostNotesOfAQuestion) return Place::TooMany;
  }
  const auto kind = ofEachKind_.find(note.text);
  return kind != ofEachKind_.end() && kind->second >= kMostNotesOfAKind ? Place::TooMany : Place::New;
}

void ExchangeNotes::CountOneMore(ExchangeNote note) {
  if (note == lastUnlisted_) return;
  lastUnlisted_ = std::move(note);
  if (unlisted_++ == 0) notes_.insert(notes_.begin(), {0, text_id::kExchangeMoreNotes});
  notes_.front().values = {FormatInteger(unlisted_)};
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
