// SPDX-License-Identifier: MIT
#include "exchange/gift/GiftBraces.h"

#include "exchange/form/TextSource.h"
#include "exchange/gift/GiftText.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kDeepestBraces = 20;  // of formulas and code; keeps a file of nothing but braces readable

std::size_t ClosingBrace(std::u16string_view text, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at != text.npos && depth <= kDeepestBraces;
       at = FindUnprotected(text, u"{}", at + 1)) {
    depth += text[at] == u'{' ? 1 : -1;
    if (depth == 0) return at;
  }
  return text.npos;
}

bool HasMark(std::u16string_view answers) {
  const std::u16string_view trimmed = Trimmed(answers);
  return !trimmed.empty() && std::u16string_view(u"=~#").find(trimmed.front()) != trimmed.npos;
}

/// Whether a brace belongs to a formula: "x^{T}", "x_{}", "\mathbf{T}". Several underscores are a blank.
bool IsOfFormula(std::u16string_view text, std::size_t open) {
  const std::u16string_view before = text.substr(0, open);
  if (before.ends_with(u'^') || (before.ends_with(u'_') && !before.ends_with(u"__"))) return true;
  std::size_t begin = open;
  while (begin > 0 && AsciiLower(before[begin - 1]) >= u'a' && AsciiLower(before[begin - 1]) <= u'z') --begin;
  return begin > 0 && begin < open && before[begin - 1] == u'\\';
}

bool AreAnswers(std::u16string_view text, const TextSpan& inside) {
  const std::u16string_view answers = inside.Of(text);
  if (HasMark(answers)) return true;
  const bool canBe = Trimmed(answers).empty() || IsTrueOrFalse(answers);
  return canBe && !IsOfFormula(text, inside.begin - 1);
}

/// Where others open in a line below answers that are never closed: they are those of another question. npos
/// if there are none.
std::size_t OthersWithin(std::u16string_view text, const TextSpan& inside) {
  const std::size_t line = text.substr(0, inside.end).find(u'\n', inside.begin);
  const std::size_t inner = line == text.npos ? line : FindUnprotected(text, u"{", line);
  return inner < inside.end && AreAnswers(text, {inner + 1, inside.end}) ? inner : text.npos;
}

/// Everything in braces that can be answers.
std::vector<TextSpan> AllAnswers(std::u16string_view text) {
  std::vector<TextSpan> places;
  std::size_t next = 0;  // the first closing brace behind the place that is looked at
  for (std::size_t open = FindUnprotected(text, u"{"); open != text.npos;) {
    if (next <= open) next = FindUnprotected(text, u"}", open);
    if (next == text.npos) break;
    const std::size_t closing = ClosingBrace(text, open);
    const TextSpan inside{open + 1, closing != text.npos ? closing : next};
    if (!AreAnswers(text, inside)) {
      open = FindUnprotected(text, u"{", open + 1);
      continue;
    }
    const std::size_t others = closing != text.npos ? text.npos : OthersWithin(text, inside);
    if (others == text.npos) places.push_back(inside);
    open = others == text.npos ? FindUnprotected(text, u"{", inside.end) : others;
  }
  return places;
}

/// Answers that may be one of several blanks.
bool IsBlank(std::u16string_view answers) {
  return HasMark(answers) && FindOutsideBraces(answers, u"~") == answers.npos &&
         FindUnprotectedWord(answers, u"->") == answers.npos;
}

/// A small letter of the scripts that have some.
bool IsSmallLetter(char16_t unit) {
  constexpr std::array<std::pair<char16_t, char16_t>, 4> kRanges{
      {{u'a', u'z'}, {u'\u00DF', u'\u00FF'}, {u'\u03AC', u'\u03CE'}, {u'\u0430', u'\u045F'}}};
  return std::ranges::any_of(
      kRanges, [unit](const auto& range) { return unit >= range.first && unit <= range.second; });
}

bool EndsSentence(std::u16string_view text) {
  constexpr std::u16string_view kEnds = u".?!:;\u3002\uFF1F\uFF01\uFF1A\u061F\u06D4";
  const std::u16string_view trimmed = Trimmed(text);
  return trimmed.empty() || kEnds.find(trimmed.back()) != kEnds.npos;
}

