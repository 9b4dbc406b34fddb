// SPDX-License-Identifier: MIT
#include "import/keys/BracketedKey.h"

#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/JudgementWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kPairOpens = u"(（【[〔「";
constexpr std::u16string_view kPairCloses = u")）】]〕」";
constexpr std::u16string_view kUnderscores = u"_＿";

/// A key between brackets is short.
constexpr std::size_t kLongestInner = 24;

bool IsAmong(char16_t unit, std::u16string_view units) {
  return units.find(unit) != units.npos;
}

std::optional<BracketedText> UnderscoredAt(std::u16string_view text, std::size_t place, std::size_t end) {
  std::size_t begin = place;
  while (begin < end && IsAmong(text[begin], kUnderscores)) ++begin;
  std::size_t at = begin;
  while (at < end && at < begin + kLongestInner && !IsAmong(text[at], kUnderscores) && !IsLineEnd(text[at]))
    ++at;
  const TextSpan inner = Trimmed(text, {begin, at});
  std::size_t close = at;
  while (close < end && IsAmong(text[close], kUnderscores)) ++close;
  if (close == at || inner.IsEmpty()) return std::nullopt;
  return BracketedText{{place, close}, inner, true};
}

}  // namespace

std::u16string BracketedText::Emptied(std::u16string_view text) const {
  if (isUnderscored) {
    constexpr std::size_t kShortestBlank = 3;
    return std::u16string(std::max(whole.Size(), kShortestBlank), text[whole.begin]);
  }
  return std::u16string(1, text[whole.begin]) + u"   " + text[whole.end - 1];
}

std::optional<BracketedText> BracketedAt(std::u16string_view text, std::size_t place, std::size_t end) {
  if (place >= end) return std::nullopt;
  if (IsAmong(text[place], kUnderscores)) return UnderscoredAt(text, place, end);
  if (!IsAmong(text[place], kPairOpens)) return std::nullopt;
  const std::size_t last = std::min(end, place + 1 + kLongestInner);
  for (std::size_t at = place + 1; at < last; ++at) {
    if (IsLineEnd(text[at]) || IsAmong(text[at], kPairOpens)) return std::nullopt;
    if (IsAmong(text[at], kPairCloses))
      return BracketedText{{place, at + 1}, Trimmed(text, {place + 1, at}), false};
  }
  return std::nullopt;
}

std::vector<BracketedText> BracketedWithin(std::u16string_view text, TextSpan within) {
  std::vector<BracketedText> found;
  for (std::size_t at = within.begin; at < within.end;) {
    if (const auto pair = BracketedAt(text, at, within.end)) {
      found.push_back(*pair);
      at = pair->whole.end;
    } else if (IsAmong(text[at], kUnderscores)) {
      while (at < within.end && IsAmong(text[at], kUnderscores)) ++at;
    } else {
      ++at;
    }
  }
  return found;
}

std::vector<std::size_t> OptionsNamedAlone(std::u16string_view letters, const OptionSequence& options) {
  std::vector<std::size_t> named;
  for (const char16_t unit : letters) {
    if (IsBlank(unit) || IsAmong(unit, u",，、;；&")) continue;
    const std::size_t index = OptionNamed(options, unit);
    if (index == options.labels.size() || std::ranges::find(named, index) != named.end()) return {};
    named.push_back(index);
  }
  std::ranges::sort(named);
  return named;
}

bool IsJudgement(std::u16string_view text) {
  const std::vector<JudgementWord> words = JudgementWordsAt(text);
  return !words.empty() && words.front().size == text.size();
}

}  // namespace quorvantis
