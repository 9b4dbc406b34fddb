// SPDX-License-Identifier: MIT
#include "bank/index/FoldedText.h"

#include "bank/index/FoldedLetters.h"
#include "text/AsciiCase.h"
#include "text/HtmlEntities.h"
#include "text/LikelyTag.h"
#include "text/Utf.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

/// What stands for several units of a text at one place.
struct Replaced {
  std::size_t length = 0;  ///< units of the text; 0 if nothing is replaced
  std::u16string_view by = {};
};

bool IsNameLetter(char16_t unit) {
  return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z';
}

/// A tag at the front of `text`.
Replaced TagAt(std::u16string_view text) {
  constexpr std::size_t kLongest = 64;
  const std::size_t length = LikelyTagLength(text, kLongest);
  if (length == 0) return {};
  const std::size_t begin = text[1] == u'/' ? 2 : 1;
  std::size_t end = begin;
  while (IsNameLetter(text[end])) ++end;
  return {length, PartsWords(text.substr(begin, end - begin)) ? u" " : std::u16string_view()};
}

/// Calls `take` with each folded unit and the part of the text that it stands for. Blanks come singly, and
/// neither at the begin nor at the end.
template <class Take>
void FoldUnits(std::u16string_view text, Take take) {
  bool hasBegun = false;
  TextSpan blank;  // one that is taken when something follows it
  const auto takeAll = [&](std::u16string_view units, TextSpan origin) {
    for (const char16_t unit : units) {
      if (unit == u' ') {
        if (hasBegun && blank.IsEmpty()) blank = origin;
        continue;
      }
      if (!blank.IsEmpty()) take(u' ', blank);
      blank = {};
      hasBegun = true;
      take(unit, origin);
    }
  };
  const auto takeEntity = [&](const HtmlEntity& entity, std::size_t at) {
    std::u16string shown;
    AppendCodePoint(shown, entity.codePoint);
    for (const char16_t unit : shown) takeAll(FoldedLetter(unit), {at, at + entity.length});
  };
  for (std::size_t at = 0; at < text.size();) {
    const std::u16string_view rest = text.substr(at);
    const Replaced tag = rest.front() == u'<' ? TagAt(rest) : Replaced();
    const auto entity = rest.front() == u'&' ? ReadEntity(rest) : std::nullopt;
    if (tag.length > 0) {
      takeAll(tag.by, {at, at + tag.length});
    } else if (entity) {
      takeEntity(*entity, at);
    } else {
      takeAll(FoldedLetter(rest.front()), {at, at + 1});
    }
    at += tag.length > 0 ? tag.length : entity ? entity->length : 1;
  }
}

}  // namespace

bool PartsWords(std::u16string_view element) {
  constexpr std::u16string_view kWithinLines[] = {
      u"b",    u"i", u"u",     u"s",   u"em",     u"strong", u"sub",  u"sup",  u"a",  u"font",
      u"span", u"q", u"small", u"big", u"strike", u"tt",     u"code", u"mark", u"ins"};
  return std::none_of(std::begin(kWithinLines), std::end(kWithinLines),
                      [element](std::u16string_view name) { return EqualsIgnoringAsciiCase(name, element); });
}

std::u16string FoldForSearch(std::u16string_view text) {
  const std::u16string whole = ReplaceLoneSurrogates(text);
  std::u16string folded;
  folded.reserve(whole.size());
  FoldUnits(whole, [&folded](char16_t unit, TextSpan) { folded.push_back(unit); });
  return folded;
}

FoldedText::FoldedText(std::u16string_view text) {
  const std::u16string whole = ReplaceLoneSurrogates(text);
  text_.reserve(whole.size());
  origins_.reserve(whole.size());
  FoldUnits(whole, [this](char16_t unit, TextSpan origin) {
    text_.push_back(unit);
    origins_.push_back(origin);
  });
}

TextSpan FoldedText::Original(TextSpan part) const {
  if (part.IsEmpty()) return {};
  return {origins_[part.begin].begin, origins_[part.end - 1].end};
}

}  // namespace quorvantis