bool GoesOn(std::u16string_view line) {
  constexpr std::u16string_view kWithin = u".,;:?!){\u3001\u3002\uFF0C\u060C";
  const std::u16string_view trimmed = Trimmed(line);
  return trimmed.empty() || IsSmallLetter(trimmed.front()) || kWithin.find(trimmed.front()) != kWithin.npos;
}

/// Where the question of `first` ends if the one of `second` is another; npos if it is the same.
std::size_t EndBetween(std::u16string_view block, std::u16string_view begin, const TextSpan& first,
                       const TextSpan& second) {
  const std::size_t after = first.end + 1;
  const std::size_t end = block.substr(0, second.begin - 1).find(u'\n', after);
  if (end == block.npos) return end;
  const bool endsHere = Trimmed(block.substr(after, end - after)).empty();
  const std::u16string_view next = Trimmed(block.substr(end, second.begin - end));
  if (next.starts_with(u"::")) return end;
  const bool areBlanks = IsBlank(first.Of(block)) && IsBlank(second.Of(block));
  const bool isSame = GoesOn(next) ? !endsHere || !EndsSentence(begin) : !endsHere && areBlanks;
  return isSame ? block.npos : end;
}

}  // namespace

std::size_t FindOutsideBraces(std::u16string_view text, std::u16string_view wanted, std::size_t from) {
  const std::u16string stops = std::u16string(wanted) + u"{";
  for (std::size_t at = FindUnprotected(text, stops, from); at != text.npos;
       at = FindUnprotected(text, stops, at + 1)) {
    if (text[at] != u'{') return at;
    const std::size_t closing = ClosingBrace(text, at);
    if (closing != text.npos) at = closing;
  }
  return text.npos;
}

bool IsTrueOrFalse(std::u16string_view answers) {
  const std::u16string_view trimmed = Trimmed(answers);
  const std::u16string_view begin = trimmed.substr(0, std::u16string_view(u"FALSE#").size());
  const std::size_t end = std::min(begin.find_first_of(u"# \t\n"), begin.size());
  const std::u16string_view rest = Trimmed(trimmed.substr(end));
  if (!rest.empty() && rest.front() != u'#') return false;
  const std::u16string word = AsciiUpper(trimmed.substr(0, end));
  return word == u"T" || word == u"TRUE" || word == u"F" || word == u"FALSE";
}

std::vector<TextSpan> GiftAnswerPlaces(std::u16string_view text) {
  std::vector<TextSpan> places = AllAnswers(text);
  const auto keepOnly = [&](const auto& isKept) {
    if (std::ranges::any_of(places, isKept))
      std::erase_if(places, [&](const TextSpan& place) { return !isKept(place); });
  };
  keepOnly([text](const TextSpan& place) { return !Trimmed(place.Of(text)).empty(); });
  keepOnly([text](const TextSpan& place) { return HasMark(place.Of(text)); });
  const bool areEssays = !places.empty() && Trimmed(places.front().Of(text)).empty();
  if (areEssays) places.erase(places.begin(), places.end() - 1);
  return places;
}

std::size_t FindBareBrace(std::u16string_view text, const std::vector<TextSpan>& answers) {
  auto place = answers.begin();
  for (std::size_t at = FindUnprotected(text, u"{}"); at != text.npos;
       at = FindUnprotected(text, u"{}", at + 1)) {
    if (place == answers.end() || (at + 1 != place->begin && at != place->end)) return at;
    if (at == place->end) ++place;
  }
  return text.npos;
}

std::vector<std::u16string_view> GiftQuestions(std::u16string_view block) {
  const std::vector<TextSpan> places = AllAnswers(block);
  std::vector<std::u16string_view> questions;
  std::size_t begin = 0;
  for (std::size_t i = 1; i < places.size(); ++i) {
    const TextSpan& first = places[i - 1];
    const std::u16string_view text = block.substr(begin, first.begin - 1 - begin);
    const std::size_t end = EndBetween(block, text, first, places[i]);
    if (end == block.npos) continue;
    questions.push_back(block.substr(begin, end - begin));
    begin = end;
  }
  questions.push_back(block.substr(begin));
  return questions;
}

}  // namespace quorvantis
