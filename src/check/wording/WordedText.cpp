// SPDX-License-Identifier: MIT
#include "check/wording/WordedText.h"

#include "regex/LetterCase.h"
#include "regex/WordBorders.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Tags longer than this are signs of comparison in a text about numbers.
constexpr std::size_t kLongestTag = 200;

constexpr std::u16string_view kBlankEntity = u"&nbsp;";

bool IsBlank(char16_t unit) {
  return unit <= u' ' || unit == u'\u00A0' || unit == u'\u3000' || (unit >= u'\u2000' && unit <= u'\u200B');
}

/// The length of the markup at the front of `rest`, 0 if there is none.
std::size_t MarkupLength(std::u16string_view rest) {
  if (rest.starts_with(kBlankEntity)) return kBlankEntity.size();
  if (rest.size() < 2 || rest[0] != u'<') return 0;
  const char16_t next = rest[1];
  const bool opens = (next >= u'a' && next <= u'z') || (next >= u'A' && next <= u'Z') || next == u'/';
  const std::size_t end = opens ? rest.substr(0, kLongestTag).find(u'>') : std::u16string_view::npos;
  return end == std::u16string_view::npos ? 0 : end + 1;
}

bool IsWordUnit(std::u16string_view text, std::size_t at) {
  // A unit is a part of a word where a border would cut it off from a letter.
  const char16_t pair[] = {text[at], u'a'};
  return !IsWholeWord({pair, 2}, 0, 1);
}

}  // namespace

WordedText::WordedText(std::u16string_view text) {
  Fold(text);
  CutIntoWords();
}

void WordedText::Fold(std::u16string_view text) {
  folded_.reserve(text.size());
  origins_.reserve(text.size() + 1);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t markup = MarkupLength(text.substr(at));
    const bool blank = markup > 0 || IsBlank(text[at]);
    if (!blank || folded_.empty() || folded_.back() != u' ') {
      folded_ += blank ? u' ' : ToLowerCase(text[at]);
      origins_.push_back(at);
    }
    at += std::max<std::size_t>(markup, 1);
  }
  origins_.push_back(text.size());
}

void WordedText::CutIntoWords() {
  for (std::size_t at = 0; at < folded_.size();) {
    std::size_t end = at;
    while (end < folded_.size() && IsWordUnit(folded_, end)) ++end;
    if (end > at) {
      words_.push_back({at, end});
      places_.push_back({origins_[at], origins_[end - 1] + 1});
    }
    at = std::max(end, at + 1);
  }
}

std::u16string_view WordedText::Word(std::size_t index) const {
  return index < words_.size() ? words_[index].Of(folded_) : std::u16string_view();
}

char16_t WordedText::Before(std::size_t index) const {
  const std::size_t begin = words_[index].begin;
  return begin == 0 ? u'\0' : folded_[begin - 1];
}

char16_t WordedText::After(std::size_t index) const {
  const std::size_t end = words_[index].end;
  return end == folded_.size() ? u'\0' : folded_[end];
}

bool WordedText::HasAny(std::span<const std::u16string_view> phrases) const {
  return std::any_of(phrases.begin(), phrases.end(), [this](std::u16string_view phrase) {
    for (std::size_t at = folded_.find(phrase); at != std::u16string::npos;
         at = folded_.find(phrase, at + 1)) {
      if (IsWholeWord(folded_, at, at + phrase.size())) return true;
    }
    return false;
  });
}

}  // namespace quorvantis
