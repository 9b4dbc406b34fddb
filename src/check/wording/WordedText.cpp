// SPDX-License-Identifier: MIT
#include "check/wording/WordedText.h"

#include "regex/LetterCase.h"
#include "regex/WordBorders.h"
#include "text/AsciiCase.h"
#include "text/LikelyTag.h"
#include "text/ScriptDigits.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestTag = 200;

constexpr char16_t kFirstBeyondAscii = 0x80;

constexpr std::u16string_view kBlankEntity = u"&nbsp;";

bool IsBlank(char16_t unit) {
  if (unit < kFirstBeyondAscii) return unit <= u' ';
  return unit == u'\u00A0' || unit == u'\u3000' || (unit >= u'\u2000' && unit <= u'\u200B');
}

/// The length of the markup at the front of `rest`, 0 if there is none.
std::size_t MarkupLength(std::u16string_view rest) {
  if (rest.starts_with(kBlankEntity)) return kBlankEntity.size();
  return LikelyTagLength(rest, kLongestTag);
}

char16_t FoldedUnit(char16_t unit) {
  constexpr char16_t kTurkishI = 0x130;
  if (unit < kFirstBeyondAscii) return AsciiLower(unit);
  if (unit == kTurkishI) return u'i';
  return unit == u'\u2019' ? u'\'' : ToLowerCase(unit);
}

/// Of folded units.
bool IsWordUnit(char16_t unit) {
  if (unit >= kFirstBeyondAscii) return IsPartOfWord(unit);
  return (unit >= u'a' && unit <= u'z') || (unit >= u'0' && unit <= u'9') || unit == u'_';
}

bool IsHangul(char16_t unit) {
  return unit >= 0xAC00 && unit <= 0xD7A3;
}

/// Korean puts particles right behind a phrase.
bool StandsByItself(std::u16string_view text, const TextSpan& phrase) {
  const std::size_t end = IsHangul(text[phrase.end - 1]) ? phrase.begin : phrase.end;
  return IsWholeWord(text, phrase.begin, end);
}

}  // namespace

WordedText::WordedText(std::u16string_view text) : original_(text) {
  Fold();
  CutIntoWords();
}

void WordedText::Fold() {
  folded_.resize(original_.size());
  origins_.resize(original_.size());
  std::size_t size = 0;
  for (std::size_t at = 0; at < original_.size();) {
    const char16_t unit = original_[at];
    const std::size_t markup = unit == u'<' || unit == u'&' ? MarkupLength(original_.substr(at)) : 0;
    const bool blank = markup > 0 || IsBlank(unit);
    if (!blank || size == 0 || folded_[size - 1] != u' ') {
      folded_[size] = blank ? u' ' : FoldedUnit(unit);
      origins_[size++] = static_cast<std::uint32_t>(at);
    }
    at += std::max<std::size_t>(markup, 1);
  }
  folded_.resize(size);
  origins_.resize(size);
}

void WordedText::CutIntoWords() {
  constexpr std::size_t kUsualWord = 6;
  const KnownWords& table = KnownWords::Instance();
  words_.reserve(folded_.size() / kUsualWord);
  for (std::size_t at = 0; at < folded_.size();) {
    std::size_t end = at;
    while (end < folded_.size() && IsWordUnit(folded_[end])) ++end;
    if (end > at) {
      const TextSpan place{at, end};
      words_.push_back({place, table.UsesOf(place.Of(folded_))});
      all_.Add(words_.back().uses);
      hasDigits_ = hasDigits_ || DigitValueOf(folded_[at]) >= 0 || DigitValueOf(folded_[end - 1]) >= 0;
    }
    if (end > at || folded_[at] >= kFirstBeyondAscii) FindPhrasesAt(at);
    at = std::max(end, at + 1);
  }
}

void WordedText::FindPhrasesAt(std::size_t place) {
  const std::u16string_view rest = std::u16string_view(folded_).substr(place);
  if (rest.size() > 1) TakePhrases(KnownWords::Instance().PhrasesLike(rest), place);
  if (rest[0] >= kFirstBeyondAscii) TakePhrases(KnownWords::Instance().PhrasesLike(rest.substr(0, 1)), place);
}

void WordedText::TakePhrases(std::span<const KnownWords::Phrase> phrases, std::size_t place) {
  for (const KnownWords::Phrase& phrase : phrases) {
    const TextSpan span{place, place + phrase.text.size()};
    if (span.end > folded_.size() || span.Of(folded_) != phrase.text) continue;
    if (!StandsByItself(folded_, span)) continue;
    phrases_.push_back({span, phrase.uses});
    all_.Add(phrase.uses);
  }
}

std::u16string_view WordedText::Word(std::size_t index) const {
  return index < words_.size() ? words_[index].place.Of(folded_) : std::u16string_view();
}

char16_t WordedText::Before(std::size_t index) const {
  const std::size_t begin = words_[index].place.begin;
  return begin == 0 ? u'\0' : folded_[begin - 1];
}

char16_t WordedText::After(std::size_t index) const {
  const std::size_t end = words_[index].place.end;
  return end == folded_.size() ? u'\0' : folded_[end];
}

std::u16string_view WordedText::Gap(std::size_t index) const {
  const std::size_t begin = words_[index].place.end;
  const std::size_t end = index + 1 < words_.size() ? words_[index + 1].place.begin : folded_.size();
  return std::u16string_view(folded_).substr(begin, end - begin);
}

}  // namespace quorvantis
